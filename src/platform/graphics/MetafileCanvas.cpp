#include "graphics/MetafileCanvas.h"

#include <algorithm>
#include <cmath>
#include <numeric>

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

double scaledSum(const std::vector<int>& advances, qsizetype count, double scale) {
  const int sum = std::accumulate(advances.begin(), advances.begin() + count, 0);
  return std::clamp(sum * scale, 0.0, farthest);
}

/// Where the text's cell lies around the point that it is aligned to.
QRectF cellOf(const QFontMetricsF& metrics, double width, int alignment) {
  using Alignment = MetafileCanvas::TextAlignment;
  double x = 0;
  if ((alignment & Alignment::Center) == Alignment::Right) x = -width;
  if ((alignment & Alignment::Center) == Alignment::Center) x = -width / 2;
  double top = 0;
  if ((alignment & Alignment::Baseline) == Alignment::Bottom) top = -metrics.height();
  if ((alignment & Alignment::Baseline) == Alignment::Baseline) top = -metrics.ascent();
  return {x, top, width, metrics.height()};
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

std::optional<QFont> MetafileCanvas::pixelFont() const {
  QFont font = m_state.font.font;
  const double height = std::abs(m_state.font.height * scaleY());
  if (height < 1 || height > largestFont) return {};
  font.setPixelSize(qRound(height));
  if (m_state.font.height > 0) {
    const double cell = QFontMetricsF(font).height();
    font.setPixelSize(std::max(1, qRound(height * height / cell)));
  }
  return font;
}

void MetafileCanvas::text(QPoint at, const QString& text, const std::vector<int>& advances) {
  const std::optional<QFont> font = pixelFont();
  if (!font || text.isEmpty()) return;
  const QString shown = text.left(longestText);
  const bool spread = static_cast<qsizetype>(advances.size()) >= shown.size();
  const QFontMetricsF metrics(*font);
  const double width =
      spread ? scaledSum(advances, shown.size(), std::abs(scaleX())) : metrics.horizontalAdvance(shown);
  const QRectF cell = cellOf(metrics, width, m_state.textAlignment);
  const bool updates = (m_state.textAlignment & UpdatePosition) != 0;
  m_painter.save();
  m_painter.translate(map(updates ? m_state.position : at));
  m_painter.rotate(-m_state.font.angle / 10.0);
  m_painter.setFont(*font);
  if (m_state.opaque) m_painter.fillRect(cell, m_state.backColor);
  m_painter.setPen(m_state.textColor);
  const QPointF base(cell.left(), cell.top() + metrics.ascent());
  if (spread) drawSpread(base, shown, advances);
  if (!spread) m_painter.drawText(base, shown);
  m_painter.restore();
  if (updates && (m_state.textAlignment & Center) == 0) moveBy(cell.width());
}

void MetafileCanvas::drawSpread(QPointF at, const QString& text, const std::vector<int>& advances) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    m_painter.drawText(at + QPointF(scaledSum(advances, i, std::abs(scaleX())), 0), text.at(i));
  }
}

void MetafileCanvas::moveBy(double width) {
  const double x = m_state.position.x() + width / scaleX();
  m_state.position.setX(qRound(std::clamp(x, -farthestUnit, farthestUnit)));
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
