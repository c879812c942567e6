#include "station/HeldKey.h"

namespace {

/// No desktop begins to repeat a key earlier.
constexpr std::chrono::milliseconds earliestRepeat{100};

}  // namespace

bool HeldKey::repeats(const QKeyEvent& press) {
  const std::chrono::milliseconds time(press.timestamp());
  // What was taken for held doesn't count: once it has begun it may come as quickly as a scanner's keys.
  const bool isTypedTwice =
      m_pressed && press.key() == m_key && time >= *m_pressed && time - *m_pressed < earliestRepeat;
  if (press.isAutoRepeat() && !isTypedTwice) return true;
  m_key = press.key();
  m_pressed = time;
  return false;
}
