#pragma once

#include <QRect>
#include <QSize>

namespace preview {

/// Where the pages lie in the scrolled content, one below the other: arithmetic only, so that a thousand
/// pages cost as much as one. All numbers are logical pixels.
class PageLayout {
 public:
  /// Room around every page.
  static constexpr int gap = 12;

  PageLayout() = default;
  /// Pages of `pageSize`, centred in the width of `viewport`; a content lower than it is centred as well.
  PageLayout(int pageCount, QSize pageSize, QSize viewport);

  [[nodiscard]] int pageCount() const { return m_count; }
  [[nodiscard]] QSize pageSize() const { return m_page; }
  [[nodiscard]] QSize contentSize() const;
  [[nodiscard]] QRect pageRect(int index) const;
  /// The page at height `y`, or the nearest one above it; 0 above the first page.
  [[nodiscard]] int pageAt(int y) const;
  /// Where to scroll so that page `index` starts at the top of the view.
  [[nodiscard]] int scrollOf(int index) const { return pageRect(index).top() - gap; }
  /// The page that a reader looks at when the content is scrolled to `scroll`.
  [[nodiscard]] int currentPage(int scroll) const;

 private:
  [[nodiscard]] int step() const { return m_page.height() + gap; }

  int m_count = 0;
  QSize m_page;
  QSize m_viewport;
  int m_top = gap;
};

}  // namespace preview
