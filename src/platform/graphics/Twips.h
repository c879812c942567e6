#pragma once

#include <cmath>

namespace graphics {

/// Twips are 1/1440 inch, points 1/72 inch.
inline constexpr int twipsPerInch = 1440;
inline constexpr int twipsPerPoint = 20;

/// Pixels of a screen with `dotsPerInch`, rounded.
[[nodiscard]] inline int twipsToPixels(double twips, double dotsPerInch) {
  return static_cast<int>(std::lround(twips * dotsPerInch / twipsPerInch));
}
[[nodiscard]] inline double pixelsToTwips(double pixels, double dotsPerInch) {
  return pixels * twipsPerInch / dotsPerInch;
}

}  // namespace graphics
