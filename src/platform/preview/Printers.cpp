#include "preview/Printers.h"

#include <QPrintDialog>
#include <QPrinterInfo>

namespace preview {

bool SystemPrinters::available() const {
  return !QPrinterInfo::availablePrinterNames().isEmpty();
}

bool SystemPrinters::choose(QPrinter& printer, int pageCount, QWidget* parent) {
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle(QStringLiteral("打印"));
  // A PDF has its own tool, which replaces a file only by a complete one.
  dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
  dialog.setMinMax(1, pageCount);
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace preview
