#pragma once

#include <QString>

namespace runtime {

/// What the system's error `code` (a value of errno) means, in the user's language; the system's own words
/// for a code that hardly anybody meets.
[[nodiscard]] QString systemWords(int code);

}  // namespace runtime
