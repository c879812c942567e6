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
