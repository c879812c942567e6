#pragma once

#include "cli/Command.h"

namespace cli {

/// Applies the sign-in rule to scanned cards, as a sign-in station does, and prints one line a card: code,
/// the result's number and text, the employee's number and name.
class SignCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("sign"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QStringList m_codes;
};

}  // namespace cli
