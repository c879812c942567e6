#pragma once

#include <vector>

#include <QColor>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QRawFont>

#include "report/ShapedText.h"

namespace report {

/// Texts that wait to be drawn, all of one face and colour at once: a page of the month's report has 700 of
/// them, and drawing each by itself takes several times as long.
class GlyphBatch {
 public:
  /// `start` is the start of the text's base line.
  void add(const ShapedText& text, QPointF start, const QColor& color);
  /// Draws the texts; afterwards there are none.
  void draw(QPainter& painter);

 private:
  struct Group {
    QRawFont face;
    QColor color;
    QList<quint32> glyphs;
    QList<QPointF> positions;
  };

  [[nodiscard]] Group& groupOf(const QRawFont& face, const QColor& color);

  std::vector<Group> m_groups;
};

}  // namespace report
