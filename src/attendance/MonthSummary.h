#pragma once

#include <vector>

#include <QDate>
#include <QTime>

#include "attendance/clsEmployeePresenceSet.h"
#include "records/EmployeeNames.h"

/// One employee's month in a line.
struct MonthSummary {
  EmployeeName employee;
  int daysSignedIn = 0;
  /// Of the days signed in, those without a sign-out.
  int daysNotSignedOut = 0;
  /// Times of day; invalid when there is none.
  QTime earliestArrival;
  QTime latestDeparture;
};

/// A line for each of `names`, also for those without a record, then for those that have records but stand
/// under no name.
[[nodiscard]] std::vector<MonthSummary> summarize(const std::vector<EmployeeName>& names,
                                                  const clsEmployeePresenceSet& presence,
                                                  const std::vector<QDate>& days);
