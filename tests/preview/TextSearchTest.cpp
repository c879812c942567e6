#include <gtest/gtest.h>

#include "SampleReport.h"
#include "preview/PageImage.h"
#include "preview/TextSearch.h"

using preview::PageMark;
using preview::TextSearch;

namespace {

/// One band a page with one label.
class LabelReport : public SampleReport {
 public:
  LabelReport(const QString& caption, Qt::Alignment alignment, int width)
      : SampleReport(1), m_caption(caption) {
    report::Control& label = Detail.Controls.front();
    label.Width = width;
    label.Alignment = alignment;
    label.Font.size = 20;
  }

 protected:
  void ActiveReport_FetchData(bool& endOfData) override {
    SampleReport::ActiveReport_FetchData(endOfData);
    Detail.Controls.front().Caption = m_caption;
  }

 private:
  QString m_caption;
};

bool hasInk(const QImage& page, const QRectF& box) {
  const QRect area = box.toAlignedRect().intersected(page.rect());
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (qGray(page.pixel(x, y)) < 128) return true;
    }
  }
  return false;
}

}  // namespace

TEST(TextSearch, KeepsItsPlaceWhileTheTextGrows) {
  TextSearch search(sampleDocument(130));
  search.search(QStringLiteral("1"), 20);
  EXPECT_EQ(search.currentPage(), 20);  // "21"
  search.search(QStringLiteral("11"), 0);
  EXPECT_EQ(search.currentPage(), 109);  // "110"
  EXPECT_EQ(search.current(), 1);
  EXPECT_EQ(search.count(), 11);
  search.search(QStringLiteral("12"), 0);
  EXPECT_EQ(search.currentPage(), 111);
  search.search(QStringLiteral("无"), 0);
  EXPECT_EQ(search.count(), 0);
  EXPECT_EQ(search.current(), -1);
  EXPECT_TRUE(search.marks(11).empty());
}

TEST(TextSearch, StepsGoAroundTheEnds) {
  TextSearch search(sampleDocument(30));
  search.search(QStringLiteral("5"), 26);
  EXPECT_EQ(search.currentPage(), 4) << "none behind page 26: from the beginning";
  search.step(-1);
  EXPECT_EQ(search.currentPage(), 24);
  search.step(1);
  search.step(1);
  EXPECT_EQ(search.currentPage(), 14);
  search.clear();
  search.step(1);
  EXPECT_EQ(search.current(), -1);
}

TEST(TextSearch, MarksEveryHitOfAPageAndWhichIsCurrent) {
  TextSearch search(sampleDocument(122));
  search.search(QStringLiteral("1"), 120);
  const std::vector<PageMark> marks = search.marks(120);  // "121"
  ASSERT_EQ(marks.size(), 2u);
  EXPECT_TRUE(marks[0].current);
  EXPECT_FALSE(marks[1].current);
  EXPECT_LT(marks[0].box.right(), marks[1].box.left());
  EXPECT_EQ(search.currentBox(), marks[0].box);
  EXPECT_TRUE(search.marks(1).empty());
}

TEST(TextSearch, MarksStandOnTheInkHoweverTheTextIsAligned) {
  for (const Qt::Alignment side : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
    for (const Qt::Alignment height : {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom}) {
      const report::Document document =
          LabelReport(QStringLiteral("       H       "), side | height, 6000).run();
      TextSearch search(document);
      search.search(QStringLiteral("h"), 0);
      ASSERT_EQ(search.count(), 1);
      report::DecodingPictureSource pictures;
      const QImage page = preview::pageImage(document, 0, document.paperSize() / 10, pictures);
      const QRectF mark = search.currentBox();
      EXPECT_TRUE(hasInk(page, {mark.topLeft() / 10, mark.size() / 10}));
      EXPECT_FALSE(hasInk(page, {mark.left() / 10 - 20, mark.top() / 10, 19, mark.height() / 10}));
      EXPECT_FALSE(hasInk(page, {mark.right() / 10 + 1, mark.top() / 10, 19, mark.height() / 10}));
    }
  }
}

TEST(TextSearch, WhatWasCutOffIsMarkedAtTheEndOfWhatIsDrawn) {
  const QString text = QString(60, QLatin1Char('x')) + QStringLiteral("尾");
  TextSearch search(LabelReport(text, Qt::AlignLeft | Qt::AlignVCenter, 1500).run());
  search.search(QStringLiteral("尾"), 0);
  ASSERT_EQ(search.count(), 1);
  const QRectF mark = search.currentBox();
  EXPECT_FALSE(mark.isEmpty());
  EXPECT_LE(mark.right(), 1440 + 1500 + 1);
  EXPECT_GT(mark.left(), 1440 + 700);
}
