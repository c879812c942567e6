#pragma once

#include <csignal>
#include <sys/resource.h>

namespace support {

/// A disk on which no file grows beyond `bytes` as long as the object lives: a write beyond fails half-way,
/// as on a full disk, for the superuser too.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limited{bytes, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*m_handler)(int);
  rlimit m_before{};
};

}  // namespace support
