#pragma once

#include "attendance/MonthData.h"

/// Writes the month as text to `path`: UTF-8 with a byte order mark, CR LF, a heading, then a line for each
/// day of each employee who has a record in the month. The file is replaced only by a complete one. Throws
/// runtime::RuntimeError.
void writeMonthCsv(const MonthData& data, const QString& path);
