#pragma once

#include <QString>

namespace persisted {

/// What is wrong with a document that is not well-formed, in the user's language. `code` is one of expat's
/// numbers of errors; a number that no document of ours can lead to is told as it is.
[[nodiscard]] QString xmlErrorText(int code);

}  // namespace persisted
