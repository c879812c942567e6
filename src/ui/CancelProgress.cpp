#include "ui/CancelProgress.h"

#include <QCoreApplication>

namespace {
/// Painting more often than this would cost the operation more than the eye gains.
constexpr qint64 millisecondsBetweenPaints = 50;
}  // namespace

CancelProgress::CancelProgress(QProgressBar& bar) : m_bar(bar), m_scope(*this) {
  // A range of nothing looks busy until the first step tells how many there are.
  m_bar.setRange(0, 0);
  m_bar.setVisible(true);
}

CancelProgress::~CancelProgress() {
  m_bar.setVisible(false);
}

void CancelProgress::progress(int done, int total) {
  if (m_sincePaint.isValid() && m_sincePaint.elapsed() < millisecondsBetweenPaints) return;
  m_bar.setRange(0, total);
  m_bar.setValue(done);
  QCoreApplication::processEvents();
  m_sincePaint.start();
}
