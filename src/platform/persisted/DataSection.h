#pragma once

#include <deque>
#include <vector>

#include <QVariant>

#include "persisted/SchemaSection.h"
#include "persisted/XmlParser.h"

namespace persisted {

/// The data section of a persisted recordset: elements are told to it as they come, and it makes rows of
/// them. Failures are RuntimeError that names the record and
/// the column.
class DataSection {
 public:
  using Row = std::vector<QVariant>;

  /// `rowSpace` is the namespace of the rows. The schema must outlive this object.
  DataSection(const SchemaSection& schema, QByteArray rowSpace)
      : m_schema(schema), m_rowSpace(std::move(rowSpace)) {}

  void startElement(QByteArrayView space, QByteArrayView name, const XmlAttributes& attributes);
  void endElement();

  /// Rows that are complete and have not been taken.
  [[nodiscard]] std::deque<Row>& rows() { return m_rows; }

 private:
  /// The elements around a row.
  enum class Part { Insert, Update, Original, Delete, Row };

  [[nodiscard]] Part partOf(QByteArrayView space, QByteArrayView name) const;
  void startRow(const XmlAttributes& attributes);
  void readValues(Row& row, const XmlAttributes& attributes) const;
  void setNulls(Row& row, QByteArrayView names) const;
  [[nodiscard]] bool isWithin(Part part) const;

  const SchemaSection& m_schema;
  QByteArray m_rowSpace;
  std::vector<Part> m_open;
  /// The old row of a change.
  Row m_original;
  std::deque<Row> m_rows;
  int m_rowNumber = 0;
};

}  // namespace persisted
