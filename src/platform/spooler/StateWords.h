#pragma once

#include <QString>
#include <QStringList>

namespace spooler {

/// The reasons that a printer gives for its state, as keywords of the Internet Printing Protocol
/// ("media-empty-error"), in the user's language and joined; those without a meaning for the user are left
/// out.
[[nodiscard]] QString printerComplaint(const QStringList& reasons);
/// The same of the reasons of a job ("aborted-by-system").
[[nodiscard]] QString jobReason(const QStringList& reasons);
/// `text` cut to at most `bytes` bytes of UTF-8, never within a character.
[[nodiscard]] QByteArray cutUtf8(const QString& text, qsizetype bytes);

}  // namespace spooler
