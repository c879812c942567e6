#pragma once

#include "cli/Command.h"

namespace cli {

/// Writes all employees or all departments to an XML file.
class ExportCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("export"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QString m_what;
  QString m_out;
};

}  // namespace cli
