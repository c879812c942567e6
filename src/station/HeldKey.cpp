#include "station/HeldKey.h"

bool HeldKey::repeats(const QKeyEvent& press) {
  const ScanSplitter::Time time(press.timestamp());
  // A desktop begins to repeat long after a scanner's next key had to come, at the earliest after 100 ms.
  // What was taken for held doesn't count, since once it has begun it may come quickly.
  const bool isTypedTwice = press.key() == m_key && m_pressed && ScanSplitter::isSameScan(*m_pressed, time);
  if (press.isAutoRepeat() && !isTypedTwice) return true;
  m_key = press.key();
  m_pressed = time;
  return false;
}
