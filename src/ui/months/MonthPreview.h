#pragma once

#include "printing/EmployeeMonthReport.h"

/// Runs the report and shows its preview until the user closes it.
void showMonthPreview(EmployeeMonthReport& report);
