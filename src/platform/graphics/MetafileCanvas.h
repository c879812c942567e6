#pragma once

#include <optional>
#include <vector>

#include <QBrush>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QPolygon>

namespace graphics {

/// A metafile's pen: its width in the units of the drawing.
struct MetafilePen {
  QPen pen{Qt::black};
  int width = 0;
};

/// A metafile's font: its height in the units of the drawing, negative when it leaves out the space above.
struct MetafileFont {
  QFont font;
  int height = -12;
  /// Tenths of a degree, against the clock.
  int angle = 0;
  /// The number of its character set; 134 is the simplified Chinese one.
  int charset = 1;
};

/// What a metafile draws on: an image behind a window of its own coordinates, with a current pen, brush, font
/// and position. Coordinates far outside of the image are drawn at its far surroundings, so that no drawing
/// takes long.
class MetafileCanvas {
 public:
  enum class Closing { Open, Chord, Pie };
  enum TextAlignment { UpdatePosition = 1, Right = 2, Center = 6, Bottom = 8, Baseline = 24 };

  struct State {
    QRect window;
    MetafilePen pen;
    QBrush brush{Qt::white};
    MetafileFont font;
    QColor textColor{Qt::black};
    QColor backColor{Qt::white};
    bool opaque = true;
    int textAlignment = 0;
    Qt::FillRule fillRule = Qt::OddEvenFill;
    QPoint position;
  };

  /// A white image of `size` pixels that shows what is drawn inside of `window`.
  MetafileCanvas(QSize size, QRect window);

  /// The current settings, free to be changed. An empty side of the window must not be set.
  [[nodiscard]] State& state() { return m_state; }
  [[nodiscard]] const State& state() const { return m_state; }
  void save();
  /// Back to what was saved: -1 is the latest; a positive number counts from the first.
  void restore(int number);

  void lineTo(QPoint to);
  void rectangle(QPoint from, QPoint to, QSize corner = {});
  void ellipse(QPoint from, QPoint to);
  void arc(QRect box, QPoint start, QPoint end, Closing closing);
  void polyline(const QPolygon& points);
  void polygons(const std::vector<QPolygon>& polygons);
  /// `advances`, in the units of the drawing, tell how far each unit of the text is from the next one;
  /// without them the font does.
  void text(QPoint at, const QString& text, const std::vector<int>& advances = {});
  void fill(QRect box, const QBrush& brush);
  /// Draws `image` over the box; negative sides mirror it.
  void picture(QRect box, const QImage& image, QPainter::CompositionMode mode);
  void clip(QPoint from, QPoint to);

  /// The finished image; nothing may be drawn afterwards.
  [[nodiscard]] QImage finish();

 private:
  [[nodiscard]] QPointF map(QPoint point) const;
  [[nodiscard]] QRectF map(QPoint from, QPoint to) const;
  [[nodiscard]] QPolygonF map(const QPolygon& points) const;
  [[nodiscard]] double scaleX() const;
  [[nodiscard]] double scaleY() const;
  void usePen();
  [[nodiscard]] std::optional<QFont> pixelFont() const;
  void drawSpread(QPointF at, const QString& text, const std::vector<int>& advances);
  void moveBy(double width);

  QImage m_image;
  QPainter m_painter;
  State m_state;
  std::vector<State> m_saved;
};

}  // namespace graphics
