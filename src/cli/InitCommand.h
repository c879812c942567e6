#pragma once

#include "cli/Command.h"

namespace cli {

/// Makes an empty home.
class InitCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("init"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] bool needsNamedHome() const override { return true; }
  [[nodiscard]] int run(const Streams& streams) override;
};

}  // namespace cli
