#include <gtest/gtest.h>

#include "runtime/Conversions.h"
#include "runtime/RuntimeError.h"
#include "support/Thrown.h"

namespace {

using runtime::ErrorNumber;
using support::thrownNumber;

QDateTime moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return QDateTime(QDate(year, month, day), QTime(hour, minute, second));
}

TEST(Conversions, NullIsAnErrorUnlessTheOperationSaysOtherwise) {
  const QVariant null;
  EXPECT_EQ(thrownNumber([&] { std::ignore = runtime::toText(null); }), ErrorNumber::InvalidUseOfNull);
  EXPECT_EQ(thrownNumber([&] { std::ignore = runtime::toInt16(null); }), ErrorNumber::InvalidUseOfNull);
  EXPECT_EQ(thrownNumber([&] { std::ignore = runtime::toInt32(null); }), ErrorNumber::InvalidUseOfNull);
  EXPECT_EQ(thrownNumber([&] { std::ignore = runtime::toDateTime(null); }), ErrorNumber::InvalidUseOfNull);
  EXPECT_EQ(runtime::toTextOrEmpty(null), QString());
  EXPECT_EQ(runtime::toText(QString()), QString()) << "an empty text is no Null";
}

TEST(Conversions, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(runtime::toInt16(0.5), 0);
  EXPECT_EQ(runtime::toInt16(1.5), 2);
  EXPECT_EQ(runtime::toInt16(2.5), 2);
  EXPECT_EQ(runtime::toInt16(-1.5), -2);
  EXPECT_EQ(runtime::toInt16(-2.5), -2);
  EXPECT_EQ(runtime::toInt16(2.51), 3);
  EXPECT_EQ(runtime::toInt16(QStringLiteral(" -12.5e1 ")), -125);
}

TEST(Conversions, RefusesNumbersThatDoNotFit) {
  EXPECT_EQ(runtime::toInt16(32767.5 - 0.25), 32767);
  EXPECT_EQ(thrownNumber([] { std::ignore = runtime::toInt16(32768); }), ErrorNumber::Overflow);
  EXPECT_EQ(thrownNumber([] { std::ignore = runtime::toInt16(32767.5); }), ErrorNumber::Overflow);
  EXPECT_EQ(runtime::toInt16(-32768.5), -32768);
  EXPECT_EQ(thrownNumber([] { std::ignore = runtime::toInt16(-32769); }), ErrorNumber::Overflow);
  EXPECT_EQ(runtime::toInt32(2147483647), 2147483647);
  EXPECT_EQ(thrownNumber([] { std::ignore = runtime::toInt32(Q_INT64_C(2147483648)); }),
            ErrorNumber::Overflow);
  EXPECT_EQ(thrownNumber([] { std::ignore = runtime::toInt32(QStringLiteral("1e999")); }),
            ErrorNumber::Overflow);
}

TEST(Conversions, RefusesWhatIsNoNumberOrText) {
  for (const char* text : {"", " ", "abc", "1 2", "0x10", "1,5", "--1", ".", "e5", "nan", "inf", "１２"}) {
    EXPECT_FALSE(runtime::isNumeric(QString::fromUtf8(text))) << text;
    EXPECT_EQ(thrownNumber([&] { std::ignore = runtime::toInt32(QString::fromUtf8(text)); }),
              ErrorNumber::TypeMismatch)
        << text;
  }
  for (const char* text : {"5.", ".5", "+7", " -3 ", "1e3"}) {
    EXPECT_TRUE(runtime::isNumeric(QString::fromUtf8(text))) << text;
    EXPECT_NO_THROW(std::ignore = runtime::toInt32(QString::fromUtf8(text))) << text;
  }
  EXPECT_EQ(thrownNumber([] { std::ignore = runtime::toText(QByteArray("bytes")); }),
            ErrorNumber::TypeMismatch);
  EXPECT_EQ(thrownNumber([] { std::ignore = runtime::toInt32(moment(2026, 1, 1)); }),
            ErrorNumber::TypeMismatch);
}

TEST(Conversions, ReadsTheThreeFormsOfADate) {
  EXPECT_EQ(runtime::toDateTime(QStringLiteral("2026-2-3")), moment(2026, 2, 3));
  EXPECT_EQ(runtime::toDateTime(QStringLiteral("2026/02/3 8:05")), moment(2026, 2, 3, 8, 5));
  EXPECT_EQ(runtime::toDateTime(QStringLiteral(" 2026年2月3日 23:59:59 ")), moment(2026, 2, 3, 23, 59, 59));
  EXPECT_EQ(runtime::toText(moment(2026, 2, 3, 8, 5, 9)), QStringLiteral("2026-02-03 08:05:09"));
}

TEST(Conversions, RefusesDaysAndTimesThatDoNotExist) {
  for (const char* text : {"2026-02-29", "2026-13-1", "2026-0-1", "2026-1-1 24:00", "2026-1-1 8:60", "26-1-1",
                           "2026-1/1", "2026年1月1", "2026-1-1T8:00", "8:00", "today", "", "2026-1-1 8"}) {
    EXPECT_FALSE(runtime::parseDateTime(QString::fromUtf8(text))) << text;
  }
  EXPECT_TRUE(runtime::parseDateTime(QStringLiteral("2028-02-29")));
  EXPECT_EQ(thrownNumber([] { std::ignore = runtime::toDateTime(QStringLiteral("2026-02-30")); }),
            ErrorNumber::TypeMismatch);
}

}  // namespace
