#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace graphics {

/// Why an enhanced metafile cannot be shown, in words for the user.
struct EmfFailure {
  QString reason;
};

/// Whether the bytes begin as an enhanced metafile.
[[nodiscard]] bool isEmf(QByteArrayView bytes);

/// An enhanced metafile made a drawing in SVG.
struct EmfDrawing {
  QByteArray svg;
  /// The pixels that it should be drawn with: its proportions at a side of 1,200.
  QSize size;
};

/// Checks the chain of the metafile's records and has it converted. Throws EmfFailure when a record or the
/// end is missing, when its bounds are inside out or over 20,000 pixels, and when the converter is not there,
/// fails, draws nothing or takes longer than five seconds.
[[nodiscard]] EmfDrawing convertEmf(const QByteArray& bytes);
/// Draws it on white with `size` pixels.
[[nodiscard]] QImage drawEmf(const QByteArray& svg, QSize size);

}  // namespace graphics
