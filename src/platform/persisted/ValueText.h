#pragma once

#include <optional>

#include <QByteArrayView>
#include <QVariant>

#include "persisted/FieldDefinition.h"

namespace persisted {

/// The type and size of a column as `dt:type`, `rs:dbtype` and `dt:maxLength` name them. A type that is
/// missing or not known is a text.
void setType(FieldDefinition& column, QByteArrayView type, QByteArrayView dbtype, QByteArrayView maxLength);

/// The value that `text` stands for in a column of that type; nothing for a text that is none.
[[nodiscard]] std::optional<QVariant> valueOf(QByteArrayView text, DataType type);

}  // namespace persisted
