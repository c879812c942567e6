#pragma once

#include <QColor>

namespace graphics {

/// Between a stored colour (red in the low byte, then green, then blue; other bits ignored) and a QColor.
[[nodiscard]] QColor fromStoredColor(int stored);
[[nodiscard]] int toStoredColor(const QColor& color);

}  // namespace graphics
