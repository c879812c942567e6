#pragma once

namespace shell {

/// Whether the desktop associates a program with compiled help files. Asks xdg-mime for a few seconds at
/// most; without an answer there is none.
[[nodiscard]] bool desktopHasHelpViewer();

}  // namespace shell
