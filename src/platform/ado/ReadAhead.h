#pragma once

#include <cstddef>
#include <functional>
#include <map>

#include <QString>
#include <QVariant>

#include "store/Database.h"

namespace ado {

/// Fetches the long binaries of one column that were left in the database. Rows that are asked for one after
/// the other are fetched some at a time under one lock, because every lock costs several calls of the system.
class ReadAhead {
 public:
  /// The key of a row; invalid for a row that has nothing to fetch.
  using KeyOfRow = std::function<QVariant(std::size_t row)>;

  /// `sql` selects the value by the key as its one parameter.
  explicit ReadAhead(QString sql) : m_sql(std::move(sql)) {}

  /// The value in `row` of `rowCount` rows. False when the database has no row of that key any more. Throws
  /// StoreError.
  [[nodiscard]] bool fetch(store::Database& database, std::size_t row, std::size_t rowCount,
                           const KeyOfRow& keyOfRow, QVariant& value);

 private:
  void readFrom(store::Database& database, std::size_t row, std::size_t rowCount, const KeyOfRow& keyOfRow);

  QString m_sql;
  /// Values that have been read and not been asked for yet.
  std::map<std::size_t, QVariant> m_read;
  std::size_t m_expected = 0;
  std::size_t m_batch = 1;
};

}  // namespace ado
