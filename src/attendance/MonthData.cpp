#include "attendance/MonthData.h"

#include "attendance/MonthLoader.h"

MonthData loadMonth(const AttendanceMonth& month, const QString& unit) {
  auto presence = std::make_shared<clsEmployeePresenceSet>();
  loadInRanges(*presence, month.firstDay(), month.lastDay());
  return {month, unit, std::move(presence), loadEmployeeNames(), nobodysPresence(month)};
}
