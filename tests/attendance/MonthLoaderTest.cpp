#include <gtest/gtest.h>

#include "attendance/MonthLoader.h"
#include "runtime/DefaultText.h"
#include "support/TestHome.h"
#include "support/Thrown.h"

namespace {

class MonthLoader : public ::testing::Test {
 protected:
  MonthLoader() {
    execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    for (const QString& number : {QStringLiteral("A1"), QStringLiteral("A2")}) {
      home.insertEmployee(number, QStringLiteral("员工") + number, 1, {}, {}, m_connection);
    }
  }

  void signIn(const QString& number, const QString& moment) {
    execute(
        QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('%1', '%2')").arg(number, moment));
  }
  void execute(const QString& sql) { std::ignore = m_connection->Execute(sql); }

  support::TestHome home;
  const AttendanceMonth february = *AttendanceMonth::make(2028, 2);

 private:
  std::shared_ptr<ado::Connection> m_connection = home.connect();
};

}  // namespace

TEST_F(MonthLoader, TakesTheWholeMonthAndNothingElse) {
  for (const auto* moment :
       {u"2028-01-31 23:59:59", u"2028-02-01", u"2028-02-29 23:59:59", u"2028-03-01 08:00:00"}) {
    signIn(QStringLiteral("A1"), QString::fromUtf16(moment));
  }
  const auto set = loadMonth(february);
  ASSERT_EQ(set->Count(), 1);
  const auto employee = set->Item(1);
  EXPECT_EQ(employee->GetEnterTime(QDate(2028, 2, 29)).time(), QTime(23, 59, 59));
  EXPECT_EQ(employee->GetEnterTime(QDate(2028, 2, 1)), QDate(2028, 2, 1).startOfDay());
  EXPECT_TRUE(runtime::isZero(employee->GetEnterTime(QDate(2028, 1, 31))));
  EXPECT_TRUE(runtime::isZero(employee->GetEnterTime(QDate(2028, 3, 1))));
}

TEST_F(MonthLoader, ShorterRangesGiveEachDayOnceToTheSameEmployees) {
  for (const QDate& day : february.days()) {
    for (const QString& number : {QStringLiteral("A1"), QStringLiteral("A2")}) {
      signIn(number,
             runtime::dateText(day) + QStringLiteral(" 08:%1:00").arg(day.day(), 2, 10, QLatin1Char('0')));
    }
  }
  for (const int atOnce : {1, 2, 3, 7, 57, 58, 1000}) {
    clsEmployeePresenceSet set;
    loadInRanges(set, february.firstDay(), february.lastDay(), atOnce);
    ASSERT_EQ(set.Count(), 2) << atOnce;
    for (const QDate& day : february.days()) {
      EXPECT_EQ(set.Item(2)->GetEnterTime(day).time(), QTime(8, day.day())) << atOnce;
    }
  }
}

TEST_F(MonthLoader, MoreRecordsThanTheCounterTakesAreLoadedAll) {
  // 40,000 rows on two days: one row doubled again and again.
  signIn(QStringLiteral("A1"), QStringLiteral("2028-02-10 08:00:00"));
  const QString all =
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) SELECT ENUMBER, ENTERTIME FROM Presence");
  for (int i = 0; i < 14; ++i) execute(all);
  execute(QStringLiteral(
      "INSERT INTO Presence(ENUMBER, ENTERTIME) SELECT 'A2', '2028-02-20 09:00:00' FROM Presence"));
  clsEmployeePresenceSet tooMuch;
  execute(QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('A2', '2028-02-21 09:00:00')"));
  EXPECT_EQ(support::thrownNumber(
                [&] { std::ignore = tooMuch.LoadByDate(february.firstDay(), february.lastDay()); }),
            runtime::ErrorNumber::Overflow);
  const auto set = loadMonth(february);
  ASSERT_EQ(set->Count(), 2);
  EXPECT_EQ(set->Item(QStringLiteral("A2"))->GetEnterTime(QDate(2028, 2, 21)).time(), QTime(9, 0));

  execute(QStringLiteral("UPDATE Presence SET ENTERTIME = '2028-02-10 08:00:00'"));
  EXPECT_EQ(support::thrownNumber([&] { std::ignore = loadMonth(february); }), runtime::ErrorNumber::Overflow)
      << "a single day cannot be divided";
}

TEST_F(MonthLoader, AFailingDatabaseIsAnErrorWithItsReason) {
  execute(QStringLiteral("DROP TABLE Presence"));
  EXPECT_TRUE(support::thrown([&] { std::ignore = loadMonth(february); })
                  .description()
                  .contains(QLatin1String("Presence")));
}
