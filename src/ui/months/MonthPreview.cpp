#include "ui/months/MonthPreview.h"

#include <QApplication>

#include "preview/PreviewWindow.h"

void showMonthPreview(EmployeeMonthReport& report) {
  report::Document document = report.run();
  preview::PreviewWindow window(std::move(document), report.Toolbar, QApplication::activeWindow());
  window.exec();
}
