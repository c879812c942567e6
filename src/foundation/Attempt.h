#pragma once

#include <type_traits>
#include <utility>

#include <QString>

#include "runtime/RuntimeError.h"

/// Runs `operation` and returns its result, or `failed` when a run-time error ended it. `reason` then holds
/// the error's description and kind; otherwise it is empty.
template <typename Operation>
[[nodiscard]] std::invoke_result_t<Operation> attempt(runtime::Failure& reason,
                                                      std::invoke_result_t<Operation> failed,
                                                      const Operation& operation) {
  reason.clear();
  try {
    return operation();
  } catch (const runtime::RuntimeError& error) {
    reason = {error.description(), error.kind()};
    return failed;
  }
}

/// As above, for whoever only wants the words.
template <typename Operation>
[[nodiscard]] std::invoke_result_t<Operation> attempt(QString& reason, std::invoke_result_t<Operation> failed,
                                                      const Operation& operation) {
  runtime::Failure failure;
  std::invoke_result_t<Operation> result = attempt(failure, std::move(failed), operation);
  reason = failure.words;
  return result;
}
