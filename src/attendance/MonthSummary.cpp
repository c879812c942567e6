#include "attendance/MonthSummary.h"

#include <QHash>

#include "runtime/DefaultText.h"

namespace {

using Entry = std::shared_ptr<clsSingleEmployeeMonPresence>;

void addDay(MonthSummary& summary, const QDateTime& enter, const QDateTime& exit) {
  const bool left = !runtime::isZero(exit);
  if (left && (!summary.latestDeparture.isValid() || exit.time() > summary.latestDeparture)) {
    summary.latestDeparture = exit.time();
  }
  if (runtime::isZero(enter)) return;
  ++summary.daysSignedIn;
  if (!left) ++summary.daysNotSignedOut;
  if (!summary.earliestArrival.isValid() || enter.time() < summary.earliestArrival) {
    summary.earliestArrival = enter.time();
  }
}

MonthSummary summaryOf(const EmployeeName& name, const Entry& entry, const std::vector<QDate>& days) {
  MonthSummary summary;
  summary.employee = name;
  if (!entry) return summary;
  for (const QDate& day : days) addDay(summary, entry->GetEnterTime(day), entry->GetExitTime(day));
  return summary;
}

}  // namespace

std::vector<MonthSummary> summarize(const std::vector<EmployeeName>& names,
                                    const clsEmployeePresenceSet& presence, const std::vector<QDate>& days) {
  QHash<QString, Entry> unnamed;
  for (const Entry& entry : presence) unnamed.insert(entry->ENUMBER().toCaseFolded(), entry);
  std::vector<MonthSummary> summaries;
  summaries.reserve(names.size());
  for (const EmployeeName& name : names) {
    summaries.push_back(summaryOf(name, unnamed.take(name.ENUMBER.toCaseFolded()), days));
  }
  for (const Entry& entry : presence) {
    if (!unnamed.contains(entry->ENUMBER().toCaseFolded())) continue;
    summaries.push_back(summaryOf({entry->ENUMBER(), entry->ENAME()}, entry, days));
  }
  return summaries;
}
