#include "preview/ContentsPane.h"

#include <QScopedValueRollback>

namespace preview {

ContentsPane::ContentsPane(const report::Document& document, QWidget* parent)
    : QListView(parent), m_model(new ContentsModel(document, this)) {
  setObjectName(QStringLiteral("contents"));
  setAccessibleName(QStringLiteral("各页目录"));
  setModel(m_model);
  // Thousands of rows are as high as the first one.
  setUniformItemSizes(true);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(NoFrame);
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& now) {
    if (!m_following && now.isValid()) emit pageChosen(now.row());
  });
}

void ContentsPane::showCurrent(int page) {
  const QScopedValueRollback following(m_following, true);
  setCurrentIndex(m_model->index(page));
}

void ContentsPane::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  // A pane that was hidden gets its size after it has been shown, and could not scroll before.
  scrollTo(currentIndex());
}

void ContentsPane::paintEvent(QPaintEvent* event) {
  m_model->setDevicePixelRatio(devicePixelRatioF());
  QListView::paintEvent(event);
}

}  // namespace preview
