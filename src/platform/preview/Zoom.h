#pragma once

#include <vector>

#include <QString>

namespace preview {

/// How large pages are shown: fitted to the view (one page, its width, or several pages at once), or a
/// percentage of their true size.
struct Zoom {
  enum class Fit { None, Page, Width, Several };

  Fit fit = Fit::None;
  /// Used without a fit only.
  int percent = 100;

  bool operator==(const Zoom&) const = default;
};

inline constexpr int smallestPercent = 25;
inline constexpr int largestPercent = 800;

/// The entries of the zoom list, in its order: the two fits, then the percentages upward.
[[nodiscard]] const std::vector<Zoom>& zoomList();
/// What a zoom is called: "整页", "页宽", "多页" or the percentage.
[[nodiscard]] QString zoomText(const Zoom& zoom);
/// The nearest percentage of the list above `percent`, the largest when there is none.
[[nodiscard]] int percentAbove(double percent);
/// The nearest percentage of the list below `percent`, the smallest when there is none.
[[nodiscard]] int percentBelow(double percent);

}  // namespace preview
