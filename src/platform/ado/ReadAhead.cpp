#include "ado/ReadAhead.h"

#include <algorithm>
#include <optional>

#include "store/StoreError.h"

namespace ado {

namespace {

constexpr std::size_t longestBatch = 32;
/// What a batch may hold in memory before it ends early.
constexpr qsizetype batchBytes = 1 << 20;

/// Holds the read lock for its lifetime.
class ReadLock {
 public:
  explicit ReadLock(store::Database& database) : m_database(database) {
    m_database.run(QStringLiteral("BEGIN"));
  }
  ReadLock(const ReadLock&) = delete;
  ReadLock& operator=(const ReadLock&) = delete;
  ~ReadLock() {
    try {
      m_database.run(QStringLiteral("ROLLBACK"));
    } catch (const store::StoreError&) {
      // Nothing was written. Should the lock still stand, the next statement tells why.
      return;
    }
  }

 private:
  store::Database& m_database;
};

}  // namespace

bool ReadAhead::fetch(store::Database& database, std::size_t row, std::size_t rowCount,
                      const KeyOfRow& keyOfRow, QVariant& value) {
  if (!m_read.contains(row)) {
    m_batch = row == m_expected && row != 0 ? std::min(m_batch * 2, longestBatch) : 1;
    readFrom(database, row, rowCount, keyOfRow);
  }
  const auto found = m_read.find(row);
  if (found == m_read.end()) return false;
  value = std::move(found->second);
  m_read.erase(found);
  m_expected = row + 1;
  return true;
}

void ReadAhead::readFrom(store::Database& database, std::size_t row, std::size_t rowCount,
                         const KeyOfRow& keyOfRow) {
  m_read.clear();
  std::optional<ReadLock> lock;
  if (m_batch > 1 && !database.inTransaction()) lock.emplace(database);
  const std::shared_ptr<store::Statement> statement = database.statement(m_sql);
  const store::StatementScope scope(*statement);
  qsizetype bytes = 0;
  const std::size_t end = std::min(row + m_batch, rowCount);
  for (; row < end && bytes < batchBytes; ++row) {
    const QVariant key = keyOfRow(row);
    if (!key.isValid()) continue;
    try {
      statement->reset();
      statement->bind(1, key);
      if (!statement->step()) continue;
      const QVariant value = statement->value(0);
      bytes += value.toByteArray().size();
      m_read.emplace(row, value);
    } catch (const store::StoreError&) {
      // The failure belongs to the row that cannot be read; that row is tried again when it is asked for.
      if (m_read.empty()) throw;
      return;
    }
  }
}

}  // namespace ado
