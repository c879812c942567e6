#include "shell/Shell.h"

#include <utility>

namespace shell {

namespace {
Host* installed = nullptr;
}

Host* installHost(Host* host) {
  return std::exchange(installed, host);
}

bool openTarget(const QString& target) {
  return installed && installed->open(target);
}

}  // namespace shell
