#pragma once

#include <optional>

#include <QByteArrayView>
#include <QVariant>

#include "ado/Field.h"

namespace ado {

/// The type and size of a column as `dt:type`, `rs:dbtype` and `dt:maxLength` name them. A type that is
/// missing or not known is a text.
void setPersistedType(FieldDefinition& column, QByteArrayView type, QByteArrayView dbtype,
                      QByteArrayView maxLength);

/// The value that `text` stands for in a column of that type; nothing for a text that is none.
[[nodiscard]] std::optional<QVariant> persistedValue(QByteArrayView text, DataType type);

}  // namespace ado
