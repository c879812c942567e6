#include "persisted/Refusal.h"

#include "runtime/RuntimeError.h"

namespace persisted {

void refuse(const QString& why) {
  throw runtime::RuntimeError(invalidFormat, why, runtime::FailureKind::Foreign);
}

}  // namespace persisted
