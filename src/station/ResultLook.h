#pragma once

#include <QColor>

#include "sound/Sound.h"
#include "station/StationAnswer.h"

/// How a result is told apart from three metres away.
struct ResultLook {
  /// Behind white text.
  QColor background;
  /// For text on the window's dark ground.
  QColor text;
  sound::Signal signal;
};

[[nodiscard]] const ResultLook& lookOf(StationAnswer::Kind kind);
