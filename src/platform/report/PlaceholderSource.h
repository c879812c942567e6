#pragma once

#include <vector>

#include <QHash>

#include "report/PagePainter.h"
#include "report/PhotoStreams.h"

namespace report {

/// Hands out one pixel for every JPEG photo, coloured with the photo's number, and remembers the photos.
/// Other pictures are decoded.
class PlaceholderSource : public PictureSource {
 public:
  QImage image(const graphics::PicturePointer& picture, QSize pixels) override;
  /// By number. The same bytes have one number however often they are drawn.
  [[nodiscard]] const std::vector<EmbeddedPhoto>& photos() const { return m_photos; }

 private:
  QImage drawn(const graphics::PicturePointer& picture, QSize pixels);

  std::vector<EmbeddedPhoto> m_photos;
  QHash<QByteArray, QImage> m_placeholders;
  DecodingPictureSource m_decoding;
};

}  // namespace report
