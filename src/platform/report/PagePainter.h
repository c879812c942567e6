#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

#include "report/Document.h"

namespace report {

/// Turns a picture into an image at drawing time. The screen decodes through a bounded cache, the PDF writer
/// hands out placeholders that it replaces by the photos' own bytes.
class PictureSource {
 public:
  PictureSource() = default;
  PictureSource(const PictureSource&) = delete;
  PictureSource& operator=(const PictureSource&) = delete;
  virtual ~PictureSource() = default;

  /// The image to draw for `picture` at about `pixels` device pixels; a null image draws an empty frame.
  virtual QImage image(const graphics::PicturePointer& picture, QSize pixels) = 0;
};

/// Decodes on demand and keeps the last images up to a number of bytes.
class DecodingPictureSource : public PictureSource {
 public:
  explicit DecodingPictureSource(qsizetype cacheBytes = 32 * 1024 * 1024);
  ~DecodingPictureSource() override;
  QImage image(const graphics::PicturePointer& picture, QSize pixels) override;

 private:
  class Cache;
  std::unique_ptr<Cache> m_cache;
};

/// The one painter for screen, printer and PDF: draws the primitives with a painter whose unit is one twip.
/// Leaves the painter's state as it was.
void paintPrimitives(QPainter& painter, const std::vector<Primitive>& primitives, PictureSource& pictures);
/// Draws page `index` of `document`; the painter's origin is the paper's top left corner.
void paintPage(QPainter& painter, const Document& document, int index, PictureSource& pictures);

}  // namespace report
