#pragma once

#include "attendance/MonthData.h"

/// Writes the month as a workbook to `path`. Sheet 月考勤: a row an employee with a record, a pair of columns
/// a day (arrival, departure); sheet 汇总: a row an employee, absent ones too. Numbers of employees and times
/// are texts. The file is replaced only by a complete one. Throws runtime::RuntimeError.
void writeMonthWorkbook(const MonthData& data, const QString& path);
