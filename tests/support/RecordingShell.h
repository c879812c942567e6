#pragma once

#include <QStringList>

#include "shell/Shell.h"

namespace support {

/// A desktop that only remembers what it was asked to open. Installed as long as it lives.
class RecordingShell : public shell::Host {
 public:
  RecordingShell() : m_before(shell::installHost(this)) {}
  ~RecordingShell() override { shell::installHost(m_before); }

  bool open(const QString& target) override {
    opened.append(target);
    return succeeds;
  }

  QStringList opened;
  bool succeeds = true;

 private:
  shell::Host* m_before;
};

}  // namespace support
