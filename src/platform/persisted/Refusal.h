#pragma once

#include <QString>

namespace persisted {

/// Number of the errors about what a file holds, or about a value that a file cannot hold; what the system
/// says of a file has the run-time's numbers.
inline constexpr int invalidFormat = 321;

/// Throws the RuntimeError of that number. `why` ends without a full stop.
[[noreturn]] void refuse(const QString& why);

}  // namespace persisted
