#pragma once

#include <cstdint>

#include "runtime/Random.h"

namespace cli {

/// Whole numbers out of a generator with a fixed start: the same start gives the same numbers.
class DemoRandom {
 public:
  explicit DemoRandom(std::uint64_t start) : m_random(start) {}

  /// 0 to `count` - 1.
  [[nodiscard]] int below(int count) { return static_cast<int>(m_random.next() * static_cast<float>(count)); }
  /// `least` to `most`.
  [[nodiscard]] int between(int least, int most) { return least + below(most - least + 1); }
  [[nodiscard]] bool percent(int chance) { return below(100) < chance; }

 private:
  runtime::Random m_random;
};

}  // namespace cli
