#pragma once

#include <cstdint>

#include <QDate>
#include <QString>

/// The only ways to paste a value into a statement.
namespace sql {

/// `text` between single quotes. Throws runtime::RuntimeError (InvalidCall) when it holds a single quote or a
/// NUL: such a statement fails by rule and never runs as something else.
[[nodiscard]] QString quoted(const QString& text);
/// Decimal digits with an optional sign.
[[nodiscard]] QString number(std::int64_t value);
/// `text`, which must be decimal digits with an optional sign; throws TypeMismatch otherwise.
[[nodiscard]] QString number(const QString& text);
/// `#2026-11-15#`.
[[nodiscard]] QString date(const QDate& day);

}  // namespace sql
