#pragma once

#include "runtime/Clock.h"

namespace support {

/// A clock that stands still until a test moves it. Installed as long as it lives.
class FixedClock : public runtime::Clock {
 public:
  explicit FixedClock(const QDateTime& moment) : m_moment(moment), m_before(runtime::installClock(this)) {}
  ~FixedClock() override { runtime::installClock(m_before); }

  [[nodiscard]] QDateTime now() const override { return m_moment; }
  void set(const QDateTime& moment) { m_moment = moment; }
  void advanceSeconds(qint64 seconds) { m_moment = m_moment.addSecs(seconds); }

 private:
  QDateTime m_moment;
  const runtime::Clock* m_before;
};

}  // namespace support
