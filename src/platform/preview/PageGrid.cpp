#include "preview/PageGrid.h"

#include <algorithm>

#include "preview/PageLayout.h"

namespace preview {

namespace {

// Names on a card and the shape of a table can be told apart at this width.
constexpr double legibleWidth = 200;

bool hasIdlePlaces(const PageGrid& grid, int pageCount) {
  const int places = grid.columns * grid.rows;
  return places > PageGrid::fewest && (grid.columns > pageCount || places - grid.columns >= pageCount);
}

struct Candidate {
  PageGrid grid;
  double width = 0;

  [[nodiscard]] bool legible() const { return width >= legibleWidth; }
  [[nodiscard]] int places() const { return grid.columns * grid.rows; }
  [[nodiscard]] bool isBetterThan(const Candidate& other) const {
    if (legible() != other.legible()) return legible();
    if (legible() && places() != other.places()) return places() > other.places();
    return width > other.width;
  }
};

}  // namespace

double pageWidthIn(const PageGrid& grid, QSize view, QSize paper) {
  const double wide = static_cast<double>(view.width() - PageLayout::gap * (grid.columns + 1)) / grid.columns;
  const double high = static_cast<double>(view.height() - PageLayout::gap * (grid.rows + 1)) / grid.rows;
  return std::max(1.0, std::min(wide, high * paper.width() / paper.height()));
}

PageGrid gridFor(QSize view, QSize paper, int pageCount) {
  Candidate best;
  for (int columns = 1; columns <= PageGrid::most; ++columns) {
    for (int rows = 1; columns * rows <= PageGrid::most; ++rows) {
      const PageGrid grid{columns, rows};
      if (columns * rows < PageGrid::fewest || hasIdlePlaces(grid, pageCount)) continue;
      const Candidate candidate{grid, pageWidthIn(grid, view, paper)};
      if (candidate.isBetterThan(best)) best = candidate;
    }
  }
  return best.grid;
}

}  // namespace preview
