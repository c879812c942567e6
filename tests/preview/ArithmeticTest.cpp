#include <gtest/gtest.h>

#include "preview/PageGrid.h"
#include "preview/PageHistory.h"
#include "preview/PageLayout.h"
#include "preview/TileGrid.h"
#include "preview/Zoom.h"

using preview::PageGrid;
using preview::PageHistory;
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

TEST(PageLayout, SeveralPagesStandInRows) {
  const PageLayout layout(7, {100, 200}, {400, 500}, 3);
  const int gap = PageLayout::gap;
  EXPECT_EQ(layout.pageRect(2).right() - layout.pageRect(0).left() + 1, 3 * 100 + 2 * gap);
  EXPECT_EQ(layout.pageRect(0).left() + layout.pageRect(2).right() + 1, 400) << "centred";
  EXPECT_EQ(layout.pageRect(3).topLeft(), layout.pageRect(0).topLeft() + QPoint(0, 200 + gap));
  EXPECT_EQ(layout.contentSize().height(), 3 * 200 + 4 * gap);
  EXPECT_EQ(layout.pageAt(layout.pageRect(5).top()), 3);
  EXPECT_EQ(layout.lastPageAt(layout.pageRect(5).top()), 5);
  EXPECT_EQ(layout.lastPageAt(layout.pageRect(6).top()), 6);
  for (int page = 0; page < 7; ++page) EXPECT_EQ(layout.pageNear(layout.pageRect(page).center()), page);
  EXPECT_EQ(layout.pageNear({399, layout.pageRect(6).top()}), 6) << "beside the last page";
}

TEST(PageGrid, ShowsAsManyPagesAsTheWindowHasRoomFor) {
  const QSize paper(11906, 16838);
  EXPECT_EQ(preview::gridFor({1000, 950}, paper, 300), (PageGrid{4, 3}));
  EXPECT_EQ(preview::gridFor({450, 450}, paper, 300), (PageGrid{2, 1}));
  EXPECT_EQ(preview::gridFor({200, 150}, paper, 300), (PageGrid{2, 1})) << "too small for any";
  EXPECT_EQ(preview::gridFor({1000, 950}, paper, 2), (PageGrid{2, 1}));
  EXPECT_EQ(preview::gridFor({1000, 950}, paper, 1).columns, 2);
  for (const QSize view :
       {QSize(1, 1), QSize(700, 500), QSize(1900, 1000), QSize(4000, 500), QSize(400, 3000)}) {
    const PageGrid grid = preview::gridFor(view, paper, 1000);
    EXPECT_GE(grid.columns * grid.rows, 2);
    EXPECT_LE(grid.columns * grid.rows, 12);
    const double width = preview::pageWidthIn(grid, view, paper);
    EXPECT_LE(width * grid.columns, std::max(view.width(), grid.columns));
    EXPECT_LE(width * grid.rows, std::max(view.height(), grid.rows));
  }
}

TEST(PageHistory, GoesBackAndForwardUntilAnotherPageIsVisited) {
  PageHistory history;
  EXPECT_EQ(history.goBack(3), 3);
  history.visit(0, 4);
  history.visit(4, 4);
  history.visit(5, 9);  // Scrolled from 4 to 5 in between.
  EXPECT_EQ(history.goBack(9), 5);
  EXPECT_EQ(history.goBack(5), 0);
  EXPECT_FALSE(history.canGoBack());
  EXPECT_EQ(history.goForward(0), 5);
  EXPECT_EQ(history.goForward(5), 9);
  EXPECT_EQ(history.goBack(9), 5);
  history.visit(5, 7);
  EXPECT_FALSE(history.canGoForward());
  for (int page = 0; page < 2 * PageHistory::longest; ++page) history.visit(page, page + 1);
  int steps = 0;
  for (int page = 2 * PageHistory::longest; history.canGoBack(); ++steps) page = history.goBack(page);
  EXPECT_EQ(steps, PageHistory::longest);
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
