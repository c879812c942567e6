#pragma once

#include <vector>

#include <QString>

struct EmployeeName {
  QString ENUMBER;
  QString ENAME;
};

/// The employees of the list, those with a department, in the order in which they were entered; no photo is
/// touched. Throws runtime::RuntimeError.
[[nodiscard]] std::vector<EmployeeName> loadEmployeeNames();
