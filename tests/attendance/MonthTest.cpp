#include "attendance/AttendanceFixture.h"
#include "attendance/clsEmployeePresenceSet.h"
#include "runtime/DefaultText.h"
#include "support/Thrown.h"

namespace {

const QDate first(2026, 11, 1);
const QDate last(2026, 11, 30);

QDate day(int number) {
  return {2026, 11, number};
}

class Month : public AttendanceTest {
 protected:
  [[nodiscard]] bool load() { return m_month.LoadByDate(first, last); }
  [[nodiscard]] const clsSingleEmployeeMonPresence& employee(const QString& number) const {
    return *m_month.Item(number);
  }

  clsEmployeePresenceSet m_month;
};

TEST_F(Month, TheFirstRecordOfADayWins) {
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-03 08:00:00"), QStringLiteral("2026-11-03 12:00:00"));
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-03 13:00:00"), QStringLiteral("2026-11-03 17:00:00"));
  insert(QStringLiteral("A2"), QStringLiteral("2026-11-03 09:00:00"), QStringLiteral("2026-11-03 18:00:00"));
  ASSERT_TRUE(load());
  ASSERT_EQ(m_month.Count(), 2);
  EXPECT_EQ(employee(QStringLiteral("A1")).ENAME(), QStringLiteral("张三"));
  EXPECT_EQ(employee(QStringLiteral("A1")).GetEnterTime(day(3)), moment(3, 8, 0));
  EXPECT_EQ(employee(QStringLiteral("A1")).GetExitTime(day(3)), moment(3, 12, 0));
  EXPECT_EQ(employee(QStringLiteral("A2")).GetExitTime(day(3)), moment(3, 18, 0));
  EXPECT_TRUE(runtime::isZero(employee(QStringLiteral("A1")).GetEnterTime(day(4))));
}

TEST_F(Month, EveryDayWithoutSignOutReadsZero) {
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-05 08:00:00"));
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-06 08:01:00"));
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-09 08:02:00"), QStringLiteral("2026-11-10 02:00:00"));
  ASSERT_TRUE(load());
  const auto& days = employee(QStringLiteral("A1"));
  EXPECT_EQ(days.GetEnterTime(day(5)), moment(5, 8, 0));
  EXPECT_EQ(days.GetEnterTime(day(6)), moment(6, 8, 1));
  EXPECT_TRUE(runtime::isZero(days.GetExitTime(day(5))));
  EXPECT_TRUE(runtime::isZero(days.GetExitTime(day(6))));
  // A sign-out stands under its own day.
  EXPECT_TRUE(runtime::isZero(days.GetExitTime(day(9))));
  EXPECT_EQ(days.GetExitTime(day(10)), moment(10, 2, 0));
}

TEST_F(Month, NumbersThatDifferInCaseAreOneEmployeeAndLoadingAgainAppends) {
  insert(QStringLiteral("a1"), QStringLiteral("2026-11-05 08:00:00"));
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-06 08:00:00"));
  insert(QStringLiteral("A2"), QStringLiteral("2026-11-20 08:00:00"));
  ASSERT_TRUE(m_month.LoadByDate(day(7), day(10)));
  ASSERT_EQ(m_month.Count(), 0);
  ASSERT_TRUE(m_month.LoadByDate(first, day(6)));
  ASSERT_EQ(m_month.Count(), 1);
  EXPECT_EQ(employee(QStringLiteral("A1")).GetEnterTime(day(5)), moment(5, 8, 0));
  EXPECT_EQ(employee(QStringLiteral("A1")).GetEnterTime(day(6)), moment(6, 8, 0));
  const auto before = m_month.Item(1);
  ASSERT_TRUE(load());
  EXPECT_EQ(m_month.Count(), 2);
  EXPECT_EQ(m_month.Item(1), before);
}

TEST_F(Month, ATakenDayReachesWhoeverAddsByHand) {
  clsSingleEmployeeMonPresence days;
  days.AddPresence(moment(3, 8, 0), moment(3, 17, 0));
  const auto add = [&days](const QDateTime& enter, const QDateTime& exit) {
    return support::thrownNumber([&] { days.AddPresence(enter, exit); });
  };
  EXPECT_EQ(add(moment(3, 9, 0), moment(4, 18, 0)), runtime::ErrorNumber::DuplicateKey);
  EXPECT_TRUE(runtime::isZero(days.GetExitTime(day(4))));
  EXPECT_EQ(add(moment(5, 9, 0), moment(3, 18, 0)), runtime::ErrorNumber::DuplicateKey);
  EXPECT_EQ(days.GetEnterTime(day(5)), moment(5, 9, 0));
  EXPECT_EQ(days.GetExitTime(day(3)), moment(3, 17, 0));
}

TEST_F(Month, MoreRecordsThanTheCounterTakesReachTheCaller) {
  constexpr int most = 32'767;
  const QString rows = QStringLiteral(
      "INSERT INTO Presence(ENUMBER, ENTERTIME) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
      "FROM n WHERE i < %1) SELECT 'A1', '2026-11-03 08:00:00' FROM n");
  ASSERT_EQ(m_connection->Execute(rows.arg(most)), most);
  EXPECT_TRUE(load());
  EXPECT_EQ(m_month.Count(), 1);
  insert(QStringLiteral("A2"), QStringLiteral("2026-11-04 08:00:00"));
  EXPECT_EQ(support::thrownNumber([&] { std::ignore = load(); }), runtime::ErrorNumber::Overflow);
  EXPECT_EQ(m_month.Count(), 1);
  EXPECT_TRUE(m_month.LoadByDate(day(4), last));
  EXPECT_EQ(m_month.Count(), 2);
}

}  // namespace
