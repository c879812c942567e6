#pragma once

#include "cli/Command.h"
#include "cli/DemoPresence.h"

namespace cli {

/// Makes a home that is full of invented people. The same arguments on the same day give the same content.
class DemoCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("demo"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] bool drawsPictures() const override { return true; }
  [[nodiscard]] bool needsNamedHome() const override { return true; }
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  [[nodiscard]] std::vector<QDate> days() const;

  int m_employees = 120;
  int m_photoKb = 0;
  QString m_month;
};

}  // namespace cli
