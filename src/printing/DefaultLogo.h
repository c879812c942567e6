#pragma once

#include "graphics/Picture.h"

/// The logo of a card when the settings name none: a plain clock face on a blue badge. The same picture every
/// time.
[[nodiscard]] graphics::PicturePointer defaultLogo();
