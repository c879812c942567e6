#include "report/GlyphBatch.h"

#include <algorithm>

namespace report {

GlyphBatch::Group& GlyphBatch::groupOf(const QRawFont& face, const QColor& color) {
  const auto found = std::find_if(m_groups.begin(), m_groups.end(), [&](const Group& group) {
    return group.face == face && group.color == color;
  });
  return found != m_groups.end() ? *found : m_groups.emplace_back(Group{face, color, {}, {}});
}

void GlyphBatch::add(const ShapedText& text, QPointF start, const QColor& color) {
  for (const GlyphPlaces& part : text.parts) {
    Group& group = groupOf(part.face, color);
    group.glyphs.append(part.glyphs);
    for (const QPointF& place : part.places) group.positions.append(start + place);
  }
}

void GlyphBatch::draw(QPainter& painter) {
  for (const Group& group : m_groups) {
    QGlyphRun run;
    run.setRawFont(group.face);
    run.setGlyphIndexes(group.glyphs);
    run.setPositions(group.positions);
    painter.setPen(group.color);
    painter.drawGlyphRun({}, run);
  }
  m_groups.clear();
}

}  // namespace report
