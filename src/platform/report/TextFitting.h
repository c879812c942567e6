#pragma once

#include <QSizeF>
#include <QString>

#include "graphics/Fonts.h"

namespace report {

/// A text as it is drawn: on one line, smaller or elided where it would be cut.
struct FittedText {
  QString text;
  graphics::FontDescription font;
};

/// Fits `text` into `box` (twips): at its own size when nothing would be cut, else smaller by steps of half a
/// point down to 6 points, then elided. Sizes that cannot be drawn are replaced first.
[[nodiscard]] FittedText fitText(const QString& text, const graphics::FontDescription& font, QSizeF box);

}  // namespace report
