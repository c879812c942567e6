#pragma once

#include <cstdint>

namespace runtime {

/// A generator of uniform random numbers, seeded from the clock when it is made. Two generators made at the
/// same moment still give different numbers.
class Random {
 public:
  Random();
  explicit Random(std::uint64_t start);

  /// The next number in [0, 1), in single precision.
  [[nodiscard]] float next();

 private:
  std::uint64_t m_state;
};

}  // namespace runtime
