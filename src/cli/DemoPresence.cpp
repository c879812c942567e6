#include "cli/DemoPresence.h"

#include <QStringList>

#include "cli/DemoRandom.h"
#include "foundation/SqlText.h"
#include "runtime/DefaultText.h"

namespace cli {

namespace {

// One statement a few hundred rows: a statement a row takes four times as long.
constexpr qsizetype rowsPerStatement = 400;
constexpr int absentPercent = 4;
constexpr int forgottenPercent = 5;

/// The moment at `hour`:00 plus up to `spread` seconds, never on a full minute's edge.
QString momentText(const QDate& day, int hour, int spread, DemoRandom& random) {
  return runtime::dateTimeText(QDateTime(day, QTime(hour, 0).addSecs(random.below(spread))));
}

QString rowText(const DemoPerson& person, const QDate& day, DemoRandom& random) {
  constexpr int morningSpread = 75 * 60;
  constexpr int eveningSpread = 90 * 60;
  const QString entered = sql::quoted(momentText(day, 7, morningSpread, random));
  const QString left = random.percent(forgottenPercent)
                           ? QStringLiteral("NULL")
                           : sql::quoted(momentText(day, 17, eveningSpread, random));
  return QStringLiteral("(%1,%2,%3)").arg(sql::quoted(person.number), entered, left);
}

void insertRows(ado::Connection& connection, QStringList& rows) {
  if (rows.isEmpty()) return;
  std::ignore = connection.Execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME, EXITTIME) VALUES ") + rows.join(u','));
  rows.clear();
}

}  // namespace

std::vector<QDate> workingDays(const QDate& first, const QDate& last) {
  std::vector<QDate> days;
  for (QDate day = first; day <= last; day = day.addDays(1)) {
    if (day.dayOfWeek() <= Qt::Friday) days.push_back(day);
  }
  return days;
}

int insertPresence(ado::Connection& connection, const std::vector<DemoPerson>& people,
                   const std::vector<QDate>& days) {
  int inserted = 0;
  QStringList rows;
  for (const QDate& day : days) {
    DemoRandom random(static_cast<std::uint64_t>(day.toJulianDay()));
    for (const DemoPerson& person : people) {
      if (random.percent(absentPercent)) continue;
      rows.append(rowText(person, day, random));
      ++inserted;
      if (rows.size() == rowsPerStatement) insertRows(connection, rows);
    }
  }
  insertRows(connection, rows);
  return inserted;
}

}  // namespace cli
