#include "preview/DocumentOutput.h"

#include <tuple>

#include <QProgressDialog>
#include <QRegularExpression>

#include "dialogs/Dialogs.h"
#include "graphics/WaitCursor.h"
#include "report/Pdf.h"
#include "runtime/OutputGuard.h"
#include "runtime/RuntimeError.h"

namespace preview {

namespace {

void tellFailure(const runtime::RuntimeError& error) {
  dialogs::MsgBox(error.description(), dialogs::Exclamation, QStringLiteral("错误"));
}

PrintProgress shownBy(QProgressDialog& window) {
  return [&window](int done, int total) {
    window.setLabelText(QStringLiteral("正在打印第 %1 页，共 %2 页").arg(qMin(done + 1, total)).arg(total));
    window.setValue(done);
    return !window.wasCanceled();
  };
}

}  // namespace

QString fileNameFor(const QString& title, const QString& ending) {
  static const QRegularExpression refused(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]"));
  QString name = title.trimmed();
  name.replace(refused, QStringLiteral("_"));
  return (name.isEmpty() ? QStringLiteral("报表") : name) + ending;
}

QString pdfNameFor(const QString& title) {
  return fileNameFor(title, QStringLiteral(".pdf"));
}

DocumentOutput::DocumentOutput(report::Document document, std::unique_ptr<Printers> printers, QWidget* window)
    : m_document(std::move(document)), m_printers(std::move(printers)), m_window(window) {}

void DocumentOutput::print(int currentPage) {
  if (!m_printers->available()) {
    const auto answer = dialogs::MsgBox(QStringLiteral("没有可用的打印机。要存为PDF文件吗？"),
                                        dialogs::Question | dialogs::YesNo, QStringLiteral("询问"));
    if (answer == dialogs::Answer::Yes) saveAsPdf();
    return;
  }
  QPrinter printer(QPrinter::HighResolution);
  prepare(printer, m_document);
  if (!m_printers->choose(printer, m_document.pageCount(), m_window)) return;
  // The dialog takes the margins of the printer that was chosen; positions count from the paper's corner.
  printer.setFullPage(true);
  const std::vector<int> pages = pagesToPrint(printer, m_document.pageCount(), currentPage);
  if (pages.empty()) {
    dialogs::MsgBox(QStringLiteral("所选范围内没有页。"), dialogs::Exclamation, QStringLiteral("警告"));
    return;
  }
  try {
    runJob(printer, pages);
  } catch (const runtime::RuntimeError& error) {
    tellFailure(error);
  }
}

void DocumentOutput::runJob(QPrinter& printer, const std::vector<int>& pages) {
  const int sheets = static_cast<int>(pages.size());
  if (sheets <= quietSheets) {
    const graphics::WaitCursor wait;
    std::ignore = printPages(printer, m_document, pages, [](int, int) { return true; });
    return;
  }
  QProgressDialog window(m_window);
  window.setWindowTitle(QStringLiteral("打印"));
  window.setCancelButtonText(QStringLiteral("取消"));
  window.setWindowModality(Qt::WindowModal);
  window.setMinimumDuration(0);
  window.setRange(0, sheets);
  const bool printed = printPages(printer, m_document, pages, shownBy(window));
  window.close();
  if (!printed) {
    dialogs::MsgBox(QStringLiteral("打印已取消，已送往打印机的页可能仍会打印出来。"), dialogs::Information,
                    QStringLiteral("信息"));
  }
}

void DocumentOutput::saveAsPdf() {
  dialogs::FileBox box;
  box.save = true;
  box.title = QStringLiteral("存为PDF");
  box.filter = QStringLiteral("PDF文件|*.pdf");
  box.fileName = pdfNameFor(m_document.title());
  const QStringList chosen = dialogs::chooseFile(box);
  if (chosen.isEmpty()) return;
  try {
    runtime::requireFreeForOutput(chosen.first());
    const graphics::WaitCursor wait;
    report::writePdf(m_document, chosen.first());
  } catch (const runtime::RuntimeError& error) {
    return tellFailure(error);
  }
  dialogs::MsgBox(QStringLiteral("已存为PDF文件：\n") + chosen.first(), dialogs::Information,
                  QStringLiteral("信息"));
}

}  // namespace preview
