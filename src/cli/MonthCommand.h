#pragma once

#include "attendance/AttendanceMonth.h"
#include "cli/Command.h"

namespace cli {

/// Writes a month's attendance as PDF, workbook or CSV.
class MonthCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("month"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] bool drawsPictures() const override;
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QString m_month;
  QString m_out;
};

}  // namespace cli
