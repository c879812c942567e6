#include <gtest/gtest.h>

#include "foundation/SqlText.h"
#include "support/Thrown.h"

namespace {

using runtime::ErrorNumber;
using support::thrownNumber;

TEST(SqlText, PastesValuesAsTheyAre) {
  EXPECT_EQ(sql::quoted(QStringLiteral("a \"#[--;")), QStringLiteral("'a \"#[--;'"));
  EXPECT_EQ(sql::quoted(QString()), QStringLiteral("''"));
  EXPECT_EQ(sql::number(-32768), QStringLiteral("-32768"));
  EXPECT_EQ(sql::number(QStringLiteral("+007")), QStringLiteral("+007"));
  EXPECT_EQ(sql::date(QDate(2026, 2, 3)), QStringLiteral("#2026-02-03#"));
}

TEST(SqlText, RefusesWhatWouldRunAsSomethingElse) {
  EXPECT_EQ(thrownNumber([] { std::ignore = sql::quoted(QStringLiteral("O'Neil")); }),
            ErrorNumber::InvalidCall);
  EXPECT_EQ(thrownNumber([] { std::ignore = sql::quoted(QStringLiteral("a") + QChar(u'\0')); }),
            ErrorNumber::InvalidCall);
  for (const char* text : {"", "-", "1 OR 1=1", "1;", " 1", "1.5", "0x1", "1e3", "--1", "１"}) {
    EXPECT_EQ(thrownNumber([&] { std::ignore = sql::number(QString::fromUtf8(text)); }),
              ErrorNumber::TypeMismatch)
        << text;
  }
}

}  // namespace
