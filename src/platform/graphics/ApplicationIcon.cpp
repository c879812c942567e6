#include "graphics/ApplicationIcon.h"

#include <QPainter>

namespace graphics {
namespace {

void drawPortrait(QPainter& painter) {
  painter.setBrush(QColor(0x8f, 0xb4, 0xe3));
  painter.drawEllipse(QRectF(10, 17, 12, 12));
  painter.drawChord(QRectF(6, 30, 20, 24), 0, 180 * 16);
}

void drawBars(QPainter& painter) {
  painter.setBrush(QColor(0x20, 0x2a, 0x38));
  for (const double left : {32., 38., 42., 48., 54.}) painter.drawRect(QRectF(left, 26, 3, 22));
}

/// Draws the card on a square of 64 by 64 units.
void drawCard(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x2f, 0x6f, 0xba));
  painter.drawRoundedRect(QRectF(1, 8, 62, 48), 6, 6);
  painter.setBrush(Qt::white);
  painter.drawRect(QRectF(4, 18, 56, 34));
  drawPortrait(painter);
  drawBars(painter);
}

QPixmap drawn(int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 64., size / 64.);
  drawCard(painter);
  return pixmap;
}

}  // namespace

QIcon applicationIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48}) icon.addPixmap(drawn(size));
  return icon;
}

}  // namespace graphics
