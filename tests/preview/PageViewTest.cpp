#include <gtest/gtest.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "SampleReport.h"
#include "preview/PageView.h"

using preview::PageView;
using preview::Zoom;

namespace {

constexpr QSize viewSize{800, 600};

class PageViewTest : public ::testing::Test {
 protected:
  void open(int pages, const Zoom& zoom = {Zoom::Fit::Width, 100}) {
    view = std::make_unique<PageView>(sampleDocument(pages));
    view->resize(viewSize);
    view->setZoom(zoom);
    view->show();
    settle();
  }

  /// Lets the view paint all that it puts off.
  static void settle() { QTest::qWait(60); }

  QImage grabbed() const { return view->viewport()->grab().toImage(); }

  QPoint wheelPlace() const { return {view->viewport()->width() / 2, view->viewport()->height() / 5}; }

  void wheel(int notches, Qt::KeyboardModifiers modifiers) const {
    const QPointF place = wheelPlace();
    QWheelEvent event(place, view->viewport()->mapToGlobal(place), {}, QPoint(0, notches * 120), Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view->viewport(), &event);
  }

  std::unique_ptr<PageView> view;
};

/// Whether anything black is drawn in the middle of the view's white pages.
int darkPixels(const QImage& image) {
  int dark = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 64 ? 1 : 0;
  }
  return dark;
}

}  // namespace

TEST_F(PageViewTest, PaintsOnlyThePagesThatAreSeen) {
  open(1000);
  EXPECT_LE(view->cache().count(), 2);
  EXPECT_GT(darkPixels(grabbed()), 100) << "the number on the first page";
  view->goToPage(500);
  settle();
  EXPECT_LE(view->cache().count(), 4);
}

TEST_F(PageViewTest, CacheStaysBoundedWhileAllPagesAreSeen) {
  open(200);
  view->setZoom({Zoom::Fit::None, 100});
  for (int page = 0; page < 200; ++page) {
    view->goToPage(page);
    std::ignore = grabbed();
  }
  EXPECT_LE(view->cache().bytes(), preview::TileCache::defaultBytes);
  EXPECT_GT(view->cache().count(), 2);
  EXPECT_LT(view->cache().count(), 200);
}

TEST_F(PageViewTest, AScreenLargerThanTheCacheIsPaintedOnceAllTheSame) {
  open(1);
  view->resize(4200, 4200);
  view->setZoom({Zoom::Fit::None, preview::largestPercent});
  for (int frame = 0; frame < 40 && view->cache().bytes() <= preview::TileCache::defaultBytes; ++frame) {
    view->viewport()->repaint();
  }
  EXPECT_GT(view->cache().bytes(), preview::TileCache::defaultBytes);
  EXPECT_LE(view->cache().bytes(), view->cache().limit());
}

TEST_F(PageViewTest, GoesToPagesAndStopsAtTheEnds) {
  open(5);
  const QSignalSpy changes(view.get(), &PageView::currentPageChanged);
  view->goToPage(2);
  EXPECT_EQ(view->currentPage(), 2);
  EXPECT_EQ(view->verticalScrollBar()->value(), view->layout().scrollOf(2));
  view->goToPage(99);
  EXPECT_EQ(view->currentPage(), 4);
  view->goToPage(-1);
  EXPECT_EQ(view->currentPage(), 0);
  EXPECT_EQ(changes.count(), 3);
}

TEST_F(PageViewTest, EveryPageCanBeGoneToWhenAllAreSeenAtOnce) {
  open(3);
  view->setZoom({Zoom::Fit::None, preview::smallestPercent});
  view->resize(800, 1200);
  for (const int page : {1, 2, 1, 0}) {
    view->goToPage(page);
    EXPECT_EQ(view->currentPage(), page);
  }
}

TEST_F(PageViewTest, RevealsAPlaceAndScrollsNoFurtherThanNeeded) {
  open(10);
  view->setZoom({Zoom::Fit::None, 200});
  const auto shown = [&](int page, const QRectF& twips) {
    const double scale = view->layout().pageRect(0).width() / 11906.0;
    const QRectF box(twips.topLeft() * scale, twips.size() * scale);
    const QPoint scrolled(view->horizontalScrollBar()->value(), view->verticalScrollBar()->value());
    const QPoint corner = view->layout().pageRect(page).topLeft() - scrolled;
    return QRect(QPoint(), view->viewport()->size()).contains(box.toAlignedRect().translated(corner));
  };
  for (const auto& [page, corner] : {std::pair(7, QPoint(9000, 15000)), std::pair(2, QPoint(100, 100))}) {
    const QRectF box(corner, QSizeF(1500, 300));
    view->reveal(page, box);
    EXPECT_EQ(view->currentPage(), page);
    EXPECT_TRUE(shown(page, box)) << page;
  }
  const int before = view->verticalScrollBar()->value();
  view->reveal(2, QRectF(100, 900, 1500, 300));
  EXPECT_EQ(view->verticalScrollBar()->value(), before);
}

TEST_F(PageViewTest, FittedPagesNeverNeedAHorizontalBar) {
  open(40);
  for (const Zoom::Fit fit : {Zoom::Fit::Several, Zoom::Fit::Page, Zoom::Fit::Width}) {
    view->setZoom({fit, 100});
    for (int width = 300; width < 900; width += 7) {
      view->resize(width, 500);
      EXPECT_EQ(view->horizontalScrollBar()->maximum(), 0) << width;
    }
  }
}

TEST_F(PageViewTest, AmongSeveralPagesTheChosenOneStaysUntilItIsScrolledAway) {
  open(40, {Zoom::Fit::Several, 100});
  ASSERT_GT(view->layout().columns(), 1);
  view->goToPage(1);
  EXPECT_EQ(view->verticalScrollBar()->value(), 0) << "it was seen already";
  view->verticalScrollBar()->setValue(5);
  EXPECT_EQ(view->currentPage(), 1);
  view->verticalScrollBar()->setValue(view->layout().scrollOf(30));
  EXPECT_EQ(view->currentPage(), view->layout().pageAt(view->layout().pageRect(30).top()));
  view->goToPage(33);
  view->resize(500, 900);
  settle();
  EXPECT_EQ(view->currentPage(), 33);
}

TEST_F(PageViewTest, ControlAndWheelZoomsAroundThePointer) {
  open(10);
  view->setZoom({Zoom::Fit::None, 100});
  view->goToPage(4);
  const int place = wheelPlace().y();
  const auto heightRead = [&] {
    const QRect page = view->layout().pageRect(4);
    return static_cast<double>(view->verticalScrollBar()->value() + place - page.top()) / page.height();
  };
  const double before = heightRead();
  wheel(1, Qt::ControlModifier);
  EXPECT_EQ(view->zoom(), (Zoom{Zoom::Fit::None, 125}));
  EXPECT_NEAR(heightRead(), before, 0.01);
  wheel(-2, Qt::ControlModifier);
  EXPECT_EQ(view->zoom(), (Zoom{Zoom::Fit::None, 75}));
  EXPECT_NEAR(heightRead(), before, 0.01);
}
