#include "attendance/NobodysPresence.h"

#include <QStringList>

#include "ado/Recordset.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"

namespace {

constexpr std::size_t numbersNamed = 5;

std::vector<NobodysPresence> recordsWhere(const QString& condition) {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT ENUMBER, COUNT(*) FROM Presence WHERE ") + condition +
                QStringLiteral("NOT EXISTS (SELECT * FROM Employee WHERE Employee.ENUMBER = Presence.ENUMBER)"
                               " GROUP BY ENUMBER ORDER BY ENUMBER"),
            clsDbConn().GetDbConn());
  std::vector<NobodysPresence> found;
  for (; !rows.IsEOF(); rows.MoveNext()) {
    found.push_back(
        {runtime::toTextOrEmpty(rows.Fields(0).Value()), runtime::toInt32(rows.Fields(1).Value())});
  }
  return found;
}

}  // namespace

std::vector<NobodysPresence> nobodysPresence() {
  return recordsWhere({});
}

std::vector<NobodysPresence> nobodysPresence(const AttendanceMonth& month) {
  return recordsWhere(QStringLiteral("ENTERTIME >= ") + sql::date(month.firstDay()) +
                      QStringLiteral(" AND ENTERTIME < ") + sql::date(month.lastDay().addDays(1)) +
                      QStringLiteral(" AND "));
}

QString sentenceOn(const std::vector<NobodysPresence>& records) {
  if (records.empty()) return {};
  int all = 0;
  QStringList named;
  for (const NobodysPresence& of : records) {
    all += of.records;
    if (named.size() == numbersNamed) continue;
    named.append(of.number + QStringLiteral("（%1 条）").arg(of.records));
  }
  const QString more =
      records.size() > numbersNamed ? QStringLiteral("等 %1 个员工号").arg(records.size()) : QString();
  return QStringLiteral("另有 %1 条考勤记录的员工号已不在员工表中，没有列出：").arg(all) +
         named.join(QStringLiteral("、")) + more;
}
