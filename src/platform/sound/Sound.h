#pragma once

#include <vector>

/// Short signals, for whoever looks at the card and not at the screen.
namespace sound {

/// A sine tone; 0 hertz is silence.
struct Tone {
  int hertz = 0;
  int milliseconds = 0;

  bool operator==(const Tone&) const = default;
};

/// Tones one after the other.
using Signal = std::vector<Tone>;

class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  /// Begins to play and returns at once; a signal that still plays is cut off. Cannot fail: where nothing can
  /// be heard, nothing is.
  virtual void play(const Signal& signal) = 0;
};

/// Installs the host and returns the one before; the caller keeps ownership. Without a host all is silent.
Host* installHost(Host* host);

/// Plays `signal` on the installed host.
void play(const Signal& signal);

}  // namespace sound
