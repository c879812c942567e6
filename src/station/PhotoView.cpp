#include "station/PhotoView.h"

#include <QPainter>

namespace {

QRect fitted(const QSize& size, const QRect& room) {
  QRect rect({}, size.scaled(room.size(), Qt::KeepAspectRatio));
  rect.moveCenter(room.center());
  return rect;
}

}  // namespace

PhotoView::PhotoView(const QString& name) {
  setObjectName(name);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

void PhotoView::setPhoto(const graphics::PicturePointer& photo) {
  m_image = photo ? photo->decode(size() * devicePixelRatio()) : QImage();
  update();
}

void PhotoView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  if (hasPhoto()) {
    painter.drawImage(fitted(m_image.size(), rect()), m_image);
  } else {
    drawOutline(painter);
  }
}

void PhotoView::drawOutline(QPainter& painter) const {
  constexpr QSize portrait(300, 400);
  const QRect frame = fitted(portrait, rect());
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 40));
  painter.drawRect(frame);
  painter.setClipRect(frame);
  painter.translate(frame.topLeft());
  painter.scale(frame.width() / 300., frame.height() / 400.);
  painter.setBrush(QColor(255, 255, 255, 140));
  painter.drawEllipse(QRectF(95, 80, 110, 130));
  painter.drawEllipse(QRectF(40, 230, 220, 260));
}
