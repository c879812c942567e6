// Signs COUNT employees of a home in, each in a transaction of its own, on a day on which nobody was there
// yet. Prints the seconds that took, without opening the database.

#include <chrono>
#include <cstdio>

#include <QCoreApplication>

#include "ado/Recordset.h"
#include "attendance/SignIn.h"
#include "attendance/clsPresence.h"
#include "foundation/GlobalDefine.h"
#include "foundation/clsDbConn.h"
#include "runtime/Clock.h"
#include "runtime/ProgramDirectory.h"

namespace {

/// A clock that stands at eight on the day after the last arrival.
class NextMorning : public runtime::Clock {
 public:
  NextMorning() {
    ado::Recordset last;
    last.Open(QStringLiteral("SELECT MAX(ENTERTIME) FROM Presence"), clsDbConn().GetDbConn());
    const QDate day = QDate::fromString(last.Fields(0).Value().toString().left(10), Qt::ISODate);
    m_now = QDateTime(day.addDays(1), QTime(8, 0));
  }
  [[nodiscard]] QDateTime now() const override { return m_now; }

 private:
  QDateTime m_now;
};

QStringList numbers(int count) {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT ENUMBER FROM Employee"), clsDbConn().GetDbConn());
  QStringList all;
  for (; !rows.IsEOF() && all.size() < count; rows.MoveNext()) all.append(rows.Fields(0).Value().toString());
  return all;
}

}  // namespace

int main(int argc, char** argv) {
  runtime::nameTimeZone();
  const QCoreApplication application(argc, argv);
  if (argc != 3) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  const QStringList people = numbers(QByteArray(argv[2]).toInt());
  const NextMorning clock;
  runtime::installClock(&clock);
  const SignIn signIn;

  const auto start = std::chrono::steady_clock::now();
  for (const QString& number : people) {
    if (signIn.sign(number).result != clsPresence::SignInWritten) return 1;
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::printf("seconds %.4f\n", taken.count());
  gConnection.reset();
  return 0;
}
