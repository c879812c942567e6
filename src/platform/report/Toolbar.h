#pragma once

#include <array>

#include <QString>

namespace report {

/// The texts of the preview's toolbar by tool index, as a report sets them when it starts.
struct Tool {
  QString Caption;
  QString Tooltip;
};

struct Toolbar {
  /// Tools and separators of the preview, in order.
  static constexpr int toolCount = 21;
  std::array<Tool, toolCount> Tools;
};

/// Sets the Chinese texts that every report of the program shows.
void LocalizeToolbar(Toolbar& toolbar);

}  // namespace report
