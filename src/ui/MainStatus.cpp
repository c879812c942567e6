#include "ui/MainStatus.h"

#include <QPainter>

namespace {

/// A line that is cut to the room it has instead of widening the window.
class CutLabel : public QLabel {
 public:
  explicit CutLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const QRect room = contentsRect();
    const QString line = text().simplified();
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(line, Qt::ElideRight, room.width()));
  }
};

QString countsText(int mode, int rows, int selected) {
  if (mode == 1) {
    const QString counts = QStringLiteral("共 %1 名员工，已选 %2 名").arg(rows).arg(selected);
    return selected == 0 ? counts : counts + QStringLiteral("，将打印 %1 张签到卡").arg(selected);
  }
  return mode == 2 ? QStringLiteral("共 %1 个部门，已选 %2 个").arg(rows).arg(selected) : QString();
}

}  // namespace

MainStatus::MainStatus(QStatusBar& bar) : m_note(new CutLabel(&bar)), m_counts(new QLabel(&bar)) {
  m_note->setObjectName(QStringLiteral("lblNote"));
  m_counts->setObjectName(QStringLiteral("lblCounts"));
  bar.addWidget(m_note, 1);
  bar.addPermanentWidget(m_counts);
}

void MainStatus::showCounts(int mode, int rows, int selected) {
  m_counts->setText(countsText(mode, rows, selected));
}

void MainStatus::note(const QString& text) {
  m_note->setText(text);
  m_note->setToolTip(text.toHtmlEscaped());
}
