#include "report/ShapedText.h"

#include <utility>

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QTextLayout>

namespace report {
namespace {

constexpr qsizetype mostRemembered = 4096;

struct Key {
  QString text;
  graphics::FontDescription font;

  bool operator==(const Key&) const = default;
};

std::size_t qHash(const Key& key, std::size_t seed) {
  const int style = (key.font.bold ? 1 : 0) + (key.font.italic ? 2 : 0);
  return qHashMulti(seed, key.text, key.font.name, key.font.size, style);
}

/// Emptied before the application object goes, because a font must not outlive it.
QHash<Key, ShapedText>& remembered() {
  static QHash<Key, ShapedText> cache;
  static const bool emptiedInTime = [] {
    qAddPostRoutine([] { cache.clear(); });
    return true;
  }();
  Q_UNUSED(emptiedInTime);
  return cache;
}

std::vector<GlyphPlaces> partsOf(const QString& text, const QFont& font) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  if (line.isValid()) {
    line.setNumColumns(static_cast<int>(text.size()));
    // The layout counts from the line's top.
    line.setPosition({0, -line.ascent()});
  }
  layout.endLayout();
  std::vector<GlyphPlaces> parts;
  for (const QGlyphRun& run : layout.glyphRuns()) {
    parts.push_back({run.rawFont(), run.glyphIndexes(), run.positions()});
  }
  return parts;
}

ShapedText shape(const QString& text, const QFont& font) {
  const QFontMetricsF metrics(font);
  return {metrics.horizontalAdvance(text), metrics.ascent(), metrics.descent(), partsOf(text, font)};
}

}  // namespace

ShapedText shapeText(const QString& text, const graphics::FontDescription& font) {
  QHash<Key, ShapedText>& cache = remembered();
  const Key key{text, font};
  const auto found = cache.constFind(key);
  if (found != cache.constEnd()) return *found;
  if (cache.size() >= mostRemembered) cache.clear();
  return *cache.insert(key, shape(text, graphics::twipFont(font)));
}

}  // namespace report
