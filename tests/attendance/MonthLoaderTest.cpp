#include <gtest/gtest.h>

#include "attendance/MonthData.h"
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
  [[nodiscard]] std::shared_ptr<clsEmployeePresenceSet> presence() const {
    return loadMonth(february, QStringLiteral("青禾")).presence;
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
  const auto set = presence();
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
  const auto set = presence();
  ASSERT_EQ(set->Count(), 2);
  EXPECT_EQ(set->Item(QStringLiteral("A2"))->GetEnterTime(QDate(2028, 2, 21)).time(), QTime(9, 0));

  execute(QStringLiteral("UPDATE Presence SET ENTERTIME = '2028-02-10 08:00:00'"));
  EXPECT_EQ(presence()->Item(QStringLiteral("A1"))->GetEnterTime(QDate(2028, 2, 10)).time(), QTime(8, 0))
      << "a single day cannot be divided";
}

TEST_F(MonthLoader, TellsWhatStandsUnderNobodysNumber) {
  EXPECT_TRUE(nobodysPresence().empty() && sentenceOn({}).isEmpty());
  signIn(QStringLiteral("a1"), QStringLiteral("2028-02-10 08:00:00"));
  signIn(QStringLiteral("Z9"), QStringLiteral("2028-02-10 08:00:00"));
  signIn(QStringLiteral("z9"), QStringLiteral("2028-02-29 23:59:59"));
  signIn(QStringLiteral("B1"), QStringLiteral("2028-02-11 08:00:00"));
  signIn(QStringLiteral("B1"), QStringLiteral("2028-03-01 08:00:00"));
  // Without a department somebody is in no list, but no nobody.
  home.insertEmployee(QStringLiteral("A3"), QStringLiteral("丙"), 99, {});
  signIn(QStringLiteral("A3"), QStringLiteral("2028-02-11 08:00:00"));

  const MonthData month = loadMonth(february, QStringLiteral("青禾"));
  EXPECT_EQ(month.presence->Count(), 2);
  EXPECT_EQ(month.employees.size(), 2u);
  ASSERT_EQ(month.nobodys.size(), 2u);
  EXPECT_EQ(month.nobodys[0].number + QString::number(month.nobodys[0].records), QStringLiteral("B11"));
  EXPECT_EQ(month.nobodys[1].records, 2) << "in whatever letter case";
  EXPECT_TRUE(sentenceOn(month.nobodys).contains(QStringLiteral("另有 3 条考勤记录")));
  EXPECT_EQ(nobodysPresence()[0].records, 2);
}

TEST_F(MonthLoader, ASentenceOnNobodysRecordsNamesTheFirstNumbers) {
  std::vector<NobodysPresence> many;
  for (int i = 1; i <= 30; ++i) many.push_back({QStringLiteral("%1").arg(i), 2});
  const QString sentence = sentenceOn(many);
  EXPECT_TRUE(sentence.contains(QStringLiteral("另有 60 条")) &&
              sentence.contains(QStringLiteral("等 30 个员工号")));
  EXPECT_TRUE(sentence.contains(QStringLiteral("、5（2 条）等")) &&
              !sentence.contains(QStringLiteral("、6")));
}

TEST_F(MonthLoader, AFailingDatabaseIsAnErrorWithItsReason) {
  execute(QStringLiteral("DROP TABLE Presence"));
  EXPECT_TRUE(
      support::thrown([&] { std::ignore = presence(); }).description().contains(QLatin1String("Presence")));
}
