#include "runtime/Progress.h"

#include <utility>

namespace runtime {

namespace {
ProgressListener* installed = nullptr;
}

void reportProgress(int done, int total) {
  if (installed) installed->progress(done, total);
}

bool goesOn(int done, int total) {
  reportProgress(done, total);
  return !installed || !installed->isCancelled();
}

ProgressScope::ProgressScope(ProgressListener& listener) : m_before(std::exchange(installed, &listener)) {}

ProgressScope::~ProgressScope() {
  installed = m_before;
}

}  // namespace runtime
