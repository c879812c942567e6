#pragma once

#include <memory>

#include "attendance/AttendanceMonth.h"
#include "attendance/clsEmployeePresenceSet.h"

/// The month's records, in a set of their own. A month that holds more of them than the set takes at once is
/// loaded in shorter ranges one after the other. Throws runtime::RuntimeError with the reason when the
/// database fails or a single day holds too many.
[[nodiscard]] std::shared_ptr<clsEmployeePresenceSet> loadMonth(const AttendanceMonth& month);

/// Adds the records from `first` to the end of `last` to `set`, at most `atOnce` in one go unless they are of
/// one day. Throws like loadMonth; the set then holds a part.
void loadInRanges(clsEmployeePresenceSet& set, const QDate& first, const QDate& last, int atOnce);
