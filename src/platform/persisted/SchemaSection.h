#pragma once

#include <map>
#include <vector>

#include <QByteArray>
#include <QByteArrayView>

#include "persisted/FieldDefinition.h"
#include "persisted/XmlParser.h"

namespace persisted {

/// The schema section of a persisted recordset: which columns the rows have. Elements are told to it as they
/// come; afterwards resolve() puts the columns into their order. Failures are RuntimeError.
class SchemaSection {
 public:
  static constexpr std::size_t mostColumns = 2048;

  void startElement(QByteArrayView space, QByteArrayView name, const XmlAttributes& attributes);
  void endElement();
  void resolve();

  [[nodiscard]] const std::vector<FieldDefinition>& columns() const { return m_columns; }
  /// The place of the column whose values stand in the attribute `name`; -1 when no column does.
  [[nodiscard]] int columnOf(QByteArrayView name) const;
  /// The name of the elements that are rows.
  [[nodiscard]] const QByteArray& rowName() const { return m_rowName; }

 private:
  struct Column {
    FieldDefinition definition;
    QByteArray xmlName;
    /// Where it stands among the columns, from 1; 0 when the file does not say.
    int number = 0;
    /// Whether it stands inside the row's element or beside it, where it only counts when it is named.
    bool inside = true;
  };

  void startRowType(const XmlAttributes& attributes);
  void startColumn(const XmlAttributes& attributes);
  void readType(const XmlAttributes& attributes);
  void pickNamed();

  std::vector<Column> m_found;
  /// What s:attribute elements name, in their order.
  std::vector<QByteArray> m_named;
  QByteArray m_rowName;
  int m_depth = 0;
  /// The depths at which the row's element and the column at hand began; 0 outside.
  int m_rowTypeAt = 0;
  int m_columnAt = 0;

  std::vector<FieldDefinition> m_columns;
  std::map<QByteArray, int> m_places;
};

}  // namespace persisted
