#pragma once

#include <vector>

#include "ado/Field.h"
#include "store/Database.h"

namespace ado {

/// How the rows of a SELECT are read and written.
struct Query {
  static constexpr int none = -1;

  /// What is run: the statement, or one around it that does not read the long binaries.
  QString sql;
  std::vector<FieldDefinition> fields;
  /// For each column, the column that holds the key by which its value is fetched when it is asked for; none
  /// for a column that is copied with its row.
  std::vector<int> keyColumns;

  /// The table that rows are added to, empty when the rows come from more than one.
  QString table;
  /// The column that holds the key of the table's row, or none.
  int tableKey = none;

  [[nodiscard]] bool deferred(int column) const {
    return keyColumns[static_cast<std::size_t>(column)] != none;
  }
};

/// Learns from the engine what `sql`, in the engine's dialect, gives. Throws StoreError when it is wrong.
[[nodiscard]] Query analyse(store::Database& database, const QString& sql);

}  // namespace ado
