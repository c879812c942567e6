#include <gtest/gtest.h>

#include "preview/PageLayout.h"
#include "preview/TileGrid.h"
#include "preview/Zoom.h"

using preview::PageLayout;
using preview::TileGrid;

TEST(Zoom, StepsGoToTheNextPercentageThatLooksDifferent) {
  EXPECT_EQ(preview::percentAbove(100), 125);
  EXPECT_EQ(preview::percentBelow(100), 75);
  EXPECT_EQ(preview::percentAbove(99.8), 125);
  EXPECT_EQ(preview::percentBelow(100.3), 75);
  EXPECT_EQ(preview::percentAbove(137), 150);
  EXPECT_EQ(preview::percentBelow(137), 125);
  EXPECT_EQ(preview::percentAbove(800), 800);
  EXPECT_EQ(preview::percentBelow(12), 25);
}

TEST(PageLayout, PagesStandBelowEachOtherInTheMiddle) {
  const PageLayout layout(3, {100, 200}, {300, 150});
  EXPECT_EQ(layout.contentSize(), QSize(300, 4 * PageLayout::gap + 3 * 200));
  EXPECT_EQ(layout.pageRect(0), QRect(100, PageLayout::gap, 100, 200));
  EXPECT_EQ(layout.pageRect(2).top(), layout.pageRect(1).bottom() + 1 + PageLayout::gap);
  EXPECT_EQ(layout.scrollOf(0), 0);
  for (int page = 0; page < 3; ++page) {
    EXPECT_EQ(layout.pageAt(layout.pageRect(page).top()), page);
    EXPECT_EQ(layout.pageAt(layout.pageRect(page).bottom()), page);
    EXPECT_EQ(layout.currentPage(layout.scrollOf(page)), page);
  }
  EXPECT_EQ(layout.pageAt(-5), 0);
  EXPECT_EQ(layout.pageAt(100000), 2);
}

TEST(PageLayout, ScrollingToTheEndReachesTheLastPage) {
  const PageLayout layout(10, {100, 100}, {400, 500});
  const int end = layout.contentSize().height() - 500;
  EXPECT_LT(layout.currentPage(end - 1), 9);
  EXPECT_EQ(layout.currentPage(end), 9);
}

TEST(PageLayout, AThousandPagesAtTheLargestZoomStayInsideAScrollBar) {
  const PageLayout layout(1000, {6350, 8980}, {1000, 800});
  EXPECT_EQ(layout.pageAt(layout.pageRect(999).top()), 999);
  EXPECT_GT(layout.pageRect(999).top(), 999 * 8980);
}

TEST(TileGrid, AHugePageIsCutIntoSquaresThatCoverItOnce) {
  const QSize page(6350, 8980);
  const TileGrid grid(page);
  const std::vector<int> all = grid.touchedBy(QRect(QPoint(), page));
  qint64 pixels = 0;
  for (const int tile : all) pixels += qint64{grid.rect(tile).width()} * grid.rect(tile).height();
  EXPECT_EQ(pixels, qint64{page.width()} * page.height());
  const int side = TileGrid::squareSide;
  EXPECT_EQ(grid.touchedBy({side - 1, side - 1, 2, 2}).size(), 4u);
  EXPECT_EQ(grid.touchedBy({side, side, side, side}).size(), 1u);
}
