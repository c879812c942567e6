#include "graphics/StoredColor.h"

namespace graphics {

QColor fromStoredColor(int stored) {
  return {stored & 0xFF, (stored >> 8) & 0xFF, (stored >> 16) & 0xFF};
}

int toStoredColor(const QColor& color) {
  return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace graphics
