#include "preview/PageLayout.h"

#include <algorithm>

namespace preview {

PageLayout::PageLayout(int pageCount, QSize pageSize, QSize viewport, int columns)
    : m_count(pageCount), m_page(pageSize.expandedTo({1, 1})), m_viewport(viewport), m_columns(columns) {
  const int pages = rows() * step() - gap;
  m_top = std::max(gap, (m_viewport.height() - pages) / 2);
}

QSize PageLayout::contentSize() const {
  const int width = std::max(m_viewport.width(), m_columns * stride() + gap);
  return {width, std::max(m_viewport.height(), m_top + rows() * step())};
}

int PageLayout::left() const {
  return (contentSize().width() - m_columns * stride() + gap) / 2;
}

QRect PageLayout::pageRect(int index) const {
  return {QPoint(left() + index % m_columns * stride(), m_top + index / m_columns * step()), m_page};
}

int PageLayout::pageAt(int y) const {
  if (m_count == 0) return 0;
  return std::clamp((y - m_top) / step(), 0, rows() - 1) * m_columns;
}

int PageLayout::lastPageAt(int y) const {
  return std::clamp(pageAt(y) + m_columns - 1, 0, std::max(0, m_count - 1));
}

int PageLayout::pageNear(QPoint place) const {
  const int column = std::clamp((place.x() - left()) / stride(), 0, m_columns - 1);
  return std::min(pageAt(place.y()) + column, lastPageAt(place.y()));
}

int PageLayout::currentPage(int scroll) const {
  const int end = contentSize().height() - m_viewport.height();
  // The last pages may all fit below the one at the top, and could never be reached.
  if (end > 0 && scroll >= end) return std::max(0, m_count - 1);
  return pageAt(scroll + gap + std::min(m_viewport.height(), m_page.height()) / 2);
}

}  // namespace preview
