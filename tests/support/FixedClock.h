#pragma once

#include "runtime/Clock.h"

namespace support {

/// A clock that stands still until it is set. Installed as long as it lives.
class FixedClock : public runtime::Clock {
 public:
  explicit FixedClock(const QDateTime& moment) : m_moment(moment), m_before(runtime::installClock(this)) {}
  ~FixedClock() override { runtime::installClock(m_before); }

  [[nodiscard]] QDateTime now() const override { return m_moment; }
  void set(const QDateTime& moment) { m_moment = moment; }

 private:
  QDateTime m_moment;
  const runtime::Clock* m_before;
};

}  // namespace support
