// Loads the records of the 22 days from FIRST on, as 2026-10-01. Prints the seconds that took, without
// opening the database, and how many employees there were.

#include <chrono>
#include <cstdio>

#include <QCoreApplication>

#include "attendance/clsEmployeePresenceSet.h"
#include "foundation/GlobalDefine.h"
#include "foundation/clsDbConn.h"
#include "runtime/Clock.h"
#include "runtime/ProgramDirectory.h"

int main(int argc, char** argv) {
  runtime::nameTimeZone();
  const QCoreApplication application(argc, argv);
  if (argc != 3) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  const QDate first = QDate::fromString(QString::fromLocal8Bit(argv[2]), Qt::ISODate);
  if (!clsDbConn().GetDbConn()) return 1;

  const auto start = std::chrono::steady_clock::now();
  clsEmployeePresenceSet set;
  if (!set.LoadByDate(first, first.addDays(21))) return 1;
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::printf("seconds %.4f\nemployees %d\n", taken.count(), set.Count());
  gConnection.reset();
  return 0;
}
