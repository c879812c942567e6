#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

/// The system's ANSI code page: 936 (GBK), the one that settings are stored in.
namespace runtime {

/// The text in the code page; nothing when it holds a character that the code page lacks.
[[nodiscard]] std::optional<QByteArray> toCodePage(const QString& text);
/// The text behind the bytes; a half character at the end is dropped, other bytes that are no character give
/// U+FFFD.
[[nodiscard]] QString fromCodePage(const QByteArray& bytes);

}  // namespace runtime
