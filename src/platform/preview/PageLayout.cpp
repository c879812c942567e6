#include "preview/PageLayout.h"

#include <algorithm>

namespace preview {

PageLayout::PageLayout(int pageCount, QSize pageSize, QSize viewport)
    : m_count(pageCount), m_page(pageSize.expandedTo({1, 1})), m_viewport(viewport) {
  const int pages = m_count * step() - gap;
  m_top = std::max(gap, (m_viewport.height() - pages) / 2);
}

QSize PageLayout::contentSize() const {
  const int width = std::max(m_viewport.width(), m_page.width() + 2 * gap);
  return {width, std::max(m_viewport.height(), m_top + m_count * step())};
}

QRect PageLayout::pageRect(int index) const {
  return {QPoint((contentSize().width() - m_page.width()) / 2, m_top + index * step()), m_page};
}

int PageLayout::pageAt(int y) const {
  if (m_count == 0) return 0;
  return std::clamp((y - m_top) / step(), 0, m_count - 1);
}

int PageLayout::currentPage(int scroll) const {
  const int end = contentSize().height() - m_viewport.height();
  // The last pages may all fit below the one at the top, and could never be reached.
  if (end > 0 && scroll >= end) return std::max(0, m_count - 1);
  return pageAt(scroll + gap + std::min(m_viewport.height(), m_page.height()) / 2);
}

}  // namespace preview
