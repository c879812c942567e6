#pragma once

#include <vector>

#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QString>

#include "graphics/Fonts.h"

namespace report {

/// Glyphs of one face and where each stands relative to the start of the base line.
struct GlyphPlaces {
  QRawFont face;
  QList<quint32> glyphs;
  QList<QPointF> places;
};

/// A text on one line, ready to be measured and drawn again and again. Lengths are twips.
struct ShapedText {
  double width = 0;
  /// Of the font's first face, above and below the base line.
  double ascent = 0;
  double descent = 0;
  /// More than one when the font's first face lacks some characters.
  std::vector<GlyphPlaces> parts;
};

/// Shapes `text` in twipFont(font). The last few thousand texts are remembered: a month of a thousand
/// employees repeats the same few hundred times of day. Needs a QGuiApplication, on its thread.
[[nodiscard]] ShapedText shapeText(const QString& text, const graphics::FontDescription& font);

}  // namespace report
