#include "report/PagePainter.h"

#include <QFontMetricsF>

#include "graphics/StoredColor.h"

namespace report {
namespace {

constexpr double emptyFrameWidth = 5;

/// Draws one primitive after the other with a painter whose unit is one twip.
class PrimitivePainter {
 public:
  PrimitivePainter(QPainter& painter, PictureSource& pictures)
      : m_painter(painter), m_pictures(pictures), m_scale(deviceScale(painter)) {}

  void operator()(const TextPrimitive& text) {
    const QFont font = graphics::twipFont(text.font);
    m_painter.setFont(font);
    m_painter.setPen(graphics::fromStoredColor(text.color));
    m_painter.drawText(startOf(text, QFontMetricsF(font)), text.text);
  }

  void operator()(const BoxPrimitive& shape) { drawFrame(shape.box, shape.penWidth); }

  void operator()(const PicturePrimitive& shape) {
    const QImage image = shape.picture ? m_pictures.image(shape.picture, pixels(shape.box)) : QImage();
    if (image.isNull()) return drawFrame(shape.box, emptyFrameWidth);
    m_painter.drawImage(shape.box, image);
  }

  void operator()(const BarsPrimitive& shape) {
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(Qt::black);
    m_painter.drawRects(shape.bars.data(), static_cast<int>(shape.bars.size()));
  }

 private:
  static double deviceScale(const QPainter& painter) {
    const QTransform transform = painter.deviceTransform();
    return std::max(std::hypot(transform.m11(), transform.m12()), 1e-6);
  }

  [[nodiscard]] QSize pixels(const QRectF& box) const { return (box.size() * m_scale).toSize(); }

  /// Where the text's base line starts. Drawing from a point spares the layout of a paragraph.
  static QPointF startOf(const TextPrimitive& text, const QFontMetricsF& metrics) {
    const QRectF& box = text.box;
    double x = box.left();
    if (!(text.alignment & Qt::AlignLeft)) {
      const double spare = box.width() - metrics.horizontalAdvance(text.text);
      if (text.alignment & Qt::AlignHCenter) x += spare / 2;
      if (text.alignment & Qt::AlignRight) x += spare;
    }
    double y = box.top() + metrics.ascent();
    const double below = box.height() - metrics.ascent() - metrics.descent();
    if (text.alignment & Qt::AlignVCenter) y += below / 2;
    if (text.alignment & Qt::AlignBottom) y += below;
    return {x, y};
  }

  /// A line never becomes thinner than a pixel, or it would fade away on the screen.
  void drawFrame(const QRectF& box, double width) {
    QPen pen(Qt::black, std::max(width, 1 / m_scale));
    pen.setJoinStyle(Qt::MiterJoin);
    m_painter.setPen(pen);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(box);
  }

  QPainter& m_painter;
  PictureSource& m_pictures;
  double m_scale;
};

}  // namespace

void paintPage(QPainter& painter, const Document& document, int index, PictureSource& pictures) {
  const std::vector<Primitive> primitives = document.page(index);
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  PrimitivePainter paint(painter, pictures);
  for (const Primitive& primitive : primitives) {
    std::visit(paint, primitive.shape);
  }
  painter.restore();
}

}  // namespace report
