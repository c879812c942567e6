#pragma once

#include "cli/Command.h"

namespace cli {

/// Takes the employee of a one-employee file in, under a new number and with a new barcode.
class ImportCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("import"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] bool drawsPictures() const override { return true; }
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QString m_file;
  QString m_number;
};

}  // namespace cli
