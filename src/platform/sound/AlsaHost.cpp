#include "sound/AlsaHost.h"

#include <algorithm>
#include <alsa/asoundlib.h>
#include <memory>
#include <utility>

#include "sound/Samples.h"

namespace sound {

namespace {

constexpr unsigned int latencyMicroseconds = 60'000;
/// What is handed over at a time: so much later an interruption is noticed.
constexpr std::size_t portion = AlsaHost::rate / 100;

struct DeviceCloser {
  void operator()(snd_pcm_t* device) const noexcept { snd_pcm_close(device); }
};
using Device = std::unique_ptr<snd_pcm_t, DeviceCloser>;

/// The library writes to standard error that there is no device, at each attempt.
void keepQuiet(const char*, int, const char*, int, const char*, ...) {}

Device openDevice(const std::string& name) {
  snd_pcm_t* opened = nullptr;
  if (snd_pcm_open(&opened, name.c_str(), SND_PCM_STREAM_PLAYBACK, 0) < 0) return {};
  Device device(opened);
  constexpr int resample = 1;
  const int code = snd_pcm_set_params(opened, SND_PCM_FORMAT_S16, SND_PCM_ACCESS_RW_INTERLEAVED, 1,
                                      AlsaHost::rate, resample, latencyMicroseconds);
  return code < 0 ? Device() : std::move(device);
}

/// Hands over up to `count` samples; how many were taken, 0 when the device failed for good.
std::size_t write(snd_pcm_t* device, const std::int16_t* samples, std::size_t count) {
  snd_pcm_sframes_t taken = snd_pcm_writei(device, samples, count);
  if (taken < 0 && snd_pcm_recover(device, static_cast<int>(taken), 1) == 0) {
    taken = snd_pcm_writei(device, samples, count);
  }
  return taken > 0 ? static_cast<std::size_t>(taken) : 0;
}

}  // namespace

AlsaHost::AlsaHost(std::string device) : m_device(std::move(device)) {
  snd_lib_error_set_handler(keepQuiet);
  m_thread = std::thread(&AlsaHost::work, this);
}

AlsaHost::~AlsaHost() {
  {
    const std::lock_guard lock(m_mutex);
    m_goes = true;
  }
  m_changed.notify_one();
  m_thread.join();
}

void AlsaHost::play(const Signal& signal) {
  {
    const std::lock_guard lock(m_mutex);
    m_next = signal;
  }
  m_changed.notify_one();
}

void AlsaHost::work() {
  while (const std::optional<Signal> signal = waitForSignal()) playOnDevice(samplesOf(*signal, rate));
}

std::optional<Signal> AlsaHost::waitForSignal() {
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [this] { return m_goes || m_next; });
  if (m_goes) return {};
  return std::exchange(m_next, {});
}

void AlsaHost::playOnDevice(const Samples& samples) {
  const Device device = openDevice(m_device);
  if (device == nullptr) return;
  for (std::size_t done = 0; done < samples.size();) {
    if (isInterrupted()) {
      snd_pcm_drop(device.get());
      return;
    }
    const std::size_t taken =
        write(device.get(), samples.data() + done, std::min(portion, samples.size() - done));
    if (taken == 0) return;
    done += taken;
  }
  snd_pcm_drain(device.get());
}

bool AlsaHost::isInterrupted() {
  const std::lock_guard lock(m_mutex);
  return m_goes || m_next;
}

}  // namespace sound
