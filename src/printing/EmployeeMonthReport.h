#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <QDate>

#include "attendance/MonthData.h"
#include "report/ActiveReport.h"

/// One month's sign-in and sign-out times, a detail band an employee. An object prints once: its counter goes
/// on, so a second run has no bands.
class EmployeeMonthReport : public report::ActiveReport {
 public:
  EmployeeMonthReport();

  /// How many employees it can list; a run with more throws runtime::RuntimeError.
  static constexpr int mostEmployees = 32'767;

  /// Sets all that is below.
  void setMonth(const MonthData& data);

  /// Name of the unit in the heading.
  QString schoolName;
  std::int16_t presenceYear = 0;
  /// 1 to 12.
  std::int16_t presenceMonth = 0;
  /// The month's data; without it the report has no bands.
  std::shared_ptr<clsEmployeePresenceSet> presenceList;

 protected:
  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;
  [[nodiscard]] int expectedBands() const override;

 private:
  /// Of the month, in order; none when there is no such month.
  std::vector<QDate> m_days;
  int m_row = 0;
};
