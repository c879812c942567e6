#pragma once

#include <QStringList>

#include "shell/Shell.h"

namespace support {

/// A desktop that only remembers what it was asked to open and start. Installed as long as it lives.
class RecordingShell : public shell::Host {
 public:
  RecordingShell() : m_before(shell::installHost(this)) {}
  ~RecordingShell() override { shell::installHost(m_before); }

  bool open(const QString& target) override {
    opened.append(target);
    return succeeds;
  }

  bool start(const QString& program) override {
    started.append(program);
    return succeeds;
  }
  [[nodiscard]] QString registryFile(shell::RootKey /*root*/) const override { return registry; }

  QStringList opened;
  QStringList started;
  bool succeeds = true;
  /// Path of the file of the registry's values.
  QString registry;

 private:
  shell::Host* m_before;
};

}  // namespace support
