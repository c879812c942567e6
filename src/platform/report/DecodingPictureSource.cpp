#include <bit>

#include <QCache>

#include "report/PagePainter.h"

namespace report {
namespace {

/// A picture at one of a few sizes, so that scrolling and small zoom steps find it again.
struct SizedPicture {
  const graphics::Picture* picture = nullptr;
  /// Pixels of the longer side, a power of two.
  unsigned side = 0;

  bool operator==(const SizedPicture&) const = default;
};

std::size_t qHash(const SizedPicture& key, std::size_t start) {
  return qHashMulti(start, key.picture, key.side);
}

struct Decoded {
  /// Tells whether the address still is the picture that was decoded.
  std::weak_ptr<const graphics::Picture> picture;
  QImage image;
};

unsigned bucketOf(QSize pixels) {
  constexpr int smallest = 16;
  constexpr int largest = 1 << 15;
  return std::bit_ceil(
      static_cast<unsigned>(std::clamp(std::max(pixels.width(), pixels.height()), smallest, largest)));
}

QImage decode(const graphics::Picture& picture, unsigned side) {
  const int longest = static_cast<int>(side);
  return picture.decode(picture.size().scaled(longest, longest, Qt::KeepAspectRatio));
}

}  // namespace

class DecodingPictureSource::Cache : public QCache<SizedPicture, Decoded> {
 public:
  using QCache::QCache;
};

DecodingPictureSource::DecodingPictureSource(qsizetype cacheBytes)
    : m_cache(std::make_unique<Cache>(cacheBytes)) {}

DecodingPictureSource::~DecodingPictureSource() = default;

QImage DecodingPictureSource::image(const graphics::PicturePointer& picture, QSize pixels) {
  if (!picture) return {};
  const SizedPicture key{picture.get(), bucketOf(pixels)};
  if (const Decoded* found = m_cache->object(key); found != nullptr && found->picture.lock() == picture) {
    return found->image;
  }
  QImage image = decode(*picture, key.side);
  const qsizetype cost = std::max<qsizetype>(image.sizeInBytes(), 1);
  m_cache->insert(key, new Decoded{picture, image}, cost);
  return image;
}

}  // namespace report
