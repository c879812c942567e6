#include "ui/LoadProgress.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QProgressBar>

namespace {
/// Painting more often than this would cost the operation more than the eye gains.
constexpr qint64 millisecondsBetweenPaints = 50;
}  // namespace

LoadProgress::LoadProgress(QStatusBar& bar) : m_bar(bar), m_scope(*this) {
  m_sincePaint.start();
}

LoadProgress::~LoadProgress() {
  if (!m_progress) return;
  QGuiApplication::restoreOverrideCursor();
  m_bar.clearMessage();
  delete m_progress;
}

void LoadProgress::begin() {
  m_progress = new QProgressBar(&m_bar);
  m_progress->setObjectName(QStringLiteral("pbLoad"));
  m_progress->setMaximumWidth(m_bar.width() / 3);
  m_bar.addPermanentWidget(m_progress);
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void LoadProgress::progress(int done, int total) {
  if (m_sincePaint.elapsed() < millisecondsBetweenPaints) return;
  if (!m_progress) begin();
  m_progress->setRange(0, total);
  m_progress->setValue(done);
  m_bar.showMessage(QStringLiteral("正在载入员工，已完成 %1 名").arg(done));
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  m_sincePaint.start();
}
