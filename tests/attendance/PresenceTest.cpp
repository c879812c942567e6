#include <QFile>

#include "attendance/AttendanceFixture.h"
#include "attendance/clsPresence.h"
#include "foundation/GlobalDefine.h"
#include "support/FullDisk.h"

namespace {

class Presence : public AttendanceTest {
 protected:
  Presence() { m_presence.setENUMBER(QStringLiteral("A1")); }

  clsPresence m_presence;
};

TEST_F(Presence, ADayGoesFromSignInToTheFirstSignOut) {
  setTime(8, 0, 0, 900);
  EXPECT_EQ(m_presence.CheckState(), clsPresence::NotSignedIn);
  EXPECT_EQ(m_presence.Add(), 1);
  EXPECT_EQ(rows(), "A1 2026-11-16 08:00:00 -");
  setTime(8, 0, 30);
  EXPECT_EQ(m_presence.Add(), 4);
  EXPECT_EQ(m_presence.secondsLeft(), 30);
  setTime(17, 30, 5);
  EXPECT_EQ(m_presence.CheckState(), clsPresence::MaySignOut);
  EXPECT_EQ(m_presence.secondsLeft(), 0);
  EXPECT_EQ(m_presence.Add(), 2);
  setTime(17, 30, 5);
  EXPECT_EQ(m_presence.Add(), 3);
  setTime(18, 0);
  EXPECT_EQ(m_presence.Add(), 3);
  EXPECT_EQ(rows(), "A1 2026-11-16 08:00:00 2026-11-16 17:30:05");
  EXPECT_EQ(m_presence.lastFailure(), QString());
}

TEST_F(Presence, ExactlySixtySecondsStillCountAsRepeated) {
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-16 08:00:00"));
  // Whole seconds count: a stored moment has no fraction.
  setTime(8, 1, 0, 999);
  EXPECT_EQ(m_presence.CheckState(), clsPresence::JustSignedIn);
  EXPECT_EQ(m_presence.secondsLeft(), 1);
  EXPECT_EQ(m_presence.Add(), 4);
  // Nor may a clock that was set back end the day.
  setTime(7, 0);
  EXPECT_EQ(m_presence.Add(), 4);
  EXPECT_EQ(rows(), "A1 2026-11-16 08:00:00 -");
  setTime(8, 1, 1);
  EXPECT_EQ(m_presence.Add(), 2);
  EXPECT_EQ(rows(), "A1 2026-11-16 08:00:00 2026-11-16 08:01:01");
}

TEST_F(Presence, OnlyTodayAndOnlyThisEmployeeCount) {
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-15 23:59:59"));
  insert(QStringLiteral("A2"), QStringLiteral("2026-11-16 07:00:00"));
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-17 07:00:00"));
  m_clock.set(moment(15, 23, 59, 59));
  EXPECT_EQ(m_presence.CheckState(), clsPresence::JustSignedIn);
  setTime(0, 0, 1);
  EXPECT_EQ(m_presence.Add(), 1);
  setTime(9, 0);
  EXPECT_EQ(m_presence.Add(), 2);
  EXPECT_EQ(rows(),
            "A1 2026-11-15 23:59:59 -; A1 2026-11-16 00:00:01 2026-11-16 09:00:00; "
            "A2 2026-11-16 07:00:00 -; A1 2026-11-17 07:00:00 -");
}

TEST_F(Presence, AtExactlyMidnightEveryDayIsToday) {
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-12 08:00:00"));
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-13 08:00:00"));
  setTime(0, 0, 0, 500);
  EXPECT_EQ(m_presence.CheckState(), clsPresence::MaySignOut);
  EXPECT_EQ(m_presence.Add(), 2);
  EXPECT_EQ(rows(), "A1 2026-11-12 08:00:00 2026-11-16; A1 2026-11-13 08:00:00 2026-11-16");
}

TEST_F(Presence, FailuresAreTold) {
  m_presence.setENUMBER(QStringLiteral("x' OR '1'='1"));
  EXPECT_EQ(m_presence.CheckState(), clsPresence::CheckFailed);
  EXPECT_EQ(m_presence.Add(), -1);
  EXPECT_TRUE(m_presence.lastFailure().contains(m_presence.ENUMBER()));

  m_presence.setENUMBER(QStringLiteral("A1"));
  EXPECT_EQ(m_presence.CheckState(), clsPresence::NotSignedIn);
  EXPECT_EQ(m_presence.lastFailure(), QString());
  {
    const support::FullDisk disk(0);
    EXPECT_EQ(m_presence.Add(), -2);
  }
  EXPECT_NE(m_presence.lastFailure(), QString());
  EXPECT_EQ(rows(), "<null>");

  gConnection.reset();
  m_connection->Close();
  ASSERT_TRUE(QFile::remove(m_home.databaseFile()));
  EXPECT_EQ(m_presence.Add(), -1);
  EXPECT_TRUE(m_presence.lastFailure().contains(m_home.databaseFile()));
}

}  // namespace
