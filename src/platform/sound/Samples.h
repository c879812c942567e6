#pragma once

#include <cstdint>
#include <vector>

#include "sound/Sound.h"

namespace sound {

/// `signal` as signed 16-bit samples of one channel, `rate` a second. Every tone swells and fades over a few
/// milliseconds, since a hard edge is heard as a click. Tones of no or negative length are left out.
[[nodiscard]] std::vector<std::int16_t> samplesOf(const Signal& signal, int rate);

}  // namespace sound
