#include "ui/cards/SheetPicture.h"

#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {

constexpr int linesHigh = 17;
/// Room for the frame that shows the focus.
constexpr int border = 3;

const QColor paperInk(0x90, 0x98, 0xa2);
const QColor usedFill(0xe4, 0xe6, 0xe9);
const QColor usedInk(0xa0, 0xa6, 0xae);
const QColor cardFill(0xc8, 0xdd, 0xf2);
const QColor cardInk(0x1f, 0x4e, 0x79);

}  // namespace

SheetPicture::SheetPicture(const char* name) {
  setObjectName(QLatin1String(name));
  setAccessibleName(QStringLiteral("第一张纸上的卡位"));
  setFocusPolicy(Qt::StrongFocus);
  const int height = fontMetrics().lineSpacing() * linesHigh;
  const int width = height * CardSheet::paperSize.width() / CardSheet::paperSize.height();
  setFixedSize(width + 2 * border, height + 2 * border);
}

void SheetPicture::setSheet(const CardSheet& sheet, int cards) {
  m_sheet = sheet;
  m_cards = cards;
  update();
}

double SheetPicture::scale() const {
  return static_cast<double>(height() - 2 * border) / CardSheet::paperSize.height();
}

QRectF SheetPicture::placeBox(int place) const {
  const QRectF box(m_sheet.box(place));
  return {box.topLeft() * scale() + QPointF(border, border), box.size() * scale()};
}

void SheetPicture::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  for (int place = 1; place <= CardSheet::places; ++place) {
    if (placeBox(place).contains(event->position())) emit startChosen(place);
  }
}

void SheetPicture::keyPressEvent(QKeyEvent* event) {
  static const QHash<int, int> steps{{Qt::Key_Left, -1},
                                     {Qt::Key_Right, 1},
                                     {Qt::Key_Up, -CardSheet::columns},
                                     {Qt::Key_Down, CardSheet::columns},
                                     {Qt::Key_Home, 1 - CardSheet::places},
                                     {Qt::Key_End, CardSheet::places - 1}};
  const int step = steps.value(event->key());
  if (step == 0) return QWidget::keyPressEvent(event);
  const bool toAnEnd = event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
  const int place = m_sheet.start + step;
  const int nearest = qBound(1, place, CardSheet::places);
  if (place == nearest || toAnEnd) emit startChosen(nearest);
}

void SheetPicture::drawPlace(QPainter& painter, int place) const {
  const bool used = place < m_sheet.start;
  const bool filled = !used && place - m_sheet.start < m_cards;
  const QColor ink = filled ? cardInk : usedInk;
  painter.setPen(QPen(ink, 1, filled ? Qt::SolidLine : Qt::DashLine));
  painter.setBrush(used ? usedFill : filled ? cardFill : QColor(Qt::white));
  painter.drawRect(placeBox(place));
  painter.drawText(placeBox(place), Qt::AlignCenter, QString::number(place));
}

void SheetPicture::drawCutLines(QPainter& painter) const {
  painter.setPen(Qt::black);
  for (const QRect& line : m_sheet.cutLines()) {
    const QPointF from = QPointF(line.topLeft()) * scale() + QPointF(border, border);
    painter.drawLine(from, from + QPointF(line.width(), line.height()) * scale());
  }
}

void SheetPicture::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
  painter.setPen(paperInk);
  painter.setBrush(Qt::white);
  painter.drawRect(rect().adjusted(border, border, -border - 1, -border - 1));
  for (int place = 1; place <= CardSheet::places; ++place) drawPlace(painter, place);
  if (m_sheet.cutMarks) drawCutLines(painter);
}
