#pragma once

#include "cli/Command.h"

namespace cli {

/// Prints employees or departments, one a line, columns between tabs, below a line of headings.
class ListCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("list"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QString m_what;
};

}  // namespace cli
