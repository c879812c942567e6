#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "preview/PrintJob.h"

namespace preview {

/// Looks after a job that a queue has taken, until it is printed or the window goes, and tells what goes
/// wrong: a queue fails long after it has said yes. Belongs to the window and deletes itself.
class JobWatch : public QObject {
 public:
  /// `knownStopped`: the user has been told already that the printer stands still.
  JobWatch(const spooler::Job& job, int number, bool knownStopped, QWidget* window);

 private:
  void look();
  [[nodiscard]] bool canSpeak() const;
  void end(const QString& message);

  QWidget* m_window;
  QString m_queue;
  /// Both as they stand in messages.
  QString m_printer;
  QString m_title;
  int m_number;
  bool m_knownStopped;
  QTimer m_timer;
};

}  // namespace preview
