#pragma once

#include <functional>

#include <QString>

/// What stands between a path that a user chose and the files that the program lives on.
namespace runtime {

/// Throws RuntimeError, in the user's language, when nothing may be written to the path.
using OutputGuard = std::function<void(const QString& path)>;

/// Installs `guard` (empty: none) and returns the one that was installed before.
OutputGuard installOutputGuard(OutputGuard guard);
/// Asks the installed guard about a path that a user chose to write to. Every way out of the program asks
/// before it writes.
void requireFreeForOutput(const QString& path);

}  // namespace runtime
