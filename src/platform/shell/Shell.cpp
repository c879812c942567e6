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

bool startProgram(const QString& program) {
  return installed && installed->start(program);
}

QString registryFile(RootKey root) {
  return installed ? installed->registryFile(root) : QString();
}

}  // namespace shell
