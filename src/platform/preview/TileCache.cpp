#include "preview/TileCache.h"

namespace preview {

const QImage* TileCache::insert(Key key, QImage image) {
  const qsizetype bytes = image.sizeInBytes();
  auto* kept = new QImage(std::move(image));  // NOLINT: QCache owns it.
  return m_tiles.insert(key, kept, bytes) ? kept : nullptr;
}

}  // namespace preview
