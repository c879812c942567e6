#include <gtest/gtest.h>

#include "attendance/AttendanceMonth.h"

TEST(AttendanceMonth, ReadsOnlyMonthsThatExist) {
  const auto month = AttendanceMonth::parse(QStringLiteral("2028-02"));
  ASSERT_TRUE(month);
  EXPECT_EQ(month->firstDay(), QDate(2028, 2, 1));
  EXPECT_EQ(month->lastDay(), QDate(2028, 2, 29));
  EXPECT_EQ(month->days().size(), 29u);
  EXPECT_EQ(month->days().back(), month->lastDay());
  for (const auto* wrong :
       {u"2026-00", u"2026-13", u"0000-01", u"1899-12", u"9999-12", u"99999-01", u"2026-1", u"2026-011",
        u"2026-11\n", u"2026/11", u" 2026-11", u"-026-11", u"２０２６-11", u""}) {
    const QString text = QString::fromUtf16(wrong);
    EXPECT_FALSE(AttendanceMonth::parse(text)) << text.toStdString();
  }
}

TEST(AttendanceMonth, MonthsThatNobodyMayAskForHaveTheirDays) {
  for (const auto& [year, month] : {std::pair(1000, 1), {1899, 2}, {9999, 12}}) {
    const auto made = AttendanceMonth::make(year, month);
    ASSERT_TRUE(made) << year;
    EXPECT_EQ(static_cast<int>(made->days().size()), QDate(year, month, 1).daysInMonth());
    EXPECT_EQ(made->days().back().month(), month);
  }
  EXPECT_FALSE(AttendanceMonth::make(999, 1) || AttendanceMonth::make(10000, 1) ||
               AttendanceMonth::make(2026, 0));
}

TEST(AttendanceMonth, TheMonthBeforeIsProposedUntilTheFifth) {
  EXPECT_EQ(AttendanceMonth::proposedOn(QDate(2026, 11, 5)).text(), QStringLiteral("2026年10月"));
  EXPECT_EQ(AttendanceMonth::proposedOn(QDate(2026, 11, 6)).text(), QStringLiteral("2026年11月"));
  EXPECT_EQ(AttendanceMonth::proposedOn(QDate(2026, 1, 1)).text(), QStringLiteral("2025年12月"));
}
