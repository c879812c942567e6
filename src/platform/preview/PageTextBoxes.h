#pragma once

#include <vector>

#include <QRectF>

#include "report/Document.h"

namespace preview {

/// Where parts of a page's texts stand as they are drawn: a text may be drawn shortened, or on several lines.
class PageTextBoxes {
 public:
  PageTextBoxes(const report::Document& document, int page);

  /// The boxes (twips) of the `length` characters found at `hit`. What was cut off stands at the end of what
  /// is drawn.
  [[nodiscard]] std::vector<QRectF> boxesOf(const report::TextHit& hit, int length) const;

 private:
  /// A drawn line and where it starts in its text.
  struct Line {
    report::TextPrimitive drawn;
    int start = 0;
  };

  std::vector<std::vector<Line>> m_lines;
};

}  // namespace preview
