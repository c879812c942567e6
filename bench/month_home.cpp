// Gives every employee of a home an arrival and a departure on each day of a month: MONTH as 2026-10.

#include <QCoreApplication>

#include "attendance/AttendanceMonth.h"
#include "foundation/GlobalDefine.h"
#include "foundation/clsDbConn.h"
#include "runtime/DefaultText.h"
#include "runtime/ProgramDirectory.h"

namespace {

/// An expression that spreads the employees over two hours.
QString moment(const QDate& day, int hour) {
  return QStringLiteral("'%1 0' || (%2 + ID % 2) || ':' || (10 + (ID * 7 + %3) % 50) || ':00'")
      .arg(runtime::dateText(day))
      .arg(hour)
      .arg(13 * day.day());
}

void fillDay(ado::Connection& connection, const QDate& day) {
  std::ignore = connection.Execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME, EXITTIME) SELECT ENUMBER, ") + moment(day, 7) +
      QStringLiteral(", ") + moment(day, 17).replace(QStringLiteral(" 0'"), QStringLiteral(" '")) +
      QStringLiteral(" FROM Employee"));
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const auto month = argc == 3 ? AttendanceMonth::parse(QString::fromLocal8Bit(argv[2])) : std::nullopt;
  if (!month) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  const auto connection = clsDbConn().GetDbConn();
  connection->BeginTrans();
  std::ignore = connection->Execute(QStringLiteral("DELETE FROM Presence"));
  for (const QDate& day : month->days()) fillDay(*connection, day);
  connection->CommitTrans();
  gConnection.reset();
  return 0;
}
