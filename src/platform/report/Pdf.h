#pragma once

#include <functional>
#include <vector>

#include <QByteArray>
#include <QIODevice>
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

/// Tells how many pages are drawn; false stops.
using PageProgress = std::function<bool(int done, int total)>;

/// Writes a PDF of `pages` (from 0, in this order) to `target`; false when `progress` stopped it, with a part
/// written or nothing. Throws runtime::RuntimeError.
[[nodiscard]] bool writePages(const Document& document, const std::vector<int>& pages, QIODevice& target,
                              const PageProgress& progress);

}  // namespace report
