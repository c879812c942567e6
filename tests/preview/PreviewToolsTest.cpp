#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QMimeData>

#include "PreviewWindowFixture.h"

using preview::Zoom;

namespace {

class PreviewToolsTest : public PreviewWindowTest {
 protected:
  void openSample(int pages) {
    open(sampleDocument(pages));
    contents = window->findChild<QListView*>(QStringLiteral("contents"));
    findBar = window->findChild<QWidget*>(QStringLiteral("findBar"));
    findText = window->findChild<QLineEdit*>(QStringLiteral("txtFind"));
    found = window->findChild<QLabel*>(QStringLiteral("lblFound"));
    ASSERT_TRUE(contents && findBar && findText && found);
  }

  void find(const QString& text) {
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(findText, text);
  }

  bool isChecked(PreviewToolbar::Place place) const { return toolbar->tool(place)->isChecked(); }

  void click(int page, bool twice) const {
    const QPoint place = view->layout().pageRect(page).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    if (twice) QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
  }

  /// Pixels of the colour of highlights.
  int markedPixels() const {
    const QImage image = view->viewport()->grab().toImage();
    int marked = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, y);
        marked += color.red() > 200 && color.blue() < 150 ? 1 : 0;
      }
    }
    return marked;
  }

  QListView* contents = nullptr;
  QWidget* findBar = nullptr;
  QLineEdit* findText = nullptr;
  QLabel* found = nullptr;
};

}  // namespace

TEST_F(PreviewToolsTest, ContentsGoToPagesAndFollow) {
  openSample(12);
  EXPECT_FALSE(contents->isVisible());
  use(PreviewToolbar::Contents);
  EXPECT_TRUE(contents->isVisible());
  EXPECT_TRUE(isChecked(PreviewToolbar::Contents));
  contents->setCurrentIndex(contents->model()->index(6, 0));
  EXPECT_EQ(pageBox->text(), QStringLiteral("7 / 12"));
  press(Qt::Key_PageDown);
  EXPECT_EQ(contents->currentIndex().row(), 7);
  use(PreviewToolbar::Contents);
  EXPECT_FALSE(contents->isVisible());
  EXPECT_FALSE(isChecked(PreviewToolbar::Contents));
}

TEST_F(PreviewToolsTest, ContentsOpenOnThePageLookedAt) {
  openSample(300);
  press(Qt::Key_End, Qt::ControlModifier);
  use(PreviewToolbar::Contents);
  QTest::qWait(50);
  EXPECT_TRUE(contents->viewport()->rect().contains(contents->visualRect(contents->currentIndex())));
}

TEST_F(PreviewToolsTest, BackAndForwardGoThroughTheVisitedPages) {
  openSample(12);
  pageBox->setText(QStringLiteral("9"));
  QTest::keyClick(pageBox, Qt::Key_Return);
  press(Qt::Key_Home, Qt::ControlModifier);
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(view->currentPage(), 8);
  use(PreviewToolbar::Back);
  EXPECT_EQ(view->currentPage(), 0);
  EXPECT_FALSE(toolbar->tool(PreviewToolbar::Back)->isEnabled());
  use(PreviewToolbar::Forward);
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(view->currentPage(), 0);
  EXPECT_FALSE(toolbar->tool(PreviewToolbar::Forward)->isEnabled());
  use(PreviewToolbar::Back);
  EXPECT_EQ(view->currentPage(), 8);
  press(Qt::Key_PageDown);
  EXPECT_FALSE(toolbar->tool(PreviewToolbar::Forward)->isEnabled()) << "another way was taken";
}

TEST_F(PreviewToolsTest, PageBoxIsReachedByAKey) {
  openSample(12);
  press(Qt::Key_G, Qt::ControlModifier);
  EXPECT_TRUE(pageBox->hasFocus());
  QTest::keyClicks(pageBox, QStringLiteral("4"));
  QTest::keyClick(pageBox, Qt::Key_Return);
  EXPECT_EQ(view->currentPage(), 3);
  EXPECT_TRUE(view->hasFocus());
}

TEST_F(PreviewToolsTest, APageThatIsTypedAndNotEnteredIsForgotten) {
  openSample(12);
  press(Qt::Key_G, Qt::ControlModifier);
  QTest::keyClicks(pageBox, QStringLiteral("7"));
  QTest::keyClick(pageBox, Qt::Key_Escape);
  EXPECT_EQ(pageBox->text(), QStringLiteral("1 / 12"));
  EXPECT_TRUE(window->isVisible()) << "Escape leaves the box first";
  EXPECT_TRUE(view->hasFocus());
}

TEST_F(PreviewToolsTest, TheNarrowestWindowStillHasThePageBox) {
  openSample(12);
  window->resize(1, 400);
  QTest::qWait(0);
  EXPECT_TRUE(pageBox->isVisible());
  EXPECT_LE(pageBox->mapTo(window.get(), pageBox->rect().bottomRight()).x(), window->width());
  EXPECT_LT(window->width(), toolbar->sizeHint().width()) << "the rest of the tools may go into the menu";
}

TEST_F(PreviewToolsTest, SeveralPagesAreShownAndOneIsOpenedFromThem) {
  openSample(30);
  use(PreviewToolbar::ManyPages);
  EXPECT_TRUE(isChecked(PreviewToolbar::ManyPages));
  EXPECT_FALSE(isChecked(PreviewToolbar::SinglePage));
  ASSERT_GT(view->layout().columns(), 1);
  EXPECT_EQ(zoomBox->placeholderText(), QStringLiteral("多页"));
  const QRect seen(QPoint(), view->viewport()->size());
  EXPECT_TRUE(seen.contains(view->layout().pageRect(1)));
  click(1, false);
  EXPECT_EQ(view->currentPage(), 1);
  EXPECT_GT(view->layout().columns(), 1);
  click(2, true);
  EXPECT_EQ(view->currentPage(), 2);
  EXPECT_EQ(view->layout().columns(), 1);
  EXPECT_EQ(view->zoom(), (Zoom{Zoom::Fit::Width, 100}));
  EXPECT_TRUE(isChecked(PreviewToolbar::SinglePage));
}

TEST_F(PreviewToolsTest, ZoomingLeavesSeveralPagesAndTheToolComesBackToTheLastZoom) {
  openSample(30);
  view->setZoom({Zoom::Fit::None, 150});
  use(PreviewToolbar::ManyPages);
  use(PreviewToolbar::SinglePage);
  EXPECT_EQ(view->zoom(), (Zoom{Zoom::Fit::None, 150}));
  use(PreviewToolbar::ManyPages);
  press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(view->layout().columns(), 1);
  EXPECT_TRUE(isChecked(PreviewToolbar::SinglePage));
  press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(zoomBox->currentText(), QStringLiteral("100%"));
}

TEST_F(PreviewToolsTest, FindingGoesFromHitToHit) {
  openSample(130);
  EXPECT_FALSE(findBar->isVisible());
  find(QStringLiteral("12"));
  EXPECT_TRUE(findBar->isVisible());
  EXPECT_EQ(found->text(), QStringLiteral("第 1 处，共 12 处"));
  EXPECT_EQ(view->currentPage(), 11);
  press(Qt::Key_F3);
  EXPECT_EQ(view->currentPage(), 111);
  press(Qt::Key_F3, Qt::ShiftModifier);
  QTest::keyClick(findText, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(view->currentPage(), 128);
  QTest::keyClick(findText, Qt::Key_Return);
  EXPECT_EQ(view->currentPage(), 11);
  use(PreviewToolbar::Back);
  EXPECT_EQ(view->currentPage(), 128) << "hits are visits";
  EXPECT_TRUE(window->isVisible());
}

TEST_F(PreviewToolsTest, PagesThatOnlyLettersLedToAreNoVisits) {
  openSample(130);
  find(QStringLiteral("128"));
  EXPECT_EQ(view->currentPage(), 127);
  use(PreviewToolbar::Back);
  EXPECT_EQ(view->currentPage(), 0);
  EXPECT_FALSE(toolbar->tool(PreviewToolbar::Back)->isEnabled());
}

TEST_F(PreviewToolsTest, HitsAreHighlightedUntilTheBarCloses) {
  openSample(3);
  find(QStringLiteral("1"));
  QTest::qWait(60);
  EXPECT_GT(markedPixels(), 100);
  QTest::keyClicks(findText, QStringLiteral("x"));
  EXPECT_EQ(found->text(), QStringLiteral("没有找到"));
  EXPECT_EQ(markedPixels(), 0);
  QTest::keyClick(findText, Qt::Key_Backspace);
  EXPECT_GT(markedPixels(), 100);
  QTest::keyClick(findText, Qt::Key_Escape);
  EXPECT_FALSE(findBar->isVisible());
  EXPECT_EQ(markedPixels(), 0);
  EXPECT_TRUE(window->isVisible()) << "the bar closes first";
  press(Qt::Key_F3);
  EXPECT_TRUE(findBar->isVisible()) << "looks for the same again";
  EXPECT_GT(markedPixels(), 100);
  press(Qt::Key_Escape);
  press(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(PreviewToolsTest, ThePageLookedAtIsCopied) {
  openSample(3);
  press(Qt::Key_PageDown);
  press(Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->text(), QStringLiteral("2\n"));
  EXPECT_TRUE(copied->hasImage());
  find(QStringLiteral("abc"));
  findText->selectAll();
  QTest::keyClick(findText, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("abc")) << "typed text is the bar's own";
}
