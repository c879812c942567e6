#include "sound/Samples.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sound {

namespace {

/// Half of what the format holds: loud enough, and other sounds of the system may be mixed in.
constexpr double amplitude = 16'000;
constexpr int fadeMilliseconds = 8;

int sampleCount(int milliseconds, int rate) {
  return static_cast<int>(std::int64_t{std::max(milliseconds, 0)} * rate / 1000);
}

/// 0 at both ends of the tone, 1 once the fade is over.
double loudness(int position, int count, int fade) {
  const int fromEdge = std::min(position, count - 1 - position);
  return fromEdge >= fade ? 1 : static_cast<double>(fromEdge) / fade;
}

void append(std::vector<std::int16_t>& samples, const Tone& tone, int rate) {
  const int count = sampleCount(tone.milliseconds, rate);
  const int fade = sampleCount(fadeMilliseconds, rate);
  const double step = 2 * std::numbers::pi * tone.hertz / rate;
  for (int i = 0; i < count; ++i) {
    samples.push_back(static_cast<std::int16_t>(amplitude * loudness(i, count, fade) * std::sin(step * i)));
  }
}

}  // namespace

std::vector<std::int16_t> samplesOf(const Signal& signal, int rate) {
  std::vector<std::int16_t> samples;
  for (const Tone& tone : signal) append(samples, tone, rate);
  return samples;
}

}  // namespace sound
