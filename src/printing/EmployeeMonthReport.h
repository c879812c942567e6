#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

#include <QDate>

#include "attendance/AttendanceMonth.h"
#include "attendance/clsEmployeePresenceSet.h"
#include "report/ActiveReport.h"

/// One month's sign-in and sign-out times, a detail band an employee. An object prints once: its counter goes
/// on, so a second run has no bands.
class EmployeeMonthReport : public report::ActiveReport {
 public:
  EmployeeMonthReport();

  /// Sets all that is below.
  void setMonth(const AttendanceMonth& month, const QString& unit,
                std::shared_ptr<clsEmployeePresenceSet> presence);

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
  static constexpr int daysInGrid = 31;

  void readDays();

  /// Days of the grid that exist in the month.
  std::array<std::optional<QDate>, daysInGrid> m_days;
  std::int16_t m_row = 0;
};
