#include "preview/ToolIcon.h"

#include <map>

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include "preview/PreviewToolbar.h"

namespace preview {

namespace {

// Everything is drawn on a sheet of 24 by 24 units.
constexpr double unitSheet = 24;
constexpr double penWidth = 1.8;

void drawContents(QPainter& painter) {
  for (const int y : {6, 12, 18}) {
    painter.drawPoint(QPointF(5, y));
    painter.drawLine(QPointF(9, y), QPointF(20, y));
  }
}

void drawPrinter(QPainter& painter) {
  painter.drawRect(QRectF(7, 3, 10, 5));
  painter.drawRoundedRect(QRectF(3, 8, 18, 9), 1.5, 1.5);
  painter.fillRect(QRectF(7, 14, 10, 7), painter.background());
  painter.drawRect(QRectF(7, 14, 10, 7));
  painter.drawPoint(QPointF(17.5, 11));
}

void drawSheet(QPainter& painter, const QRectF& sheet) {
  const double fold = sheet.width() / 3;
  QPainterPath path(sheet.topLeft());
  path.lineTo(sheet.right() - fold, sheet.top());
  path.lineTo(sheet.right(), sheet.top() + fold);
  path.lineTo(sheet.bottomRight());
  path.lineTo(sheet.bottomLeft());
  path.closeSubpath();
  painter.drawPath(path);
}

void drawCopy(QPainter& painter) {
  drawSheet(painter, {4, 3, 11, 13});
  painter.save();
  painter.setBrush(painter.background());
  drawSheet(painter, {9, 8, 11, 13});
  painter.restore();
}

void drawLens(QPainter& painter) {
  painter.drawEllipse(QRectF(4, 4, 12, 12));
  painter.save();
  QPen handle = painter.pen();
  handle.setWidthF(penWidth * 1.6);
  painter.setPen(handle);
  painter.drawLine(QPointF(15, 15), QPointF(20, 20));
  painter.restore();
}

void drawZoomOut(QPainter& painter) {
  drawLens(painter);
  painter.drawLine(QPointF(7, 10), QPointF(13, 10));
}

void drawZoomIn(QPainter& painter) {
  drawZoomOut(painter);
  painter.drawLine(QPointF(10, 7), QPointF(10, 13));
}

void drawSinglePage(QPainter& painter) {
  drawSheet(painter, {6, 3, 12, 18});
}

void drawManyPages(QPainter& painter) {
  for (const QPoint corner : {QPoint(4, 3), QPoint(14, 3), QPoint(4, 14), QPoint(14, 14)}) {
    painter.drawRect(QRectF(corner, QSizeF(6, 7.5)));
  }
}

void drawChevron(QPainter& painter, QPointF tip, QPointF spread) {
  const QPointF back(spread.y(), spread.x());
  painter.drawPolyline(QPolygonF{tip + spread - back, tip, tip + spread + back});
}

void drawPrevious(QPainter& painter) {
  drawChevron(painter, {12, 8}, {0, 7});
}

void drawNext(QPainter& painter) {
  drawChevron(painter, {12, 16}, {0, -7});
}

void drawBack(QPainter& painter) {
  drawChevron(painter, {4, 12}, {6, 0});
  painter.drawLine(QPointF(4, 12), QPointF(20, 12));
}

void drawForward(QPainter& painter) {
  drawChevron(painter, {20, 12}, {-6, 0});
  painter.drawLine(QPointF(4, 12), QPointF(20, 12));
}

void drawSave(QPainter& painter) {
  painter.drawPolyline(QPolygonF{{4, 15}, {4, 20}, {20, 20}, {20, 15}});
  painter.drawLine(QPointF(12, 3), QPointF(12, 15));
  drawChevron(painter, {12, 15}, {0, -5});
}

using Draw = void (*)(QPainter&);

Draw drawingOf(int index) {
  static const std::map<int, Draw> drawings{{PreviewToolbar::Contents, drawContents},
                                            {PreviewToolbar::Print, drawPrinter},
                                            {PreviewToolbar::Copy, drawCopy},
                                            {PreviewToolbar::Find, drawLens},
                                            {PreviewToolbar::SinglePage, drawSinglePage},
                                            {PreviewToolbar::ManyPages, drawManyPages},
                                            {PreviewToolbar::ZoomOut, drawZoomOut},
                                            {PreviewToolbar::ZoomIn, drawZoomIn},
                                            {PreviewToolbar::Previous, drawPrevious},
                                            {PreviewToolbar::Next, drawNext},
                                            {PreviewToolbar::Back, drawBack},
                                            {PreviewToolbar::Forward, drawForward},
                                            {PreviewToolbar::SavePdf, drawSave}};
  const auto found = drawings.find(index);
  return found == drawings.end() ? nullptr : found->second;
}

class LineIcon : public QIconEngine {
 public:
  explicit LineIcon(Draw draw) : m_draw(draw) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QPalette palette = QGuiApplication::palette();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / unitSheet, rect.height() / unitSheet);
    painter->setPen(QPen(palette.color(group, QPalette::ButtonText), penWidth, Qt::SolidLine, Qt::RoundCap,
                         Qt::RoundJoin));
    painter->setBackground(palette.color(group, QPalette::Button));
    m_draw(*painter);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new LineIcon(m_draw); }

 private:
  Draw m_draw;
};

}  // namespace

QIcon toolIcon(int index) {
  const Draw draw = drawingOf(index);
  return draw ? QIcon(new LineIcon(draw)) : QIcon();
}

}  // namespace preview
