#pragma once

#include <QString>
#include <QVariant>

namespace ado {

/// Numbers of ADO's DataTypeEnum for the types that the tables use; Boolean and Decimal only come from files.
enum class DataType {
  Integer = 3,
  Double = 5,
  Date = 7,
  /// -1 for true, 0 for false.
  Boolean = 11,
  /// The digits as text, none lost.
  Decimal = 14,
  VarWChar = 202,
  LongVarBinary = 205,
};

/// What is known of a column beside its values.
struct FieldDefinition {
  QString name;
  DataType type = DataType::VarWChar;
  /// Characters of a text, bytes of anything else.
  int definedSize = 0;
  /// Table and column that the values come from; empty for an expression.
  QString baseTable;
  QString baseColumn;
  /// Part of the table's key.
  bool key = false;
  bool autoIncrement = false;
  bool nullable = true;
  /// The value may be fetched later than its row (long binaries).
  bool mayDefer = false;
};

class Recordset;

/// One column of a recordset at its current row. Owned by the recordset and valid as long as it is open.
class Field {
 public:
  Field(Recordset& owner, int index, FieldDefinition definition);

  [[nodiscard]] const QString& Name() const { return m_definition.name; }
  [[nodiscard]] DataType Type() const { return m_definition.type; }
  [[nodiscard]] const FieldDefinition& Definition() const { return m_definition; }

  /// The value: invalid for Null, else int or qlonglong, QString, QDateTime (local) or QByteArray. Fetching a
  /// long binary whose row has gone or changed its key since throws AdoError.
  [[nodiscard]] QVariant Value() const;
  /// Assigns a value to be written by Update; an invalid variant is Null.
  void setValue(const QVariant& value);

 private:
  Recordset& m_owner;
  int m_index;
  FieldDefinition m_definition;
};

}  // namespace ado
