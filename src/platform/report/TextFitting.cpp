#include "report/TextFitting.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QStringList>
#include <QTextBoundaryFinder>

#include "graphics/Twips.h"
#include "report/ShapedText.h"

namespace report {
namespace {

constexpr double smallestSize = 6;
constexpr double step = 0.5;
constexpr double lineSpacing = 1.2;

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

/// `text` cut into lines that are no wider than `width`.
QStringList linesOf(const QString& text, const graphics::FontDescription& font, double width) {
  const QFontMetricsF metrics(graphics::twipFont(font));
  QStringList lines(QString{});
  double used = 0;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype from = 0, to = finder.toNextBoundary(); to > from; from = to, to = finder.toNextBoundary()) {
    const QString character = text.mid(from, to - from);
    const double advance = metrics.horizontalAdvance(character);
    if (used + advance > width && used > 0) {
      lines.append(QString());
      used = 0;
    }
    lines.last() += character;
    used += advance;
  }
  return lines;
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

double lineHeight(const graphics::FontDescription& font) {
  return font.size * graphics::twipsPerPoint * lineSpacing;
}

std::vector<FittedText> wrapText(const QString& text, const graphics::FontDescription& font, QSizeF box) {
  FittedText whole = fitText(text, font, box);
  if (whole.font.size == graphics::drawableSize(font.size) && whole.text == onOneLine(text)) {
    return {std::move(whole)};
  }
  graphics::FontDescription smaller = font;
  smaller.size = graphics::drawableSize(font.size);
  QStringList lines = linesOf(onOneLine(text), smaller, box.width());
  const auto room = [&] { return std::max(1, static_cast<int>(box.height() / lineHeight(smaller))); };
  while (lines.size() > room() && smaller.size > smallestSize) {
    smaller.size = std::max(smaller.size - step, smallestSize);
    lines = linesOf(onOneLine(text), smaller, box.width());
  }
  std::vector<FittedText> fitted;
  for (qsizetype i = 0; i < std::min<qsizetype>(lines.size(), room()); ++i) {
    const bool cut = i + 1 == room();
    fitted.push_back(fitText(cut ? QStringList(lines.mid(i)).join(QString()) : lines[i], smaller, box));
  }
  return fitted;
}

}  // namespace report
