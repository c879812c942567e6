#pragma once

#include <memory>
#include <vector>

#include "attendance/AttendanceMonth.h"
#include "attendance/NobodysPresence.h"
#include "attendance/clsEmployeePresenceSet.h"
#include "records/EmployeeNames.h"

/// A month as every document shows it: report, workbook and text.
struct MonthData {
  AttendanceMonth month;
  /// Name of the unit.
  QString unit;
  /// Who has a record in the month, with the days. Never null.
  std::shared_ptr<clsEmployeePresenceSet> presence;
  /// The employees of the list, absent ones too.
  std::vector<EmployeeName> employees;
  /// What stands under no employee's number and is therefore in none of the above.
  std::vector<NobodysPresence> nobodys;
};

/// Loads the month, however many records it has. Throws runtime::RuntimeError with the reason.
[[nodiscard]] MonthData loadMonth(const AttendanceMonth& month, const QString& unit);
