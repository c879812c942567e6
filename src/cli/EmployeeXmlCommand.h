#pragma once

#include "cli/Command.h"

namespace cli {

/// Writes a file with one new employee, for the import.
class EmployeeXmlCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("employee-xml"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] bool drawsPictures() const override { return true; }
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QString m_name;
  QString m_dept;
  QString m_photo;
  QString m_date;
  QString m_out;
};

}  // namespace cli
