#include "attendance/AttendanceMonth.h"

#include <QRegularExpression>

namespace {
/// Up to this day of a month people still work on the month before.
constexpr int lastDayOfMonthBefore = 5;
}  // namespace

std::optional<AttendanceMonth> AttendanceMonth::make(int year, int month) {
  const QDate first(year, month, 1);
  if (!first.isValid() || year < 1000 || year > 9999) return std::nullopt;
  return AttendanceMonth(first);
}

std::optional<AttendanceMonth> AttendanceMonth::parse(const QString& text) {
  static const QRegularExpression form(QStringLiteral("^([0-9]{4})-([0-9]{2})\\z"));
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  const int year = match.captured(1).toInt();
  if (year < firstYear || year > lastYear) return std::nullopt;
  return make(year, match.captured(2).toInt());
}

AttendanceMonth AttendanceMonth::proposedOn(const QDate& today) {
  const QDate first(today.year(), today.month(), 1);
  return AttendanceMonth(today.day() <= lastDayOfMonthBefore ? first.addMonths(-1) : first);
}

std::vector<QDate> AttendanceMonth::days() const {
  std::vector<QDate> all;
  all.reserve(31);
  for (QDate day = m_first; day <= lastDay(); day = day.addDays(1)) all.push_back(day);
  return all;
}

QString AttendanceMonth::text() const {
  return QStringLiteral("%1年%2月").arg(year()).arg(month());
}

QString AttendanceMonth::title(const QString& unit) const {
  return unit + text() + QStringLiteral("员工考勤报表");
}

QString weekdayText(const QDate& day) {
  return QStringLiteral("一二三四五六日").mid(day.dayOfWeek() - 1, 1);
}
