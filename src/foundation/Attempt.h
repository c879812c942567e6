#pragma once

#include <type_traits>

#include <QString>

#include "runtime/RuntimeError.h"

/// Runs `operation` and returns its result, or `failed` when a run-time error ended it. `reason` then holds
/// the error's description; otherwise it is empty.
template <typename Operation>
[[nodiscard]] std::invoke_result_t<Operation> attempt(QString& reason, std::invoke_result_t<Operation> failed,
                                                      const Operation& operation) {
  reason.clear();
  try {
    return operation();
  } catch (const runtime::RuntimeError& error) {
    reason = error.description();
    return failed;
  }
}
