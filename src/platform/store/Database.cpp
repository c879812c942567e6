#include "store/Database.h"

#include <algorithm>

namespace store {

namespace {

/// More than any loop of ours alternates between.
constexpr std::size_t cachedStatements = 16;

}  // namespace

std::shared_ptr<Statement> Database::statement(const QString& sql) {
  const auto found = std::find_if(m_cache.begin(), m_cache.end(), [&sql](const Prepared& entry) {
    return entry.statement.use_count() == 1 && entry.sql == sql;
  });
  if (found != m_cache.end()) {
    m_cache.splice(m_cache.begin(), m_cache, found);
    return found->statement;
  }
  std::shared_ptr<Statement> made = prepare(sql);
  m_cache.push_front({sql, made});
  if (m_cache.size() > cachedStatements) m_cache.pop_back();
  return made;
}

int Database::run(const QString& sql) {
  return run(sql, {});
}

int Database::run(const QString& sql, const QVariantList& values) {
  const std::shared_ptr<Statement> running = statement(sql);
  const StatementScope scope(*running);
  for (int i = 0; i < values.size(); ++i) running->bind(i + 1, values.at(i));
  const qint64 before = totalChanges();
  while (running->step()) {
  }
  return static_cast<int>(totalChanges() - before);
}

}  // namespace store
