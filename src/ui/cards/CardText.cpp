#include "ui/cards/CardText.h"

#include <QPainter>

#include "graphics/StoredColor.h"
#include "report/GlyphBatch.h"
#include "report/ShapedText.h"
#include "report/TextFitting.h"

CardText::CardText(const char* name, QSizeF box, Qt::Alignment alignment)
    : m_box(box), m_alignment(alignment) {
  setObjectName(QLatin1String(name));
}

void CardText::setLook(const Look& look) {
  m_look = look;
  setAccessibleName(look.caption);
  update();
}

void CardText::paintEvent(QPaintEvent*) {
  const report::FittedText fitted = report::fitText(m_look.caption, m_look.font, m_box);
  const report::ShapedText shaped = report::shapeText(fitted.text, fitted.font);
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(width() / m_box.width(), height() / m_box.height());
  const double spare = m_alignment & Qt::AlignHCenter ? m_box.width() - shaped.width : 0;
  const double y = (m_box.height() + shaped.ascent - shaped.descent) / 2;
  report::GlyphBatch text;
  text.add(shaped, {spare / 2, y}, graphics::fromStoredColor(m_look.color));
  text.draw(painter);
}
