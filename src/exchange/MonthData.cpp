#include "exchange/MonthData.h"

#include "attendance/MonthLoader.h"

MonthData loadMonthData(const AttendanceMonth& month, const QString& unit) {
  return {month, unit, loadMonth(month), loadEmployeeNames()};
}

QString weekdayText(const QDate& day) {
  return QStringLiteral("一二三四五六日").mid(day.dayOfWeek() - 1, 1);
}
