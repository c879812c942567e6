#pragma once

#include "runtime/RuntimeError.h"

namespace store {

/// A failure of the engine or of the files around it, with the engine's own words in the description and its
/// own result code, where there is one, as the number.
class StoreError : public runtime::RuntimeError {
 public:
  StoreError(runtime::FailureKind kind, const QString& description,
             int number = static_cast<int>(runtime::ErrorNumber::InvalidCall))
      : RuntimeError(number, description, kind) {}
};

}  // namespace store
