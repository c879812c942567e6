#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

#include "runtime/Progress.h"

/// Shows on a progress bar how far a long operation is, as long as it lives, and lets the user cancel it.
/// Input reaches the windows meanwhile: whoever makes it disables what must not be used.
class CancelProgress : public runtime::ProgressListener {
 public:
  explicit CancelProgress(QProgressBar& bar);
  ~CancelProgress() override;

  void cancel() { m_cancelled = true; }
  void progress(int done, int total) override;
  [[nodiscard]] bool isCancelled() const override { return m_cancelled; }

 private:
  QProgressBar& m_bar;
  bool m_cancelled = false;
  /// Not running before the first step.
  QElapsedTimer m_sincePaint;
  runtime::ProgressScope m_scope;
};
