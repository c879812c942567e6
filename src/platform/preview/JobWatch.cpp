#include "preview/JobWatch.h"

#include <QApplication>

#include "dialogs/Dialogs.h"
#include "runtime/RuntimeError.h"

namespace preview {

namespace {

constexpr int milliseconds = 1000;

void tell(const QString& message) {
  dialogs::MsgBox(message, dialogs::Exclamation, QStringLiteral("警告"));
}

QString because(const QString& reason) {
  return reason.isEmpty() ? QStringLiteral("。") : QStringLiteral("：") + reason + QStringLiteral("。");
}

}  // namespace

JobWatch::JobWatch(const spooler::Job& job, int number, bool knownStopped, QWidget* window)
    : QObject(window),
      m_window(window),
      m_queue(job.queue),
      m_printer(QStringLiteral("打印机“") + job.queue + QStringLiteral("”")),
      m_title(QStringLiteral("“") + job.title + QStringLiteral("”")),
      m_number(number),
      m_knownStopped(knownStopped) {
  connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
  m_timer.start(milliseconds);
}

/// Another box is open: this one waits its turn.
bool JobWatch::canSpeak() const {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal == nullptr || modal == m_window;
}

void JobWatch::end(const QString& message) {
  m_timer.stop();
  deleteLater();
  if (!message.isEmpty()) tell(message);
}

void JobWatch::look() {
  if (!canSpeak()) return;
  spooler::JobReport report;
  try {
    report = spooler::report(m_queue, m_number);
  } catch (const runtime::RuntimeError& error) {
    return end(m_title + QStringLiteral("已交给") + m_printer + QStringLiteral("，但不知道有没有打印出来：") +
               error.description());
  }
  switch (report.state) {
    case spooler::JobState::Done:
      return end({});
    case spooler::JobState::Failed:
      return end(m_printer + QStringLiteral("没有打印") + m_title + because(report.reason));
    case spooler::JobState::Cancelled:
      return end(m_title + QStringLiteral("的打印任务已被取消") + because(report.reason));
    case spooler::JobState::Stopped:
      if (!std::exchange(m_knownStopped, true)) {
        tell(m_printer + QStringLiteral("停下了，恢复后才会打印") + m_title + because(report.reason));
      }
      return;
    case spooler::JobState::Waiting:
    case spooler::JobState::Printing:
      return;
  }
}

}  // namespace preview
