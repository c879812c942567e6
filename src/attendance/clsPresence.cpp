#include "attendance/clsPresence.h"

#include <algorithm>
#include <tuple>

#include "ado/Recordset.h"
#include "attendance/TodayKey.h"
#include "foundation/Attempt.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "runtime/Clock.h"
#include "runtime/Conversions.h"

namespace {

constexpr qint64 repeatSeconds = 60;

QString todayPattern(const QDateTime& now) {
  return sql::quoted(todayKey(now) + u'%');
}

/// Seconds by the clock on the wall, as the moments are stored, whatever the time zone does in between.
qint64 wallSeconds(const QDateTime& from, const QDateTime& to) {
  constexpr qint64 secondsPerDay = 86'400;
  return from.date().daysTo(to.date()) * secondsPerDay + from.time().secsTo(to.time());
}

QString insertion(const QString& number, const QDateTime& now) {
  return QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES(%1,%2)")
      .arg(sql::quoted(number), sql::quoted(runtime::dateTimeText(now)));
}

QString signOut(const QString& number, const QDateTime& now) {
  return QStringLiteral("UPDATE Presence SET EXITTIME = %1 WHERE ENUMBER=%2 AND ENTERTIME LIKE %3")
      .arg(sql::quoted(runtime::dateTimeText(now)), sql::quoted(number), todayPattern(now));
}

void execute(const QString& statement) {
  std::ignore = ado::required(clsDbConn().GetDbConn()).Execute(statement);
}

}  // namespace

std::int16_t clsPresence::CheckState() {
  return checkState(runtime::now());
}

std::int16_t clsPresence::Add() {
  return Add(runtime::now());
}

std::int16_t clsPresence::Add(const QDateTime& now) {
  const State state = checkState(now);
  if (state != NotSignedIn && state != MaySignOut) return state;
  return attempt(m_lastFailure, std::int16_t{WriteFailed}, [&]() -> std::int16_t {
    execute(state == NotSignedIn ? insertion(m_enumber, now) : signOut(m_enumber, now));
    return state == NotSignedIn ? SignInWritten : SignOutWritten;
  });
}

clsPresence::State clsPresence::checkState(const QDateTime& now) {
  m_secondsLeft = 0;
  return attempt(m_lastFailure, CheckFailed, [&] { return readState(now); });
}

clsPresence::State clsPresence::readState(const QDateTime& now) {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT * FROM Presence WHERE ENUMBER = ") + sql::quoted(m_enumber) +
                QStringLiteral(" AND ENTERTIME LIKE ") + todayPattern(now),
            clsDbConn().GetDbConn());
  if (rows.IsEOF()) return NotSignedIn;
  if (!runtime::isNull(rows.Fields(QStringLiteral("EXITTIME")).Value())) return SignedOut;
  const QDateTime entered = runtime::toDateTime(rows.Fields(QStringLiteral("ENTERTIME")).Value());
  const qint64 seconds = wallSeconds(entered, now);
  if (seconds > repeatSeconds) return MaySignOut;
  m_secondsLeft = static_cast<int>(std::max(repeatSeconds - seconds, qint64{1}));
  return JustSignedIn;
}
