#include "station/SignInFigures.h"

#include "ado/Recordset.h"
#include "attendance/clsPresenceSet.h"
#include "foundation/Attempt.h"
#include "foundation/clsDbConn.h"
#include "runtime/Clock.h"
#include "runtime/Conversions.h"

namespace {

/// The end of an index, however many rows there are.
std::optional<QDateTime> latestSignIn() {
  ado::Recordset row;
  row.Open(QStringLiteral("SELECT MAX(ENTERTIME) FROM Presence"), clsDbConn().GetDbConn());
  const QVariant latest = row.Fields(0).Value();
  if (runtime::isNull(latest)) return {};
  return runtime::toDateTime(latest);
}

}  // namespace

bool SignInFigures::load() {
  const QDate day = runtime::now().date();
  clsPresenceSet today;
  if (!today.LoadToday()) {
    m_lastFailure = today.lastFailure();
    return false;
  }
  return attempt(m_lastFailure, false, [&] {
    m_latest = latestSignIn();
    m_count = today.Count();
    m_day = day;
    return true;
  });
}

void SignInFigures::add(const QDateTime& moment) {
  if (m_count && moment.date() == m_day) ++*m_count;
  if (!m_latest || *m_latest < moment) m_latest = moment;
}
