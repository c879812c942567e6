#pragma once

#include <vector>

#include <QHash>
#include <QIODevice>
#include <QImage>

#include "report/PagePainter.h"

namespace report {

/// Hands out one pixel for every JPEG photo, coloured with the photo's number, and remembers the photos.
/// Other pictures are decoded.
class PlaceholderSource : public PictureSource {
 public:
  struct Photo {
    QByteArray bytes;
    QSize size;
    int components = 0;
  };

  QImage image(const graphics::PicturePointer& picture, QSize pixels) override;
  /// By number. The same bytes have one number however often they are drawn.
  [[nodiscard]] const std::vector<Photo>& photos() const { return m_photos; }

 private:
  QImage drawn(const graphics::PicturePointer& picture, QSize pixels);

  std::vector<Photo> m_photos;
  QHash<QByteArray, QImage> m_placeholders;
  DecodingPictureSource m_decoding;
};

/// Copies `pdf` to `target` with every placeholder replaced by its photo's own bytes and the rest packed.
/// False, and nothing written, when the placeholders in it are not the ones that were handed out. Throws
/// runtime::RuntimeError.
[[nodiscard]] bool replacePlaceholders(const QByteArray& pdf,
                                       const std::vector<PlaceholderSource::Photo>& photos,
                                       QIODevice& target);

}  // namespace report
