#pragma once

#include <cstdint>

#include <QDateTime>
#include <QString>

#include "runtime/DefaultText.h"
#include "runtime/RuntimeError.h"

/// One employee's working day: a row of table Presence, and the rule that every program keeps which writes to
/// that table: one sign-in a day, a repeated scan within 60 seconds ignored, the first sign-out final.
class clsPresence {
 public:
  /// How the employee stands today.
  enum State : std::int16_t {
    NotSignedIn = 1,
    MaySignOut = 2,
    SignedOut = 3,
    /// Signed in 60 seconds ago or less.
    JustSignedIn = 4,
    CheckFailed = -1,
  };
  /// What Add did; all but the first two wrote nothing, except that after WriteFailed the statement may
  /// have been applied.
  enum Result : std::int16_t {
    SignInWritten = 1,
    SignOutWritten = 2,
    AlreadySignedOut = 3,
    RepeatedScan = 4,
    NotChecked = -1,
    WriteFailed = -2,
  };

  [[nodiscard]] const QString& ENAME() const { return m_ename; }
  void setENAME(const QString& name) { m_ename = name; }
  [[nodiscard]] const QDateTime& exitTime() const { return m_exitTime; }
  /// The zero date-time stands for no sign-out.
  void setexitTime(const QDateTime& moment) { m_exitTime = moment; }
  [[nodiscard]] const QDateTime& enterTime() const { return m_enterTime; }
  void setenterTime(const QDateTime& moment) { m_enterTime = moment; }
  [[nodiscard]] const QString& ENUMBER() const { return m_enumber; }
  void setENUMBER(const QString& number) { m_enumber = number; }

  /// Today's state of the employee ENUMBER, a State. Reads the clock, and at exactly midnight finds the rows
  /// of every day: the caller keeps away from that second.
  [[nodiscard]] std::int16_t CheckState();
  /// Signs the employee ENUMBER in or out as the state allows; a Result. Checking and writing are two
  /// statements: the caller puts a transaction around them where others write as well.
  [[nodiscard]] std::int16_t Add();
  /// As Add, with `now` for the clock.
  [[nodiscard]] std::int16_t Add(const QDateTime& now);

  /// What was left of the minute after today's sign-in, in seconds and at least 1, when the last of the
  /// operations above found JustSignedIn; otherwise 0.
  [[nodiscard]] int secondsLeft() const { return m_secondsLeft; }
  /// The error that ended the last of the operations above; empty when none did.
  [[nodiscard]] const QString& lastFailure() const { return m_lastFailure.words; }
  [[nodiscard]] runtime::FailureKind lastFailureKind() const { return m_lastFailure.kind; }

 private:
  /// What the operations above share: today is the day of `now`.
  [[nodiscard]] State checkState(const QDateTime& now);
  [[nodiscard]] State readState(const QDateTime& now);

  QString m_ename;
  QDateTime m_exitTime = runtime::zeroDateTime();
  QDateTime m_enterTime = runtime::zeroDateTime();
  QString m_enumber;
  int m_secondsLeft = 0;
  runtime::Failure m_lastFailure;
};
