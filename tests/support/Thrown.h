#pragma once

#include <gtest/gtest.h>

#include "runtime/RuntimeError.h"

namespace support {

/// The run-time error that `action` ends with; without one the test fails and the error has number 0.
template <typename Action>
runtime::RuntimeError thrown(const Action& action) {
  try {
    action();
  } catch (const runtime::RuntimeError& error) {
    return error;
  }
  ADD_FAILURE() << "nothing was thrown";
  return {0, QString()};
}

/// Number of the run-time error that `action` ends with.
template <typename Action>
runtime::ErrorNumber thrownNumber(const Action& action) {
  return static_cast<runtime::ErrorNumber>(thrown(action).number());
}

}  // namespace support
