// The cards of all employees as a PDF in which every photo is decoded and drawn: what `attendancectl cards`
// would take if it did not put the photos' own bytes in. Prints the photos' bytes and the number of pages.

#include <cstdio>
#include <memory>

#include <QFileInfo>
#include <QGuiApplication>

#include "foundation/GlobalDefine.h"
#include "printing/SingleEmployeeInfoReport.h"
#include "records/clsEmployeeSet.h"
#include "report/Pdf.h"
#include "runtime/ProgramDirectory.h"

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 3) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  auto employees = std::make_shared<clsEmployeeSet>();
  employees->LoadSet();
  qint64 photoBytes = 0;
  for (const auto& employee : *employees) photoBytes += QFileInfo(employee->HeadImg()).size();

  SingleEmployeeInfoReport report;
  report.SetEmployeeSet(employees);
  const report::Document document = report.run();
  report::writePdf(document, QString::fromLocal8Bit(argv[2]), report::PhotoEncoding::Drawn);
  std::printf("photo_bytes %lld\npages %d\n", static_cast<long long>(photoBytes), document.pageCount());
  gConnection.reset();
  return 0;
}
