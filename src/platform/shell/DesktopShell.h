#pragma once

#include <QUrl>

#include "shell/Shell.h"

namespace shell {

/// The registry of a machine on which the programs are installed.
inline const QString machineRegistry = QStringLiteral("/etc/attendance/machine.ini");

/// Asks the desktop. Where it has no program for compiled help, the same pages are opened as HTML.
class DesktopShell : public Host {
 public:
  explicit DesktopShell(const QString& registryFile = machineRegistry) : m_registryFile(registryFile) {}

  bool open(const QString& target) override;
  bool start(const QString& program) override;
  [[nodiscard]] QString registryFile(RootKey root) const override;

 private:
  QString m_registryFile;
};

/// The address that `target` names: an address with a scheme as it is, anything else as a local file.
[[nodiscard]] QUrl targetUrl(const QString& target);

}  // namespace shell
