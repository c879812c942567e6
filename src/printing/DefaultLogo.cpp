#include "printing/DefaultLogo.h"

#include <QBuffer>
#include <QPainter>

namespace {

/// Pixels: sharp at the card's size on a printer of 600 dots an inch.
constexpr int side = 240;

void drawHand(QPainter& painter, double degrees, double length) {
  painter.save();
  painter.rotate(degrees);
  painter.drawLine(QPointF(0, 0), QPointF(0, -length));
  painter.restore();
}

void drawHourMarks(QPainter& painter) {
  for (int hour = 0; hour < 12; hour += 3) {
    painter.save();
    painter.rotate(hour * 30);
    painter.drawLine(QPointF(0, -72), QPointF(0, -62));
    painter.restore();
  }
}

QImage drawLogo() {
  const QColor badge(0x1F, 0x4E, 0x8C);
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(side / 2.0, side / 2.0);
  painter.setPen(Qt::NoPen);
  painter.setBrush(badge);
  painter.drawEllipse(QPointF(0, 0), 118, 118);
  painter.setBrush(Qt::white);
  painter.drawEllipse(QPointF(0, 0), 92, 92);
  painter.setPen(QPen(badge, 12, Qt::SolidLine, Qt::RoundCap));
  drawHourMarks(painter);
  drawHand(painter, 0, 48);
  drawHand(painter, 120, 36);
  return image;
}

QByteArray asPng(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "png");
  return bytes;
}

}  // namespace

graphics::PicturePointer defaultLogo() {
  static const auto logo =
      std::make_shared<const graphics::Picture>(asPng(drawLogo()), QStringLiteral("默认标志"));
  return logo;
}
