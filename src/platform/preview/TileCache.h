#pragma once

#include <algorithm>
#include <utility>

#include <QCache>
#include <QImage>

namespace preview {

/// The tiles painted last, bounded by the bytes of their pixels.
class TileCache {
 public:
  using Key = std::pair<int, int>;  ///< Page and tile.

  static constexpr qsizetype defaultBytes = qsizetype{32} * 1024 * 1024;

  TileCache() : m_tiles(defaultBytes) {}

  /// The tile, or null when it has to be painted. Valid until the next insert.
  [[nodiscard]] const QImage* find(Key key) const { return m_tiles.object(key); }
  /// Keeps `image` and returns it; those not used for longest give way.
  const QImage* insert(Key key, QImage image);
  /// Sees to it that tiles of `bytes` can stand side by side: what is on the screen must not push itself out.
  void makeRoomFor(qsizetype bytes) { m_tiles.setMaxCost(std::max(defaultBytes, bytes)); }
  void clear() { m_tiles.clear(); }

  [[nodiscard]] qsizetype bytes() const { return m_tiles.totalCost(); }
  [[nodiscard]] qsizetype limit() const { return m_tiles.maxCost(); }
  [[nodiscard]] int count() const { return static_cast<int>(m_tiles.count()); }

 private:
  QCache<Key, QImage> m_tiles;
};

}  // namespace preview
