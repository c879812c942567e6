#pragma once

#include <QUrl>

#include "shell/Shell.h"

namespace shell {

/// Asks the desktop.
class DesktopShell : public Host {
 public:
  bool open(const QString& target) override;
};

/// The address that `target` names: an address with a scheme as it is, anything else as a local file.
[[nodiscard]] QUrl targetUrl(const QString& target);

}  // namespace shell
