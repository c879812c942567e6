#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>

namespace persisted {

/// The bytes that hexadecimal digits of either case stand for, white space anywhere between them left out;
/// nothing for an odd number of digits and for any other character.
[[nodiscard]] std::optional<QByteArray> bytesOfHex(QByteArrayView text);

}  // namespace persisted
