#pragma once

#include <functional>
#include <vector>

#include <QByteArray>

#include "persisted/FieldDefinition.h"
#include "runtime/ReplacingFile.h"

namespace persisted {

/// Writes a recordset as ADO's persisted XML, row after row: UTF-8 without a mark, CR LF, tabs, single
/// quotes. The file takes the place of an older one only when finish() is done. Failures are RuntimeError:
/// they name record and column, or come from the file.
class Writer {
 public:
  /// The value of a column in a row that is written.
  using ValueOf = std::function<QVariant(int column)>;

  Writer(const QString& path, std::vector<FieldDefinition> columns);

  void row(const ValueOf& value);
  /// A row that is not in the database yet.
  void pendingRow(const ValueOf& value);
  void finish();

 private:
  void writeSchema();
  void writeRow(const QByteArray& indent, const ValueOf& value);
  void appendValue(std::size_t column, const QVariant& value);
  void appendText(std::size_t column, const QString& text);
  void flush();

  runtime::ReplacingFile m_file;
  std::vector<FieldDefinition> m_columns;
  /// The columns' names in the XML.
  std::vector<QByteArray> m_names;
  int m_row = 0;
  QByteArray m_text;
};

/// The names that columns have as attributes: their own when it is a plain one that none before has, else one
/// made of their place.
[[nodiscard]] std::vector<QByteArray> attributeNames(const std::vector<FieldDefinition>& columns);

}  // namespace persisted
