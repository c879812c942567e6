#pragma once

#include <utility>

#include "ado/AdoError.h"

namespace ado {

/// Runs `work` and turns any failure of the layers below into an AdoError of the same number, kind and words.
template <typename Work>
auto translatingErrors(Work&& work) -> decltype(work()) {
  try {
    return std::forward<Work>(work)();
  } catch (const AdoError&) {
    throw;
  } catch (const runtime::RuntimeError& error) {
    throw AdoError(error.number(), error.description(), error.kind());
  }
}

}  // namespace ado
