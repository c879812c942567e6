#pragma once

#include <memory>

#include "ado/Connection.h"
#include "cli/Command.h"
#include "records/clsEmployeeSet.h"

namespace cli {

/// Prints sign-in cards into a PDF.
class CardsCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("cards"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] bool drawsPictures() const override { return true; }
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  [[nodiscard]] std::shared_ptr<clsEmployeeSet> load(
      const std::shared_ptr<ado::Connection>& connection) const;

  bool m_all = false;
  QStringList m_numbers;
  QString m_out;
};

}  // namespace cli
