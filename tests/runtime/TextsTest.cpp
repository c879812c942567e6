#include <gtest/gtest.h>

#include "runtime/CodePage.h"
#include "runtime/DefaultText.h"

namespace {

TEST(DefaultText, LeavesOutTheTimeAtMidnightOnly) {
  const QDate day(2026, 11, 5);
  EXPECT_EQ(runtime::dateTimeText(QDateTime(day, QTime(8, 5, 9))), QStringLiteral("2026-11-05 08:05:09"));
  EXPECT_EQ(runtime::dateTimeText(QDateTime(day, QTime(0, 0))), QStringLiteral("2026-11-05"));
  EXPECT_EQ(runtime::dateTimeText(QDateTime(day, QTime(0, 0, 0, 999))), QStringLiteral("2026-11-05"));
  EXPECT_EQ(runtime::dateTimeText(QDateTime(day, QTime(0, 0, 1))), QStringLiteral("2026-11-05 00:00:01"));
  EXPECT_EQ(runtime::shortTimeText(QTime(8, 5, 59)), QStringLiteral("08:05"));
}

TEST(CodePage, HoldsGbkAndNothingElse) {
  EXPECT_EQ(runtime::toCodePage(QStringLiteral("中a喆€")), QByteArray("\xd6\xd0"
                                                                      "a"
                                                                      "\x86\xb4"
                                                                      "\x80"));
  for (const char* text : {"ñ", "한", "\xf0\xa0\xae\xb7", "中\xf0\x9f\x98\x80"}) {
    EXPECT_FALSE(runtime::toCodePage(QString::fromUtf8(text))) << text;
  }
  EXPECT_FALSE(runtime::toCodePage(QString(QChar(u'\xd840')))) << "half of a pair";
}

TEST(CodePage, GivesBackEveryTextThatItTakes) {
  int held = 0;
  for (int code = 1; code < 0x10000; ++code) {
    const QString text(QChar(static_cast<char16_t>(code)));
    const auto bytes = runtime::toCodePage(text);
    if (!bytes) continue;
    ++held;
    ASSERT_EQ(runtime::fromCodePage(*bytes), text) << code;
  }
  EXPECT_GT(held, 21000);
}

TEST(CodePage, DropsAHalfCharacterAtTheEnd) {
  EXPECT_EQ(runtime::fromCodePage("\xd6\xd0\xb9"), QStringLiteral("中"));
  EXPECT_TRUE(runtime::fromCodePage("\x81\x30").contains(QChar::ReplacementCharacter));
}

}  // namespace
