#pragma once

#include <vector>

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

/// As fitText, but a text that does not fit at its own size goes on over as many lines as the box has room
/// for, in the largest size in which it is whole; the last line is elided when there is none. One entry a
/// line.
[[nodiscard]] std::vector<FittedText> wrapText(const QString& text, const graphics::FontDescription& font,
                                               QSizeF box);

/// Height of a line of several, twips.
[[nodiscard]] double lineHeight(const graphics::FontDescription& font);

}  // namespace report
