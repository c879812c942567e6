#include "preview/Zoom.h"

#include <algorithm>
#include <array>

namespace preview {

namespace {

constexpr std::array percentages{smallestPercent, 50, 75, 100, 125, 150, 200, 300, 400, largestPercent};
// A fit seldom lands on a whole percentage: what shows as 100 % must not step to 100 %.
constexpr double sameStep = 0.5;

}  // namespace

const std::vector<Zoom>& zoomList() {
  static const std::vector<Zoom> list = [] {
    std::vector<Zoom> zooms{{Zoom::Fit::Page, 100}, {Zoom::Fit::Width, 100}};
    for (const int percent : percentages) zooms.push_back({Zoom::Fit::None, percent});
    return zooms;
  }();
  return list;
}

QString zoomText(const Zoom& zoom) {
  switch (zoom.fit) {
    case Zoom::Fit::Page:
      return QStringLiteral("整页");
    case Zoom::Fit::Width:
      return QStringLiteral("页宽");
    case Zoom::Fit::Several:
      return QStringLiteral("多页");
    case Zoom::Fit::None:
      break;
  }
  return QStringLiteral("%1%").arg(zoom.percent);
}

int percentAbove(double percent) {
  const auto* above = std::upper_bound(percentages.begin(), percentages.end(), percent + sameStep);
  return above == percentages.end() ? largestPercent : *above;
}

int percentBelow(double percent) {
  const auto* from = std::lower_bound(percentages.begin(), percentages.end(), percent - sameStep);
  return from == percentages.begin() ? smallestPercent : *(from - 1);
}

}  // namespace preview
