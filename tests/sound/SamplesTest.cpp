#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

#include "sound/Samples.h"

namespace {

constexpr int rate = 48'000;

using Samples = std::vector<std::int16_t>;

/// How often the samples go from below zero to zero or above.
int rises(const Samples& samples) {
  int count = 0;
  for (std::size_t i = 1; i < samples.size(); ++i) count += samples[i - 1] < 0 && samples[i] >= 0 ? 1 : 0;
  return count;
}

int loudest(Samples::const_iterator first, Samples::const_iterator last) {
  int peak = 0;
  for (; first != last; ++first) peak = std::max(peak, std::abs(int{*first}));
  return peak;
}

TEST(Samples, AToneHasItsLengthAndPitch) {
  const Samples samples = sound::samplesOf({{.hertz = 880, .milliseconds = 500}}, rate);
  EXPECT_EQ(samples.size(), std::size_t{rate / 2});
  EXPECT_NEAR(rises(samples), 440, 1);
}

TEST(Samples, EveryToneBeginsAndEndsWithoutAClick) {
  const Samples samples = sound::samplesOf({{1000, 100}, {0, 50}, {1500, 100}}, rate);
  const auto tone = rate / 10;
  const auto gap = rate / 20;
  constexpr int audible = 700;
  for (const int edge : {0, tone - 10, tone + gap, 2 * tone + gap - 10}) {
    EXPECT_LT(loudest(samples.begin() + edge, samples.begin() + edge + 10), audible) << "at " << edge;
  }
  EXPECT_EQ(loudest(samples.begin() + tone, samples.begin() + tone + gap), 0);
  EXPECT_GT(loudest(samples.begin(), samples.begin() + tone), 10 * audible);
}

TEST(Samples, AToneOfNoLengthIsLeftOut) {
  EXPECT_TRUE(sound::samplesOf({{440, 0}, {440, -5}}, rate).empty());
}

}  // namespace
