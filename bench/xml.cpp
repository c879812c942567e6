// The XML form of the employees: bench_xml export HOME FILE writes it, bench_xml read FILE reads it row by
// row.

#include <chrono>
#include <cstdio>

#include <QCoreApplication>

#include "ado/Recordset.h"
#include "foundation/GlobalDefine.h"
#include "foundation/clsDbConn.h"
#include "persisted/Reader.h"
#include "runtime/ProgramDirectory.h"

namespace {

void exportEmployees(const QString& home, const QString& path) {
  runtime::setAppPath(home);
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT * FROM Employee"), clsDbConn().GetDbConn());
  rows.Save(path, ado::PersistFormat::Xml);
  gConnection.reset();
}

/// Bytes of all photos.
qsizetype readEmployees(const QString& path) {
  persisted::Reader reader(path);
  std::vector<QVariant> values;
  qsizetype bytes = 0;
  while (reader.next(values)) {
    for (const QVariant& value : values) {
      if (value.typeId() == QMetaType::QByteArray) bytes += value.toByteArray().size();
    }
  }
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc < 3) return 2;
  const auto start = std::chrono::steady_clock::now();
  if (argc == 4) {
    exportEmployees(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
  } else {
    std::printf("bytes %lld\n", static_cast<long long>(readEmployees(QString::fromLocal8Bit(argv[2]))));
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::printf("seconds %.4f\n", taken.count());
  return 0;
}
