#pragma once

#include <QIcon>

namespace preview {

/// The icon of the tool at `index` of the toolbar, drawn as lines in the colours of the palette: it looks the
/// same whatever icon theme the desktop has, and is sharp at any size. A null icon for an index without one.
[[nodiscard]] QIcon toolIcon(int index);

}  // namespace preview
