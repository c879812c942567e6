#pragma once

#include <QIcon>

namespace graphics {

/// The programs' icon: a sign-in card with its portrait and barcode.
[[nodiscard]] QIcon applicationIcon();

}  // namespace graphics
