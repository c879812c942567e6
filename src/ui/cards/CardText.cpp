#include "ui/cards/CardText.h"

#include <QPainter>

#include "report/ControlPrimitives.h"
#include "report/PagePainter.h"

CardText::CardText(const report::Control& label) {
  setObjectName(label.Name);
  setLabel(label);
}

void CardText::setLabel(const report::Control& label) {
  m_label = label;
  setAccessibleName(label.Caption);
  update();
}

void CardText::paintEvent(QPaintEvent* /*event*/) {
  std::vector<report::Primitive> text;
  report::appendControl(text, m_label, -m_label.rect().topLeft());
  report::DecodingPictureSource noPictures;
  QPainter painter(this);
  painter.scale(static_cast<double>(width()) / m_label.Width, static_cast<double>(height()) / m_label.Height);
  report::paintPrimitives(painter, text, noPictures);
}
