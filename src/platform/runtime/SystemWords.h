#pragma once

#include <QString>

#include "runtime/RuntimeError.h"

namespace runtime {

/// What the system's error `code` (a value of errno) means, in the user's language; the system's own words
/// for a code that hardly anybody meets.
[[nodiscard]] QString systemWords(int code);
/// The same for what the toolkit says of a file that failed, in English unless a translation is loaded;
/// unchanged when that is none of the system's errors with words of their own.
[[nodiscard]] QString systemWords(const QString& errorString);

/// What the system's error `code` means to whoever meets it.
[[nodiscard]] FailureKind systemFailureKind(int code);

}  // namespace runtime
