#pragma once

#include "runtime/RuntimeError.h"

namespace store {

/// A failure of the engine (its own result code) or of the files around it, with the engine's own words in
/// the description.
class StoreError : public runtime::RuntimeError {
 public:
  using RuntimeError::RuntimeError;
};

/// The words in every description of a file that another program held until the wait for it was over.
[[nodiscard]] QString busyWords();

/// Result codes that callers tell apart; they are the engine's.
enum class StoreCode {
  Failed = 1,
  Busy = 5,
  ReadOnly = 8,
  Damaged = 11,
  Full = 13,
  CannotOpen = 14,
  NotADatabase = 26
};

}  // namespace store
