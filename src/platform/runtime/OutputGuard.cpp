#include "runtime/OutputGuard.h"

#include <utility>

namespace runtime {

namespace {

OutputGuard& installed() {
  static OutputGuard guard;
  return guard;
}

}  // namespace

OutputGuard installOutputGuard(OutputGuard guard) {
  return std::exchange(installed(), std::move(guard));
}

void requireFreeForOutput(const QString& path) {
  if (installed()) installed()(path);
}

}  // namespace runtime
