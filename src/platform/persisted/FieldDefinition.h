#pragma once

#include <QString>

namespace persisted {

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

}  // namespace persisted
