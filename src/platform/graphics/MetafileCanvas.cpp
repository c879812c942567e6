#include "graphics/MetafileCanvas.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainterPath>

namespace graphics {
namespace {

constexpr double farthest = 16000;
constexpr double farthestUnit = 1e6;
constexpr double widestPen = 500;
constexpr double largestFont = 1500;
constexpr qsizetype longestText = 1000;
constexpr std::size_t deepestSaving = 256;

QRect wholeOf(QSize size) {
  return {QPoint(0, 0), size};
}

double angleTo(const QRectF& box, QPointF point) {
  // Measured as on a circle: the box may be flat.
  const double x = (point.x() - box.center().x()) * box.height();
  const double y = (box.center().y() - point.y()) * box.width();
  return std::atan2(y, x) * 180 / M_PI;
}

}  // namespace

MetafileCanvas::MetafileCanvas(QSize size, QRect window) : m_image(size, QImage::Format_RGB32) {
  m_image.fill(Qt::white);
  m_painter.begin(&m_image);
  m_painter.setRenderHint(QPainter::Antialiasing);
  m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
  m_painter.setClipRect(wholeOf(size));
  m_state.window = window;
}

double MetafileCanvas::scaleX() const {
  return static_cast<double>(m_image.width()) / m_state.window.width();
}

double MetafileCanvas::scaleY() const {
  return static_cast<double>(m_image.height()) / m_state.window.height();
}

QPointF MetafileCanvas::map(QPoint point) const {
  return {std::clamp((point.x() - m_state.window.x()) * scaleX(), -farthest, farthest),
          std::clamp((point.y() - m_state.window.y()) * scaleY(), -farthest, farthest)};
}

QRectF MetafileCanvas::map(QPoint from, QPoint to) const {
  return QRectF(map(from), map(to)).normalized();
}

QPolygonF MetafileCanvas::map(const QPolygon& points) const {
  QPolygonF mapped;
  mapped.reserve(points.size());
  for (const QPoint& point : points) mapped << map(point);
  return mapped;
}

void MetafileCanvas::usePen() {
  QPen pen = m_state.pen.pen;
  pen.setWidthF(std::clamp(m_state.pen.width * std::abs(scaleX()), 1.0, widestPen));
  m_painter.setPen(pen);
  m_painter.setBrush(m_state.brush);
}

void MetafileCanvas::save() {
  if (m_saved.size() >= deepestSaving) return;
  m_painter.save();
  m_saved.push_back(m_state);
}

void MetafileCanvas::restore(int number) {
  const auto count = static_cast<int>(m_saved.size());
  const int target = number < 0 ? count + number : number - 1;
  if (number == 0 || target < 0 || target >= count) return;
  while (static_cast<int>(m_saved.size()) > target) {
    m_painter.restore();
    m_state = m_saved.back();
    m_saved.pop_back();
  }
}

void MetafileCanvas::lineTo(QPoint to) {
  usePen();
  m_painter.drawLine(map(m_state.position), map(to));
  m_state.position = to;
}

void MetafileCanvas::rectangle(QPoint from, QPoint to, QSize corner) {
  usePen();
  const double x = std::abs(corner.width() * scaleX()) / 2;
  const double y = std::abs(corner.height() * scaleY()) / 2;
  m_painter.drawRoundedRect(map(from, to), std::min(x, farthest), std::min(y, farthest));
}

void MetafileCanvas::ellipse(QPoint from, QPoint to) {
  usePen();
  m_painter.drawEllipse(map(from, to));
}

void MetafileCanvas::arc(QRect box, QPoint start, QPoint end, Closing closing) {
  usePen();
  const QRectF mapped = map(box.topLeft(), box.topLeft() + QPoint(box.width(), box.height()));
  const double from = angleTo(mapped, map(start));
  double span = angleTo(mapped, map(end)) - from;
  if (span <= 0) span += 360;
  const int first = qRound(from * 16);
  const int length = qRound(span * 16);
  if (closing == Closing::Open) m_painter.drawArc(mapped, first, length);
  if (closing == Closing::Chord) m_painter.drawChord(mapped, first, length);
  if (closing == Closing::Pie) m_painter.drawPie(mapped, first, length);
}

void MetafileCanvas::polyline(const QPolygon& points) {
  usePen();
  m_painter.drawPolyline(map(points));
}

void MetafileCanvas::polygons(const std::vector<QPolygon>& polygons) {
  usePen();
  QPainterPath path;
  path.setFillRule(m_state.fillRule);
  for (const QPolygon& points : polygons) {
    path.addPolygon(map(points));
    path.closeSubpath();
  }
  m_painter.drawPath(path);
}

void MetafileCanvas::text(QPoint at, const QString& text) {
  QFont font = m_state.font.font;
  const double height = std::abs(m_state.font.height * scaleY());
  if (height < 1 || height > largestFont || text.isEmpty()) return;
  font.setPixelSize(qRound(height));
  if (m_state.font.height > 0) {
    const double cell = QFontMetricsF(font).height();
    font.setPixelSize(std::max(1, qRound(height * height / cell)));
  }
  const QString shown = text.left(longestText);
  const QFontMetricsF metrics(font);
  const double width = metrics.horizontalAdvance(shown);
  const int alignment = m_state.textAlignment;
  const bool updates = (alignment & UpdatePosition) != 0;
  double x = 0;
  if ((alignment & Center) == Right) x = -width;
  if ((alignment & Center) == Center) x = -width / 2;
  double y = metrics.ascent();
  if ((alignment & Baseline) == Bottom) y = -metrics.descent();
  if ((alignment & Baseline) == Baseline) y = 0;
  m_painter.save();
  m_painter.translate(map(updates ? m_state.position : at));
  m_painter.rotate(-m_state.font.angle / 10.0);
  m_painter.setFont(font);
  if (m_state.opaque) {
    m_painter.fillRect(QRectF(x, y - metrics.ascent(), width, metrics.height()), m_state.backColor);
  }
  m_painter.setPen(m_state.textColor);
  m_painter.drawText(QPointF(x, y), shown);
  m_painter.restore();
  if (updates && (alignment & Center) == 0) {
    m_state.position.rx() =
        qRound(std::clamp(m_state.position.x() + width / scaleX(), -farthestUnit, farthestUnit));
  }
}

void MetafileCanvas::fill(QRect box, const QBrush& brush) {
  m_painter.fillRect(map(box.topLeft(), box.topLeft() + QPoint(box.width(), box.height())), brush);
}

void MetafileCanvas::picture(QRect box, const QImage& image, QPainter::CompositionMode mode) {
  const QPointF from = map(box.topLeft());
  const QPointF to = map(box.topLeft() + QPoint(box.width(), box.height()));
  m_painter.save();
  m_painter.setCompositionMode(mode);
  m_painter.drawImage(QRectF(from, to).normalized(), image.mirrored(to.x() < from.x(), to.y() < from.y()));
  m_painter.restore();
}

void MetafileCanvas::clip(QPoint from, QPoint to) {
  m_painter.setClipRect(map(from, to), Qt::IntersectClip);
}

QImage MetafileCanvas::finish() {
  restore(1);
  m_painter.end();
  return m_image;
}

}  // namespace graphics
