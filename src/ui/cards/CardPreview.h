#pragma once

#include <memory>

#include "printing/SingleEmployeeInfoReport.h"

/// Runs the report on `employees` and shows its preview until the user closes it; tells in one message which
/// photos could not be read. The report lets go of the employees when the preview closes.
void showCardPreview(SingleEmployeeInfoReport& report, std::shared_ptr<clsEmployeeSet> employees);
