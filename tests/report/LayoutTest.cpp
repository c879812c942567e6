#include <gtest/gtest.h>

#include "SmallReport.h"
#include "runtime/RuntimeError.h"

using report::Document;

namespace {

void addHeaderAndFooter(SmallReport& small) {
  small.PageHeader.Height = 500;
  small.PageHeader.Controls.push_back(
      SmallReport::label(QStringLiteral("lblTitle"), {0, 0, 3000, 400}, QStringLiteral("标题")));
  small.PageFooter.Height = 400;
  small.PageFooter.Controls.push_back(
      SmallReport::label(QStringLiteral("lblFoot"), {0, 0, 3000, 400}, QStringLiteral("页脚")));
}

/// Where the bands of a page stand, in their order.
std::vector<QPointF> placesOf(const Document& document, int page) {
  std::vector<QPointF> places;
  for (const auto& [name, text] : shapesOf<report::TextPrimitive>(document, page)) {
    places.push_back(text.box.topLeft() - QPointF(100, 200));
  }
  return places;
}

using Places = std::vector<QPointF>;

}  // namespace

TEST(Layout, BandsFollowEachOtherAndBreakWhereThePageEnds) {
  SmallReport small;
  small.bandCount = 14;
  const Document document = small.run();
  // 6500 twips between the margins hold six bands of 1000.
  ASSERT_EQ(document.pageCount(), 3);
  EXPECT_EQ(document.paperSize(), QSize(6000, 8000));
  EXPECT_EQ(textsOf(document, 1),
            QStringList({QStringLiteral("7"), QStringLiteral("8"), QStringLiteral("9"), QStringLiteral("10"),
                         QStringLiteral("11"), QStringLiteral("12")}));
  EXPECT_EQ(textsOf(document, 2).size(), 2);
  const auto texts = shapesOf<report::TextPrimitive>(document, 1);
  EXPECT_EQ(texts[0].second.box, QRectF(600, 900, 3000, 300));
  EXPECT_EQ(texts[5].second.box, QRectF(600, 5900, 3000, 300));
}

TEST(Layout, HeaderAndFooterStandOnEveryPageAndTakeTheirRoom) {
  SmallReport small;
  addHeaderAndFooter(small);
  small.bandCount = 6;
  const Document document = small.run();
  ASSERT_EQ(document.pageCount(), 2);
  for (int page = 0; page < 2; ++page) {
    const auto texts = shapesOf<report::TextPrimitive>(document, page);
    EXPECT_EQ(texts.front().second.text, QStringLiteral("标题"));
    EXPECT_EQ(texts.front().second.box.topLeft(), QPointF(500, 700));
    EXPECT_EQ(texts[1].second.box.top(), 700 + 500 + 200);
    EXPECT_EQ(texts.back().second.text, QStringLiteral("页脚"));
    EXPECT_EQ(texts.back().second.box.bottom(), 8000 - 800);
  }
}

TEST(Layout, ABandHigherThanThePageStandsAlone) {
  SmallReport small;
  small.Detail.Height = 9000;
  small.bandCount = 2;
  const Document document = small.run();
  ASSERT_EQ(document.pageCount(), 2);
  EXPECT_EQ(textsOf(document, 1), QStringList(QStringLiteral("2")));
}

TEST(Layout, WhatOneBandSetsDoesNotReachTheNext) {
  SmallReport small;
  small.bandCount = 3;
  small.start = [](SmallReport& report) {
    report.Detail.control(QStringLiteral("lblText")).Caption = QStringLiteral("设计");
  };
  small.fill = [](SmallReport& report, int band) {
    auto& text = report.Detail.control(QStringLiteral("lblText"));
    if (band == 0) text.Caption = QStringLiteral("甲");
    if (band == 1) text.Font.bold = true;
  };
  const auto texts = shapesOf<report::TextPrimitive>(small.run(), 0);
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[0].second.text, QStringLiteral("甲"));
  EXPECT_EQ(texts[1].second.text, QStringLiteral("设计"));
  EXPECT_TRUE(texts[1].second.font.bold);
  EXPECT_FALSE(texts[2].second.font.bold);
}

TEST(Layout, AnErrorInAnEventReachesTheCallerAndTheNextRunIsWhole) {
  SmallReport small;
  small.bandCount = 2;
  small.fill = [](SmallReport& report, int) { std::ignore = report.Detail.control(QStringLiteral("none")); };
  EXPECT_THROW(std::ignore = small.run(), runtime::RuntimeError);
  small.fill = nullptr;
  EXPECT_EQ(textsOf(small.run(), 0), QStringList({QStringLiteral("1"), QStringLiteral("2")}));
}

TEST(Layout, ColumnsAreFilledRowByRowAndBreakWithTheirRow) {
  SmallReport small;
  small.Columns = {3, 1500};
  small.bandCount = 11;
  small.fill = [](SmallReport& report, int band) {
    report.Detail.control(QStringLiteral("lblText")).Caption = QString::number(band + 1);
    // One band makes its row higher; 6500 twips hold three rows then.
    if (band == 4) report.Detail.Height = 4000;
  };
  const Document document = small.run();
  ASSERT_EQ(document.pageCount(), 2);
  EXPECT_EQ(placesOf(document, 0), (Places{{500, 700},
                                           {2000, 700},
                                           {3500, 700},
                                           {500, 1700},
                                           {2000, 1700},
                                           {3500, 1700},
                                           {500, 5700},
                                           {2000, 5700},
                                           {3500, 5700}}));
  EXPECT_EQ(placesOf(document, 1), (Places{{500, 700}, {2000, 700}}));
  EXPECT_EQ(textsOf(document, 1), QStringList({QStringLiteral("10"), QStringLiteral("11")}));
  EXPECT_EQ(document.texts(1).at(1).box.topLeft(), QPoint(2100, 900)) << "where a search marks it";
}

TEST(Layout, PlacesLeftFreeCountOnTheFirstPageOnly) {
  SmallReport small;
  small.Columns = {2, 2000, 9};
  small.bandCount = 5;
  const Document document = small.run();
  ASSERT_EQ(document.pageCount(), 2);
  EXPECT_EQ(placesOf(document, 0), (Places{{2500, 4700}, {500, 5700}, {2500, 5700}}));
  EXPECT_EQ(placesOf(document, 1), (Places{{500, 700}, {2500, 700}}));
  small.Columns.free = 12;
  small.bandCount = 1;
  EXPECT_TRUE(small.run().page(0).empty());
  EXPECT_EQ(placesOf(small.run(), 1), (Places{{500, 700}}));
  small.bandCount = 0;
  EXPECT_EQ(small.run().pageCount(), 1);
}
