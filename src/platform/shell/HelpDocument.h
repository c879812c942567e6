#pragma once

#include <functional>

#include <QString>

namespace shell {

/// What to open for the local file `path`: itself, but for a compiled help file (.chm) that is not there or
/// that no program opens, help/index.html beside it, if that is there. `hasViewer` (whether a program opens
/// compiled help) is asked only where the answer matters.
[[nodiscard]] QString readableHelp(const QString& path, const std::function<bool()>& hasViewer);

}  // namespace shell
