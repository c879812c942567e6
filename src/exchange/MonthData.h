#pragma once

#include <memory>
#include <vector>

#include "attendance/AttendanceMonth.h"
#include "attendance/clsEmployeePresenceSet.h"
#include "exchange/EmployeeNames.h"

/// What the files of a month are made of.
struct MonthData {
  AttendanceMonth month;
  /// Name of the unit.
  QString unit;
  std::shared_ptr<const clsEmployeePresenceSet> presence;
  std::vector<EmployeeName> employees;
};

/// Loads the month and the employees. Throws runtime::RuntimeError.
[[nodiscard]] MonthData loadMonthData(const AttendanceMonth& month, const QString& unit);

/// 一 to 日.
[[nodiscard]] QString weekdayText(const QDate& day);
