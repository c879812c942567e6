#include "attendance/clsPresenceSet.h"

#include "ado/Recordset.h"
#include "attendance/TodayKey.h"
#include "foundation/Attempt.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "runtime/Clock.h"
#include "runtime/Conversions.h"

namespace {

QString rangeQuery(const QDate& startDate, const QDate& endDate) {
  return QStringLiteral(
             "SELECT Employee.ENAME, Presence.* from Presence, Employee"
             " WHERE Employee.ENUMBER = Presence.ENUMBER AND ENTERTIME >= ") +
         sql::date(startDate) + QStringLiteral(" AND  ENTERTIME < ") + sql::date(endDate.addDays(1));
}

}  // namespace

bool clsPresenceSet::LoadSet(const QDate& startDate, const QDate& endDate) {
  return attempt(m_lastFailure, false, [&] {
    ado::Recordset rows;
    rows.Open(rangeQuery(startDate, endDate), clsDbConn().GetDbConn());
    // Looked up once for all rows.
    const ado::Field& number = rows.Fields(QStringLiteral("ENUMBER"));
    const ado::Field& name = rows.Fields(QStringLiteral("ENAME"));
    const ado::Field& entered = rows.Fields(QStringLiteral("ENTERTIME"));
    const ado::Field& left = rows.Fields(QStringLiteral("EXITTIME"));
    for (; !rows.IsEOF(); rows.MoveNext()) {
      const QVariant exit = left.Value();
      Add(runtime::toText(number.Value()), runtime::toDateTime(entered.Value()),
          runtime::isNull(exit) ? runtime::zeroDateTime() : runtime::toDateTime(exit),
          runtime::toText(name.Value()));
    }
    rows.Close();
    return true;
  });
}

bool clsPresenceSet::LoadToday() {
  QDate today;
  const bool known = attempt(m_lastFailure, false, [&today] {
    today = runtime::toDateTime(todayKey(runtime::now())).date();
    return true;
  });
  return known && LoadSet(today, today);
}

std::shared_ptr<clsPresence> clsPresenceSet::Add(const QString& ENUMBER, const QDateTime& enterTime,
                                                 const QDateTime& exitTime, const QString& ENAME,
                                                 const QString& sKey) {
  auto presence = std::make_shared<clsPresence>();
  presence->setENUMBER(ENUMBER);
  presence->setenterTime(enterTime);
  presence->setexitTime(exitTime);
  presence->setENAME(ENAME);
  m_members.Add(presence, sKey);
  return presence;
}
