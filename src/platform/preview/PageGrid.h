#pragma once

#include <QSize>

namespace preview {

/// How many pages are shown beside and below each other.
struct PageGrid {
  int columns = 1;
  int rows = 1;

  static constexpr int fewest = 2;
  static constexpr int most = 12;

  bool operator==(const PageGrid&) const = default;
};

/// The width at which a grid of pages of the proportions of `paper` fills `view`, in pixels of the view.
[[nodiscard]] double pageWidthIn(const PageGrid& grid, QSize view, QSize paper);
/// The grid that shows as many pages as can still be told apart, from 2 to 12 and no more than there are; in
/// a small view the one with the largest pages.
[[nodiscard]] PageGrid gridFor(QSize view, QSize paper, int pageCount);

}  // namespace preview
