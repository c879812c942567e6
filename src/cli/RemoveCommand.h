#pragma once

#include "cli/Command.h"

namespace cli {

/// Deletes one employee by number, also one whose number no window can handle.
class RemoveCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("remove"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QString m_number;
};

}  // namespace cli
