#include "runtime/Clock.h"

#include <utility>

namespace runtime {

namespace {
const Clock* installed = nullptr;
}

QDateTime now() {
  return installed ? installed->now() : QDateTime::currentDateTime();
}

const Clock* installClock(const Clock* clock) {
  return std::exchange(installed, clock);
}

void nameTimeZone() {
  if (qEnvironmentVariableIsEmpty("TZ")) qputenv("TZ", ":/etc/localtime");
}

}  // namespace runtime
