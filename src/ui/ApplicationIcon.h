#pragma once

#include <QIcon>

/// The program's icon: a sign-in card with its portrait and barcode.
[[nodiscard]] QIcon applicationIcon();
