#include <gtest/gtest.h>

#include <QImage>

#include "SampleReport.h"
#include "preview/PageCopy.h"

using report::PageText;

TEST(PageCopy, HoldsTheTextAndASharpPicture) {
  const auto copy = preview::pageCopy(sampleDocument(3), 1);
  EXPECT_EQ(copy->text(), QStringLiteral("2\n"));
  const QImage picture = qvariant_cast<QImage>(copy->imageData());
  EXPECT_EQ(picture.size(), QSize(1654, 2339));
}

TEST(PageCopy, TextsOfOneHeightStandOnOneLine) {
  EXPECT_EQ(preview::linesOf({{{3260, 1134, 900, 283}, QStringLiteral("张三"), false},
                              {{2693, 1134, 500, 283}, QStringLiteral("姓名"), false},
                              {{142, 283, 4000, 567}, QStringLiteral("第一\n学校"), false},
                              {{142, 1771, 4000, 567}, QString(), false}}),
            QStringLiteral("第一 学校\n姓名\t张三\n"));
}

TEST(PageCopy, CellsKeepTheirColumns) {
  // A name beside four lines of days: what is empty must not let the others slip to the left.
  const auto cell = [](int column, int line, const char16_t* text) {
    return PageText{{column * 500, line * 283, 500, 283}, QString::fromUtf16(text), true};
  };
  EXPECT_EQ(preview::linesOf({cell(0, 0, u"张三"), cell(1, 0, u"08:00"), cell(1, 1, u""), cell(1, 2, u""),
                              cell(2, 0, u""), cell(2, 1, u"17:00"), cell(2, 2, u""), cell(3, 0, u"08:05"),
                              cell(3, 1, u"17:30"), cell(3, 3, u"17:40")}),
            QStringLiteral("张三\t08:00\t\t08:05\n\t\t17:00\t17:30\n\n\t\t\t17:40\n"));
}
