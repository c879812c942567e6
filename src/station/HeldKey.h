#pragma once

#include <chrono>
#include <optional>

#include <QKeyEvent>

/// Tells a key that is held down from one that a scanner typed twice. The toolkit marks both as repeated: it
/// takes a key that is released and pressed within one millisecond for held, and a fast scanner's doubled
/// digits are that.
class HeldKey {
 public:
  /// To be asked about every press, once: whether `press` is none of its own but the repeat of a key that is
  /// held down.
  [[nodiscard]] bool repeats(const QKeyEvent& press);

 private:
  int m_key = 0;
  std::optional<std::chrono::milliseconds> m_pressed;
};
