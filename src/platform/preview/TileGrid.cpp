#include "preview/TileGrid.h"

namespace preview {

TileGrid::TileGrid(QSize page) : m_page(page.expandedTo({1, 1})), m_tile(m_page) {
  if (qint64{m_page.width()} * m_page.height() > wholePagePixels) m_tile = {squareSide, squareSide};
  m_columns = (m_page.width() + m_tile.width() - 1) / m_tile.width();
}

QRect TileGrid::rect(int index) const {
  const QPoint corner(index % m_columns * m_tile.width(), index / m_columns * m_tile.height());
  return QRect(corner, m_tile).intersected(QRect(QPoint(), m_page));
}

std::vector<int> TileGrid::touchedBy(const QRect& part) const {
  std::vector<int> touched;
  const QRect seen = part.intersected(QRect(QPoint(), m_page));
  if (seen.isEmpty()) return touched;
  for (int row = seen.top() / m_tile.height(); row <= seen.bottom() / m_tile.height(); ++row) {
    for (int column = seen.left() / m_tile.width(); column <= seen.right() / m_tile.width(); ++column) {
      touched.push_back(row * m_columns + column);
    }
  }
  return touched;
}

}  // namespace preview
