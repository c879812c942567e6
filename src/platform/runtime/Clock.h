#pragma once

#include <QDateTime>

namespace runtime {

/// Where the program reads the time. Only this room asks the system.
class Clock {
 public:
  Clock() = default;
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;
  virtual ~Clock() = default;

  /// The current moment in local time.
  [[nodiscard]] virtual QDateTime now() const = 0;
};

/// The current local moment by the installed clock, the system's unless another is installed.
[[nodiscard]] QDateTime now();

/// Installs `clock` (null: the system's) and returns the one that was installed before (null: the
/// system's). The caller keeps ownership.
const Clock* installClock(const Clock* clock);

/// Names the system's time zone to the C library unless it is named already. Without a name it looks at the
/// zone's file for every moment that is made, tens of thousands of times for a month. To be called before
/// anything asks for local time.
void nameTimeZone();

}  // namespace runtime
