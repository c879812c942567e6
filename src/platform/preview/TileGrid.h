#pragma once

#include <vector>

#include <QRect>
#include <QSize>

namespace preview {

/// How a page's pixels are cut for painting: at ordinary zooms the page is one tile, so that it is painted
/// once; a page that is larger than a screen is cut into squares, so that only what is seen takes memory.
/// All numbers are device pixels.
class TileGrid {
 public:
  static constexpr int squareSide = 1024;
  /// Pixels up to which a page stays whole.
  static constexpr qint64 wholePagePixels = qint64{6} * 1024 * 1024;

  TileGrid() = default;
  explicit TileGrid(QSize page);

  [[nodiscard]] QSize page() const { return m_page; }
  /// The part of the page that tile `index` covers.
  [[nodiscard]] QRect rect(int index) const;
  /// The tiles that `part` of the page touches, in reading order.
  [[nodiscard]] std::vector<int> touchedBy(const QRect& part) const;

 private:
  QSize m_page;
  QSize m_tile{1, 1};
  int m_columns = 1;
};

}  // namespace preview
