#include "attendance/MonthLoader.h"

#include "ado/Recordset.h"
#include "attendance/clsPresenceSet.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"
#include "runtime/RuntimeError.h"

namespace {

int recordsBetween(const QDate& first, const QDate& last) {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT COUNT(*) FROM Presence WHERE ENTERTIME >= ") + sql::date(first) +
                QStringLiteral(" AND ENTERTIME < ") + sql::date(last.addDays(1)),
            clsDbConn().GetDbConn());
  return runtime::toInt32(rows.Fields(0).Value());
}

}  // namespace

void loadInRanges(clsEmployeePresenceSet& set, const QDate& first, const QDate& last, int atOnce) {
  if (first < last && recordsBetween(first, last) > atOnce) {
    const QDate middle = first.addDays(first.daysTo(last) / 2);
    loadInRanges(set, first, middle, atOnce);
    loadInRanges(set, middle.addDays(1), last, atOnce);
    return;
  }
  clsPresenceSet records;
  if (records.LoadSet(first, last)) return set.AddRecords(records);
  throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall,
                              QStringLiteral("考勤记录无法读取：") + records.lastFailure(),
                              records.lastFailureKind());
}
