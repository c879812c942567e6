// Gives every employee of a home an arrival and a departure on each of DAYS days from FIRST on, as
// 2026-10-01, and takes away what was there.

#include <QCoreApplication>

#include "foundation/GlobalDefine.h"
#include "foundation/Schema.h"
#include "foundation/clsDbConn.h"
#include "runtime/DefaultText.h"
#include "runtime/ProgramDirectory.h"

namespace {

/// An expression that spreads the employees over two hours.
QString moment(const QDate& day, int hour) {
  return QStringLiteral("'%1 %2' || (%3 + ID % 2) || ':' || (10 + (ID * 7 + %4) % 50) || ':00'")
      .arg(runtime::dateText(day), hour < 10 ? QStringLiteral("0") : QString())
      .arg(hour)
      .arg(13 * day.day());
}

void fillDay(ado::Connection& connection, const QDate& day) {
  std::ignore = connection.Execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME, EXITTIME) SELECT ENUMBER, ") + moment(day, 7) +
      QStringLiteral(", ") + moment(day, 17) + QStringLiteral(" FROM Employee"));
}

/// Millions of rows are sorted into an index much faster than they are put into it one by one.
void fill(ado::Connection& connection, const QDate& first, int days) {
  const QStringList indices =
      schemaStatements().filter(QStringLiteral(" ON Presence ")).filter(QStringLiteral("CREATE INDEX"));
  for (const QString& index : indices) {
    std::ignore = connection.Execute(QStringLiteral("DROP INDEX ") + index.section(u' ', 2, 2));
  }
  std::ignore = connection.Execute(QStringLiteral("DELETE FROM Presence"));
  for (int day = 0; day < days; ++day) fillDay(connection, first.addDays(day));
  for (const QString& index : indices) std::ignore = connection.Execute(index);
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 4) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  const auto connection = clsDbConn().GetDbConn();
  connection->BeginTrans();
  fill(*connection, QDate::fromString(QString::fromLocal8Bit(argv[2]), Qt::ISODate),
       QByteArray(argv[3]).toInt());
  connection->CommitTrans();
  gConnection.reset();
  return 0;
}
