#include "preview/DocumentOutput.h"

#include <QProgressDialog>
#include <QRegularExpression>

#include "dialogs/Dialogs.h"
#include "graphics/WaitCursor.h"
#include "preview/JobWatch.h"
#include "preview/PrintDialog.h"
#include "report/Pdf.h"
#include "runtime/OutputGuard.h"
#include "runtime/RuntimeError.h"

namespace preview {

namespace {

void tellFailure(const QString& words) {
  dialogs::MsgBox(words, dialogs::Exclamation, QStringLiteral("错误"));
}

std::vector<spooler::Queue> foundQueues() {
  const graphics::WaitCursor wait;
  return spooler::queues();
}

PrintProgress shownBy(QProgressDialog& window) {
  return [&window](const QString& what, int done, int total) {
    window.setLabelText(what);
    window.setMaximum(total);
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

DocumentOutput::DocumentOutput(report::Document document, QWidget* window)
    : m_document(std::move(document)), m_window(window) {}

void DocumentOutput::offerPdf() {
  const auto answer = dialogs::MsgBox(QStringLiteral("没有可用的打印机。要存为PDF文件吗？"),
                                      dialogs::Question | dialogs::YesNo, QStringLiteral("询问"));
  if (answer == dialogs::Answer::Yes) saveAsPdf();
}

void DocumentOutput::print(int currentPage) {
  const std::vector<spooler::Queue> queues = foundQueues();
  if (queues.empty()) return offerPdf();
  PrintDialog dialog(queues, m_document, currentPage, m_window);
  if (dialog.exec() != QDialog::Accepted) return;
  const PrintChoice choice = dialog.choice();
  try {
    const std::optional<int> number = runJob(choice);
    if (number) {
      new JobWatch(choice.job, *number, dialog.printerStopped(), m_window);
    } else {
      dialogs::MsgBox(QStringLiteral("打印已取消，什么也没有打印。"), dialogs::Information,
                      QStringLiteral("信息"));
    }
  } catch (const runtime::RuntimeError& error) {
    tellFailure(QStringLiteral("打印失败：") + error.description());
  }
}

std::optional<int> DocumentOutput::runJob(const PrintChoice& choice) {
  if (choice.pages.size() <= quietPages) {
    const graphics::WaitCursor wait;
    return printPages(m_document, choice, [](const QString&, int, int) { return true; });
  }
  QProgressDialog window(m_window);
  window.setWindowTitle(QStringLiteral("打印"));
  window.setCancelButtonText(QStringLiteral("取消"));
  window.setWindowModality(Qt::WindowModal);
  window.setMinimumDuration(0);
  // It counts twice: pages, then bytes.
  window.setAutoReset(false);
  window.setAutoClose(false);
  return printPages(m_document, choice, shownBy(window));
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
    return tellFailure(error.description());
  }
  dialogs::MsgBox(QStringLiteral("已存为PDF文件：\n") + chosen.first(), dialogs::Information,
                  QStringLiteral("信息"));
}

}  // namespace preview
