#pragma once

#include <QByteArray>
#include <QString>

#include "report/Document.h"

namespace report {

/// How photos reach the PDF.
enum class PhotoEncoding {
  /// JPEG photos as the bytes they are; others drawn.
  OwnBytes,
  /// Every photo decoded and drawn; kept as the measure that the other way is compared with.
  Drawn,
};

/// The document as a PDF. Throws runtime::RuntimeError when it cannot be made.
[[nodiscard]] QByteArray toPdf(const Document& document, PhotoEncoding photos = PhotoEncoding::OwnBytes);
/// Writes the PDF to `path`, which is replaced only by a complete file. Throws runtime::RuntimeError.
void writePdf(const Document& document, const QString& path, PhotoEncoding photos = PhotoEncoding::OwnBytes);

}  // namespace report
