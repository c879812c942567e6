#pragma once

#include "cli/Command.h"

namespace cli {

/// Looks through the database and prints what is wrong, one line a finding.
class CheckCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("check"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] bool drawsPictures() const override { return true; }
  [[nodiscard]] int run(const Streams& streams) override;
};

}  // namespace cli
