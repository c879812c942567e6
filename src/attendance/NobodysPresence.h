#pragma once

#include <vector>

#include <QString>

#include "attendance/AttendanceMonth.h"

/// Records under a number that no employee has: of somebody who was removed, as a rule. Lists and reports
/// leave them out.
struct NobodysPresence {
  QString number;
  int records = 0;
};

/// All of them, by number. Throws runtime::RuntimeError.
[[nodiscard]] std::vector<NobodysPresence> nobodysPresence();
/// Those that signed in in the month.
[[nodiscard]] std::vector<NobodysPresence> nobodysPresence(const AttendanceMonth& month);

/// A sentence that says how many there are and under which numbers, the first few of them; empty when there
/// are none.
[[nodiscard]] QString sentenceOn(const std::vector<NobodysPresence>& records);
