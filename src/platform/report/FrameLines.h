#pragma once

#include <map>
#include <vector>

#include <QLineF>
#include <QRectF>

namespace report {

/// The lines of many frames. Where the frames of neighbours share an edge, or continue each other's, one line
/// is drawn instead of many.
class FrameLines {
 public:
  using LinesByWidth = std::map<double, std::vector<QLineF>>;

  /// The outline of `box`, `width` wide, half of it inside.
  void add(const QRectF& box, double width);
  /// The lines, to be drawn with flat ends; afterwards there are none.
  [[nodiscard]] LinesByWidth take();

 private:
  /// A line along one axis at `place` of the other.
  struct Line {
    double width = 0;
    double place = 0;
    double from = 0;
    double to = 0;
  };

  [[nodiscard]] static std::vector<Line> merged(std::vector<Line>& lines);

  std::vector<Line> m_across;
  std::vector<Line> m_down;
};

}  // namespace report
