#include "attendance/AttendanceFixture.h"
#include "attendance/clsPresenceSet.h"

namespace {

class PresenceSet : public AttendanceTest {
 protected:
  [[nodiscard]] QString loadedDays(const QDate& first, const QDate& last) {
    clsPresenceSet set;
    EXPECT_TRUE(set.LoadSet(first, last));
    QStringList texts;
    for (const auto& record : set) texts.append(runtime::dateTimeText(record->enterTime()).mid(8));
    texts.sort();
    return texts.join(u',');
  }
};

TEST_F(PresenceSet, ARangeHoldsItsLastDayToTheLastSecond) {
  for (const char* text : {"2026-11-02 23:59:59", "2026-11-03", "2026-11-03 00:00:01", "2026-11-03 23:59:59",
                           "2026-11-04", "2026-11-30 23:59:59"}) {
    insert(QStringLiteral("A1"), QString::fromLatin1(text));
  }
  EXPECT_EQ(loadedDays(QDate(2026, 11, 3), QDate(2026, 11, 3)), QStringLiteral("03,03 00:00:01,03 23:59:59"));
  EXPECT_EQ(loadedDays(QDate(2026, 11, 4), QDate(2026, 11, 30)), QStringLiteral("04,30 23:59:59"));
  EXPECT_EQ(loadedDays(QDate(2026, 12, 1), QDate(2026, 12, 31)), QString());
}

TEST_F(PresenceSet, RecordsCarryNameAndTimesAndAreAppended) {
  insert(QStringLiteral("A2"), QStringLiteral("2026-11-16 07:00:00"), QStringLiteral("2026-11-16 17:00:00"));
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-15 07:00:00"));
  insert(QStringLiteral("gone"), QStringLiteral("2026-11-16 07:00:00"));
  clsPresenceSet set;
  ASSERT_TRUE(set.LoadToday());
  ASSERT_EQ(set.Count(), 1);
  const auto today = set.Item(1);
  EXPECT_EQ(today->ENUMBER(), QStringLiteral("A2"));
  EXPECT_EQ(today->ENAME(), QStringLiteral("李四"));
  EXPECT_EQ(today->enterTime(), moment(16, 7, 0));
  EXPECT_EQ(today->exitTime(), moment(16, 17, 0));
  ASSERT_TRUE(set.LoadSet(QDate(2026, 11, 15), QDate(2026, 11, 15)));
  ASSERT_EQ(set.Count(), 2);
  EXPECT_TRUE(runtime::isZero(set.Item(2)->exitTime()));
  EXPECT_EQ(set.Item(1), today);
}

TEST_F(PresenceSet, FailuresKeepWhatWasLoaded) {
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-16 07:00:00"));
  clsPresenceSet set;
  ASSERT_TRUE(set.LoadToday());
  setTime(0, 0);
  EXPECT_FALSE(set.LoadToday());
  EXPECT_NE(set.lastFailure(), QString());
  ASSERT_EQ(m_connection->Execute(QStringLiteral("UPDATE Employee SET ENAME = NULL WHERE ENUMBER = 'A2'")),
            1);
  insert(QStringLiteral("A2"), QStringLiteral("2026-11-16 08:00:00"));
  EXPECT_FALSE(set.LoadSet(QDate(2026, 11, 16), QDate(2026, 11, 16)));
  EXPECT_EQ(set.Count(), 2);
}

}  // namespace
