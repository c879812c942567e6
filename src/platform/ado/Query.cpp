#include "ado/Query.h"

#include <algorithm>

#include <QStringList>

#include "ado/FieldTypes.h"
#include "store/Dialect.h"

namespace ado {

namespace {

std::vector<store::ColumnInfo> columnsOf(store::Database& database, const QString& sql) {
  const std::shared_ptr<store::Statement> statement = database.statement(sql);
  std::vector<store::ColumnInfo> columns;
  columns.reserve(static_cast<std::size_t>(statement->columnCount()));
  for (int i = 0; i < statement->columnCount(); ++i) columns.push_back(statement->column(i));
  return columns;
}

/// The column that holds the key of the row that values of `table` come from. A table that the statement
/// names twice gives two rows, and it cannot be told which key belongs to which.
int keyColumnOf(const QString& table, const std::vector<store::ColumnInfo>& columns, const QString& sql) {
  const auto isKey = [&table](const store::ColumnInfo& column) {
    return column.rowKey && column.baseTable == table;
  };
  const auto found = std::find_if(columns.begin(), columns.end(), isKey);
  if (found == columns.end() || store::mentions(sql, table) != 1) return Query::none;
  return static_cast<int>(found - columns.begin());
}

/// The one table that every column comes from.
QString onlyTable(const std::vector<store::ColumnInfo>& columns, const QString& sql) {
  if (columns.empty()) return {};
  const QString& table = columns.front().baseTable;
  const bool same = std::all_of(columns.begin(), columns.end(), [&table](const store::ColumnInfo& column) {
    return column.baseTable == table;
  });
  return same && !table.isEmpty() && store::mentions(sql, table) == 1 ? table : QString();
}

/// The engine reads a column's bytes when a statement names it, unless it is only asked for its type. The
/// statement stands inside with its columns numbered, and the engine merges the two into one.
QString withoutDeferred(const QString& sql, const Query& query) {
  QStringList names;
  QStringList wanted;
  for (int i = 0; i < static_cast<int>(query.fields.size()); ++i) {
    const QString name = QStringLiteral("c%1").arg(i);
    names.append(name);
    wanted.append(query.deferred(i) ? QStringLiteral("typeof(%1)").arg(name) : name);
  }
  return QStringLiteral("WITH r(%1) AS (").arg(names.join(u',')) + sql + QStringLiteral(") SELECT ") +
         wanted.join(u',') + QStringLiteral(" FROM r");
}

}  // namespace

Query analyse(store::Database& database, const QString& sql) {
  const std::vector<store::ColumnInfo> columns = columnsOf(database, sql);
  Query query;
  query.sql = sql;
  for (const store::ColumnInfo& column : columns) {
    const FieldDefinition& definition = query.fields.emplace_back(definitionOf(column));
    query.keyColumns.push_back(definition.mayDefer ? keyColumnOf(column.baseTable, columns, sql)
                                                   : Query::none);
  }
  query.table = onlyTable(columns, sql);
  if (!query.table.isEmpty()) query.tableKey = keyColumnOf(query.table, columns, sql);
  const bool anyDeferred = std::any_of(query.keyColumns.begin(), query.keyColumns.end(),
                                       [](int column) { return column != Query::none; });
  if (anyDeferred) query.sql = withoutDeferred(sql, query);
  return query;
}

}  // namespace ado
