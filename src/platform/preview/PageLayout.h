#pragma once

#include <QRect>
#include <QSize>

namespace preview {

/// Where the pages lie in the scrolled content, in rows of one or more: arithmetic only, so that a thousand
/// pages cost as much as one. All numbers are logical pixels.
class PageLayout {
 public:
  /// Room around every page.
  static constexpr int gap = 12;

  PageLayout() = default;
  /// Pages of `pageSize`, `columns` to a row, centred in the width of `viewport`; a content lower than it is
  /// centred as well.
  PageLayout(int pageCount, QSize pageSize, QSize viewport, int columns = 1);

  [[nodiscard]] int pageCount() const { return m_count; }
  [[nodiscard]] int columns() const { return m_columns; }
  [[nodiscard]] QSize pageSize() const { return m_page; }
  [[nodiscard]] QSize contentSize() const;
  [[nodiscard]] QRect pageRect(int index) const;
  /// The first page of the row at height `y`, or of the nearest row above it; 0 above the first row.
  [[nodiscard]] int pageAt(int y) const;
  /// The last page of that row.
  [[nodiscard]] int lastPageAt(int y) const;
  /// The page at `place`, or the nearest one of that row.
  [[nodiscard]] int pageNear(QPoint place) const;
  /// Where to scroll so that the row of page `index` starts at the top of the view.
  [[nodiscard]] int scrollOf(int index) const { return pageRect(index).top() - gap; }
  /// The page that a reader looks at when the content is scrolled to `scroll`.
  [[nodiscard]] int currentPage(int scroll) const;

 private:
  [[nodiscard]] int step() const { return m_page.height() + gap; }
  [[nodiscard]] int stride() const { return m_page.width() + gap; }
  [[nodiscard]] int rows() const { return (m_count + m_columns - 1) / m_columns; }
  [[nodiscard]] int left() const;

  int m_count = 0;
  QSize m_page;
  QSize m_viewport;
  int m_columns = 1;
  int m_top = gap;
};

}  // namespace preview
