#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "sound/Sound.h"

namespace sound {

/// Plays on a device of ALSA, from a thread of its own. The device is opened for each signal: it may be
/// plugged in later, and other programs can use it in between. Without a device, or when it fails, the signal
/// is not heard and nothing else happens.
class AlsaHost : public Host {
 public:
  /// Samples a second.
  static constexpr int rate = 48'000;

  explicit AlsaHost(std::string device = "default");
  /// Cuts off what still plays.
  ~AlsaHost() override;

  void play(const Signal& signal) override;

 private:
  using Samples = std::vector<std::int16_t>;

  void work();
  /// The next signal; nothing when the host goes.
  [[nodiscard]] std::optional<Signal> waitForSignal();
  void playOnDevice(const Samples& samples);
  /// Whether a signal waits to be played, or the host goes.
  [[nodiscard]] bool isInterrupted();

  std::string m_device;
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::optional<Signal> m_next;
  bool m_goes = false;
  std::thread m_thread;
};

}  // namespace sound
