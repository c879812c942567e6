#pragma once

#include <limits>

#include "attendance/clsEmployeePresenceSet.h"

/// Adds the records from `first` to the end of `last` to `set`. Where there are more than `atOnce`, shorter
/// ranges are loaded one after the other, so that never much more than a day's records are held beside the
/// set. Throws runtime::RuntimeError with the reason when the database fails; the set then holds a part.
void loadInRanges(clsEmployeePresenceSet& set, const QDate& first, const QDate& last,
                  int atOnce = std::numeric_limits<std::int16_t>::max());
