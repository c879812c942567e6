#include <thread>

#include <QFile>

#include "attendance/AttendanceFixture.h"
#include "attendance/SignIn.h"
#include "attendance/clsPresence.h"
#include "support/FullDisk.h"

namespace {

using std::chrono::milliseconds;

class SigningIn : public AttendanceTest {
 protected:
  /// Signs A1 in or out; sleeping moves the clock.
  SignInAnswer sign() {
    const SignIn rule([this](milliseconds time) {
      m_slept += time;
      m_clock.set(m_clock.now().addMSecs(time.count()));
    });
    return rule.sign(QStringLiteral("A1"));
  }

  milliseconds m_slept{0};
};

TEST_F(SigningIn, TheFirstSecondOfADayIsWaitedOut) {
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-15 18:00:00"));
  setTime(0, 0, 0, 250);
  EXPECT_EQ(sign().result, clsPresence::SignInWritten);
  EXPECT_EQ(m_slept.count(), 750);
  EXPECT_EQ(rows(), "A1 2026-11-15 18:00:00 -; A1 2026-11-16 00:00:01 -");
  m_clock.set(moment(16, 23, 59, 59, 999));
  EXPECT_EQ(sign().result, clsPresence::SignOutWritten);
  EXPECT_EQ(m_slept.count(), 750);
}

/// Strikes midnight at its second reading, when the lock has come, and has passed it from the third on.
class StrikingClock : public support::FixedClock {
 public:
  using FixedClock::FixedClock;
  QDateTime now() const override {
    return ++m_readings == 2 ? FixedClock::now().addSecs(1)
                             : FixedClock::now().addSecs(m_readings > 2 ? 2 : 0);
  }

 private:
  mutable int m_readings = 0;
};

TEST_F(SigningIn, MidnightWhileWaitingForTheLockIsWaitedOutToo) {
  insert(QStringLiteral("A1"), QStringLiteral("2026-11-15 18:00:00"));
  const StrikingClock clock(moment(15, 23, 59, 59));
  EXPECT_EQ(SignIn([](milliseconds) {}).sign(QStringLiteral("A1")).result, clsPresence::SignInWritten);
  EXPECT_EQ(rows(), "A1 2026-11-15 18:00:00 -; A1 2026-11-16 00:00:01 -");
}

TEST_F(SigningIn, TwoStationsCannotBothSignTheSameCardIn) {
  m_connection->BeginTrans();
  std::thread other([this] {
    std::this_thread::sleep_for(milliseconds(200));
    insert(QStringLiteral("A1"), QStringLiteral("2026-11-16 08:00:00"));
    m_connection->CommitTrans();
  });
  const SignInAnswer answer = sign();
  other.join();
  EXPECT_EQ(answer.result, clsPresence::RepeatedScan);
  EXPECT_EQ(rows(), "A1 2026-11-16 08:00:00 -");
}

TEST_F(SigningIn, WhatCannotBeStoredIsNotCalledStored) {
  {
    EXPECT_EQ(sign().result, clsPresence::SignInWritten);
    const support::FullDisk disk(0);
    setTime(9, 0);
    const SignInAnswer full = sign();
    EXPECT_EQ(full.result, clsPresence::WriteFailed);
    EXPECT_EQ(full.text, QStringLiteral("记录失败，请联系管理员"));
    EXPECT_NE(full.failure.words, QString());
  }
  EXPECT_EQ(rows(), "A1 2026-11-16 08:00:00 -");
  EXPECT_EQ(sign().result, clsPresence::SignOutWritten);
}

TEST_F(SigningIn, AFileThatIsGoneIsNoticedAndTakenUpWhenItIsBack) {
  EXPECT_EQ(sign().result, clsPresence::SignInWritten);
  setTime(9, 0);
  const QString away = m_home.file(QStringLiteral("away"));
  ASSERT_TRUE(QFile::rename(m_home.databaseFile(), away));
  const SignInAnswer gone = sign();
  EXPECT_EQ(gone.result, clsPresence::NotChecked);
  EXPECT_FALSE(gone.succeeded());
  EXPECT_TRUE(gone.failure.words.contains(m_home.databaseFile()));
  ASSERT_TRUE(QFile::rename(away, m_home.databaseFile()));
  EXPECT_EQ(sign().result, clsPresence::SignOutWritten);
}

}  // namespace
