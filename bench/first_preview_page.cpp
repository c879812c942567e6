// How long the preview of the cards takes to show its first page: the report is run and laid out, the preview
// window opened and painted. Takes the home and how many employees; prints the seconds that took.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <QApplication>

#include "foundation/GlobalDefine.h"
#include "preview/PreviewWindow.h"
#include "printing/SingleEmployeeInfoReport.h"
#include "records/clsEmployeeSet.h"
#include "runtime/ProgramDirectory.h"

namespace {

std::shared_ptr<clsEmployeeSet> firstEmployees(int count) {
  clsEmployeeSet all;
  all.LoadSet();
  auto some = std::make_shared<clsEmployeeSet>();
  for (int i = 1; i <= count && i <= all.Count(); ++i) some->Add(all.Item(i));
  return some;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  const auto employees = firstEmployees(std::atoi(argv[2]));

  const auto start = std::chrono::steady_clock::now();
  SingleEmployeeInfoReport report;
  report.SetEmployeeSet(employees);
  const report::Document document = report.run();
  const std::chrono::duration<double> laidOut = std::chrono::steady_clock::now() - start;
  preview::PreviewWindow window(document, report.Toolbar);
  window.show();
  QApplication::processEvents();
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;

  std::printf("seconds %.4f\nlaid_out %.4f\ncards %d\n", taken.count(), laidOut.count(), employees->Count());
  gConnection.reset();
  return 0;
}
