#pragma once

#include <cstdint>
#include <optional>

#include <QDateTime>
#include <QString>
#include <QVariant>

/// The one place that turns values into other types, the way the record classes assume. A database value is a
/// QVariant: invalid for Null, else QString, int or qlonglong, double, QDateTime or QByteArray.
///
/// Every conversion throws RuntimeError: InvalidUseOfNull for Null, TypeMismatch for a text that is not of
/// the wanted form, Overflow for a number that does not fit.
namespace runtime {

[[nodiscard]] inline bool isNull(const QVariant& value) {
  return !value.isValid();
}

[[nodiscard]] QString toText(const QVariant& value);
/// As toText, but an empty text for Null.
[[nodiscard]] QString toTextOrEmpty(const QVariant& value);
/// Fractions are rounded, halves to the even neighbour.
[[nodiscard]] std::int16_t toInt16(const QVariant& value);
[[nodiscard]] std::int32_t toInt32(const QVariant& value);
[[nodiscard]] QDateTime toDateTime(const QVariant& value);

/// Whether `text` is a decimal number: optional sign, digits, point and exponent, blanks around it.
[[nodiscard]] bool isNumeric(const QString& text);
/// Reads `2026-2-3`, `2026/2/3` or `2026年2月3日`, each with an optional `8:05` or `8:05:09` behind a blank;
/// nothing for any other text and for days or times that do not exist.
[[nodiscard]] std::optional<QDateTime> parseDateTime(const QString& text);

}  // namespace runtime
