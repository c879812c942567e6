#pragma once

#include <variant>
#include <vector>

#include <QRectF>
#include <QString>

#include "graphics/Fonts.h"
#include "graphics/Picture.h"

namespace report {

/// A text in its box. `text` is what is drawn (elided when it would not fit at the smallest size),
/// `font.size` the size it is drawn at.
struct TextPrimitive {
  QRectF box;
  QString text;
  graphics::FontDescription font;
  int color = 0;
  Qt::Alignment alignment;
};

/// The outline of a rectangle, `penWidth` twips wide; of one without height or width, a line.
struct BoxPrimitive {
  QRectF box;
  double penWidth = 0;
};

/// A picture drawn into `box`, which already has the picture's proportions. A null picture draws an empty
/// frame.
struct PicturePrimitive {
  QRectF box;
  graphics::PicturePointer picture;
};

/// Black bars, all drawn at once.
struct BarsPrimitive {
  std::vector<QRectF> bars;
};

struct Primitive {
  /// Name of the control that it comes from.
  QString control;
  std::variant<TextPrimitive, BoxPrimitive, PicturePrimitive, BarsPrimitive> shape;
};

}  // namespace report
