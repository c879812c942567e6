#include "report/TextFitting.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>

#include "graphics/Twips.h"
#include "report/ShapedText.h"

namespace report {
namespace {

constexpr double smallestSize = 6;
constexpr double step = 0.5;

QString onOneLine(QString text) {
  for (QChar& character : text) {
    if (character.category() == QChar::Other_Control) character = QLatin1Char(' ');
  }
  return text;
}

double widthOf(const QString& text, const graphics::FontDescription& font) {
  return shapeText(text, font).width;
}

/// Characters that no face draws wider than its size.
bool isPlain(QChar character) {
  const char16_t code = character.unicode();
  return (code >= 0x20 && code <= 0x7E) || (code >= 0x3000 && code <= 0x9FFF);
}

/// Whether `text` fits beyond doubt, so that it need not be measured.
bool clearlyFits(const QString& text, const graphics::FontDescription& font, double width) {
  const double widest = font.size * graphics::twipsPerPoint * 1.4;
  return static_cast<double>(text.size()) * widest <= width && std::all_of(text.begin(), text.end(), isPlain);
}

/// The largest size below `from`, by steps, that is no larger than `limit`; not below the smallest.
double steppedDown(double from, double limit) {
  if (from <= limit) return from;
  const double steps = std::ceil((from - limit) / step);
  return std::max(from - steps * step, std::min(smallestSize, from));
}

}  // namespace

FittedText fitText(const QString& text, const graphics::FontDescription& font, QSizeF box) {
  FittedText fitted{onOneLine(text), font};
  fitted.font.size = steppedDown(graphics::drawableSize(font.size), box.height() / graphics::twipsPerPoint);
  if (clearlyFits(fitted.text, fitted.font, box.width())) return fitted;
  double width = widthOf(fitted.text, fitted.font);
  while (width > box.width() && fitted.font.size > smallestSize) {
    // Widths grow with the size, so one step usually lands right; the loop makes up for rounding.
    const double limit = std::min(fitted.font.size * box.width() / width, fitted.font.size - step);
    fitted.font.size = steppedDown(fitted.font.size, limit);
    width = widthOf(fitted.text, fitted.font);
  }
  if (width > box.width()) {
    const QFontMetricsF metrics(graphics::twipFont(fitted.font));
    fitted.text = metrics.elidedText(fitted.text, Qt::ElideRight, box.width());
  }
  return fitted;
}

}  // namespace report
