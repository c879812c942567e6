#include "report/PlaceholderSource.h"

namespace report {
namespace {

/// Drawn pictures are decoded for 360 dots an inch; the page's own unit is far finer.
constexpr int twipsPerDot = 4;

/// Whether the file's bytes mean in a PDF what they mean by themselves.
bool goesInAsItIs(const graphics::Picture& picture) {
  const auto& jpeg = picture.jpeg();
  return jpeg && jpeg->common && jpeg->complete && jpeg->orientation == 1;
}

}  // namespace

QImage PlaceholderSource::image(const graphics::PicturePointer& picture, QSize pixels) {
  if (!picture) return {};
  if (!goesInAsItIs(*picture)) return drawn(picture, pixels);
  QImage& placed = m_placeholders[picture->bytes()];
  if (placed.isNull()) {
    placed = placeholderPixel(m_photos.size());
    m_photos.push_back({picture->bytes(), picture->size(), picture->jpeg()->components});
  }
  return placed;
}

QImage PlaceholderSource::drawn(const graphics::PicturePointer& picture, QSize pixels) {
  QImage image = m_decoding.image(picture, pixels / twipsPerDot);
  // A single pixel would be taken for a placeholder.
  return image.size() == QSize(1, 1) ? image.scaled(2, 2) : image;
}

}  // namespace report
