#pragma once

#include "cli/Command.h"

namespace cli {

/// Prints who signed in today, one a line, columns between tabs, below a line of headings.
class TodayCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("today"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] int run(const Streams& streams) override;
};

}  // namespace cli
