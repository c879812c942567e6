#include "report/PagePainter.h"

#include "graphics/StoredColor.h"
#include "report/FrameLines.h"
#include "report/GlyphBatch.h"

namespace report {
namespace {

constexpr double emptyFrameWidth = 5;

/// Draws one primitive after the other with a painter whose unit is one twip.
class PrimitivePainter {
 public:
  PrimitivePainter(QPainter& painter, PictureSource& pictures)
      : m_painter(painter), m_pictures(pictures), m_scale(deviceScale(painter)) {}

  void operator()(const TextPrimitive& text) {
    const ShapedText shaped = shapeText(text.text, text.font);
    m_texts.add(shaped, startOf(text, shaped), graphics::fromStoredColor(text.color));
  }

  /// A line never becomes thinner than a pixel, or it would fade away on the screen.
  void operator()(const BoxPrimitive& shape) {
    m_frames.add(shape.box, std::max(shape.penWidth, 1 / m_scale));
  }

  void operator()(const PicturePrimitive& shape) {
    const QImage image = shape.picture ? m_pictures.image(shape.picture, pixels(shape.box)) : QImage();
    if (image.isNull()) return (*this)(BoxPrimitive{shape.box, emptyFrameWidth});
    drawWaiting();
    m_painter.drawImage(shape.box, image);
  }

  void operator()(const BarsPrimitive& shape) {
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(Qt::black);
    m_painter.drawRects(shape.bars.data(), static_cast<int>(shape.bars.size()));
  }

  /// Draws the frames and texts that were put off. Only pictures cover what stood before them.
  void drawWaiting() {
    for (const auto& [width, lines] : m_frames.take()) {
      m_painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::FlatCap));
      m_painter.drawLines(lines.data(), static_cast<int>(lines.size()));
    }
    m_texts.draw(m_painter);
  }

 private:
  static double deviceScale(const QPainter& painter) {
    const QTransform transform = painter.deviceTransform();
    return std::max(std::hypot(transform.m11(), transform.m12()), 1e-6);
  }

  [[nodiscard]] QSize pixels(const QRectF& box) const { return (box.size() * m_scale).toSize(); }

  /// Where the text's base line starts.
  static QPointF startOf(const TextPrimitive& text, const ShapedText& shaped) {
    const QRectF& box = text.box;
    double x = box.left();
    const double spare = box.width() - shaped.width;
    if (text.alignment & Qt::AlignHCenter) x += spare / 2;
    if (text.alignment & Qt::AlignRight) x += spare;
    double y = box.top() + shaped.ascent;
    const double below = box.height() - shaped.ascent - shaped.descent;
    if (text.alignment & Qt::AlignVCenter) y += below / 2;
    if (text.alignment & Qt::AlignBottom) y += below;
    return {x, y};
  }

  QPainter& m_painter;
  PictureSource& m_pictures;
  double m_scale;
  FrameLines m_frames;
  GlyphBatch m_texts;
};

}  // namespace

void paintPrimitives(QPainter& painter, const std::vector<Primitive>& primitives, PictureSource& pictures) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  PrimitivePainter paint(painter, pictures);
  for (const Primitive& primitive : primitives) {
    std::visit(paint, primitive.shape);
  }
  paint.drawWaiting();
  painter.restore();
}

void paintPage(QPainter& painter, const Document& document, int index, PictureSource& pictures) {
  paintPrimitives(painter, document.page(index), pictures);
}

}  // namespace report
