#pragma once

#include "runtime/RuntimeError.h"

namespace ado {

/// Numbers of the errors that this room raises itself; an error of the engine carries the engine's own
/// number.
enum class AdoErrorNumber {
  NoCurrentRecord = 3021,
  NotInCollection = 3265,
  OperationNotAllowed = 3704,
  BadStatement = 3709,
  ConnectionNotOpen = 3710,
};

/// A failure of the database access, with the engine's own words in the description.
class AdoError : public runtime::RuntimeError {
 public:
  using RuntimeError::RuntimeError;
  AdoError(AdoErrorNumber number, const QString& description,
           runtime::FailureKind kind = runtime::FailureKind::Other)
      : RuntimeError(static_cast<int>(number), description, kind) {}
};

}  // namespace ado
