#pragma once

#include <QVariant>

#include "ado/Field.h"
#include "store/Statement.h"

/// What the declared type of a column means for its field.
namespace ado {

/// The definition of a column of a table. For an expression, whose type the engine does not know, it is a
/// text until a value says otherwise.
[[nodiscard]] FieldDefinition definitionOf(const store::ColumnInfo& column);
/// The type that fits a value of an expression.
[[nodiscard]] DataType typeOfValue(const QVariant& stored);

/// A stored value as a field of that definition gives it.
[[nodiscard]] QVariant fromStored(const QVariant& stored, const FieldDefinition& definition);
/// The same of a text in UTF-8.
[[nodiscard]] QVariant fromStoredText(QByteArrayView stored, const FieldDefinition& definition);
/// A value that was assigned to a field, in the field's own type. Throws AdoError for a value that cannot be
/// converted or is too long.
[[nodiscard]] QVariant converted(const QVariant& assigned, const FieldDefinition& definition);
/// A value in the field's own type as it is stored.
[[nodiscard]] QVariant toStored(const QVariant& value);

}  // namespace ado
