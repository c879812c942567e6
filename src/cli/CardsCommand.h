#pragma once

#include <memory>

#include "ado/Connection.h"
#include "cli/Command.h"
#include "printing/SingleEmployeeInfoReport.h"
#include "records/clsEmployeeSet.h"

namespace cli {

/// Prints sign-in cards into a PDF, four on a page or eight on a sheet to be cut.
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
  [[nodiscard]] std::unique_ptr<SingleEmployeeInfoReport> makeReport() const;

  bool m_all = false;
  QStringList m_numbers;
  QString m_out;
  bool m_asSheet = false;
  int m_start = 1;
  bool m_cutMarks = false;
  QString m_offset;
};

}  // namespace cli
