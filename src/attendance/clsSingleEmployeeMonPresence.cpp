#include "attendance/clsSingleEmployeeMonPresence.h"

#include "runtime/DefaultText.h"
#include "runtime/RuntimeError.h"

namespace {

qint64 dayKey(const QDateTime& moment) {
  return moment.date().toJulianDay();
}

}  // namespace

QDateTime clsSingleEmployeeMonPresence::GetExitTime(const QDate& specDay) const {
  return m_exitTimes.value(specDay.toJulianDay(), runtime::zeroDateTime());
}

QDateTime clsSingleEmployeeMonPresence::GetEnterTime(const QDate& specDay) const {
  return m_enterTimes.value(specDay.toJulianDay(), runtime::zeroDateTime());
}

void clsSingleEmployeeMonPresence::AddPresence(const QDateTime& enterTime, const QDateTime& exitTime) {
  const bool enterTaken = m_enterTimes.contains(dayKey(enterTime));
  if (tryAddPresence(enterTime, exitTime)) return;
  throw runtime::RuntimeError(
      runtime::ErrorNumber::DuplicateKey,
      QStringLiteral("编号为[%1]的员工在%2已有%3记录")
          .arg(m_enumber, runtime::dateText((enterTaken ? enterTime : exitTime).date()),
               enterTaken ? QStringLiteral("签到") : QStringLiteral("签退")));
}

bool clsSingleEmployeeMonPresence::tryAddPresence(const QDateTime& enterTime, const QDateTime& exitTime) {
  const auto file = [](Days& days, const QDateTime& moment) {
    QDateTime& place = days[dayKey(moment)];
    if (!place.isNull()) return false;
    place = moment;
    return true;
  };
  return file(m_enterTimes, enterTime) && file(m_exitTimes, exitTime);
}
