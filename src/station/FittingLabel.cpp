#include "station/FittingLabel.h"

#include <algorithm>

#include <QPainter>

namespace {

/// Of the label's height, so that lines above each other keep apart.
constexpr double fontShare = 0.72;
constexpr int smallest = 11;

}  // namespace

FittingLabel::FittingLabel(const QString& name, Qt::Alignment alignment) {
  setObjectName(name);
  setAlignment(alignment | Qt::AlignVCenter);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

void FittingLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setFont(fittingFont());
  painter.setPen(palette().color(foregroundRole()));
  const QString line = painter.fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
  painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, line);
}

QFont FittingLabel::fittingFont() const {
  QFont fitting = font();
  const int tallest = std::max(static_cast<int>(height() * fontShare), smallest);
  fitting.setPixelSize(tallest);
  const int wide = QFontMetrics(fitting).horizontalAdvance(text());
  if (wide > width()) fitting.setPixelSize(std::max(tallest * width() / wide, smallest));
  return fitting;
}
