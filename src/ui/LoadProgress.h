#pragma once

#include <QElapsedTimer>
#include <QStatusBar>

#include "runtime/Progress.h"

/// Shows on a status bar how far a long operation is, as long as it lives. The window repaints meanwhile and
/// takes no input; an operation that is over at once shows nothing.
class LoadProgress : public runtime::ProgressListener {
 public:
  explicit LoadProgress(QStatusBar& bar);
  ~LoadProgress() override;

  void progress(int done, int total) override;

 private:
  void begin();

  QStatusBar& m_bar;
  class QProgressBar* m_progress = nullptr;
  QElapsedTimer m_sincePaint;
  runtime::ProgressScope m_scope;
};
