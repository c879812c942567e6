#include "runtime/Random.h"

#include <atomic>

#include "runtime/Clock.h"

namespace runtime {

namespace {

// The step and the mixing constants of SplitMix64 (Steele, Lea, Flood: Fast Splittable Pseudorandom Number
// Generators, 2014): eight bytes of state, so that thousands of records can each hold a generator.
constexpr std::uint64_t step = 0x9e3779b97f4a7c15U;

std::uint64_t mixed(std::uint64_t z) {
  z = (z ^ (z >> 30U)) * 0xbf58476d1ce4e5b9U;
  z = (z ^ (z >> 27U)) * 0x94d049bb133111ebU;
  return z ^ (z >> 31U);
}

std::uint64_t startFromClock() {
  static std::atomic<std::uint64_t> made{0};
  return mixed(static_cast<std::uint64_t>(now().toMSecsSinceEpoch()) + step * ++made);
}

}  // namespace

Random::Random() : Random(startFromClock()) {}

Random::Random(std::uint64_t start) : m_state(start) {}

float Random::next() {
  m_state += step;
  constexpr unsigned mantissaBits = 24;
  return static_cast<float>(mixed(m_state) >> (64U - mantissaBits)) / static_cast<float>(1U << mantissaBits);
}

}  // namespace runtime
