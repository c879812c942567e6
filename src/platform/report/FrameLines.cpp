#include "report/FrameLines.h"

#include <algorithm>
#include <tuple>

namespace report {

void FrameLines::add(const QRectF& box, double width) {
  const double half = width / 2;
  // The lines meet beyond the corners, so that these are full.
  for (const double y : {box.top(), box.bottom()}) {
    m_across.push_back({width, y, box.left() - half, box.right() + half});
  }
  for (const double x : {box.left(), box.right()}) {
    m_down.push_back({width, x, box.top() - half, box.bottom() + half});
  }
}

std::vector<FrameLines::Line> FrameLines::merged(std::vector<Line>& lines) {
  std::sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) {
    return std::tie(a.width, a.place, a.from) < std::tie(b.width, b.place, b.from);
  });
  std::vector<Line> result;
  for (const Line& line : lines) {
    const bool continues = !result.empty() && result.back().width == line.width &&
                           result.back().place == line.place && line.from <= result.back().to;
    if (continues) {
      result.back().to = std::max(result.back().to, line.to);
    } else {
      result.push_back(line);
    }
  }
  lines.clear();
  return result;
}

FrameLines::LinesByWidth FrameLines::take() {
  LinesByWidth lines;
  for (const Line& line : merged(m_across)) {
    lines[line.width].emplace_back(line.from, line.place, line.to, line.place);
  }
  for (const Line& line : merged(m_down)) {
    lines[line.width].emplace_back(line.place, line.from, line.place, line.to);
  }
  return lines;
}

}  // namespace report
