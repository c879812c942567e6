#pragma once

#include <QString>
#include <QVariant>

#include "persisted/FieldDefinition.h"

namespace ado {

using persisted::DataType;
using persisted::FieldDefinition;

class RowSource;

/// One column of a recordset at its current row. Owned by its rows, and valid as long as
/// the recordset is open.
class Field {
 public:
  Field(RowSource& rows, int index, FieldDefinition definition);

  [[nodiscard]] const QString& Name() const { return m_definition.name; }
  [[nodiscard]] DataType Type() const { return m_definition.type; }
  [[nodiscard]] const FieldDefinition& Definition() const { return m_definition; }

  /// The value: invalid for Null, else int or qlonglong, QString, QDateTime (local) or QByteArray. Fetching a
  /// long binary whose row has gone or changed its key since throws AdoError.
  [[nodiscard]] QVariant Value() const;
  /// Assigns a value to be written by Update; an invalid variant is Null.
  void setValue(const QVariant& value);

 private:
  RowSource& m_rows;
  int m_index;
  FieldDefinition m_definition;
};

}  // namespace ado
