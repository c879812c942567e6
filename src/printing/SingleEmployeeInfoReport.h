#pragma once

#include <memory>

#include <QStringList>

#include "records/clsEmployeeSet.h"
#include "report/ActiveReport.h"

/// The sign-in cards, one a detail band, four a page.
class SingleEmployeeInfoReport : public report::ActiveReport {
 public:
  SingleEmployeeInfoReport();

  /// Hands in the employees and starts the count anew. An empty pointer lets go of the ones before.
  void SetEmployeeSet(std::shared_ptr<clsEmployeeSet> employees);
  /// Of the last run: one line an employee whose photo could not be read, with the number and the reason; the
  /// card then has an empty frame. A line too when the logo that the settings name could not be read; the
  /// cards then have the default one.
  [[nodiscard]] const QStringList& photoFailures() const { return m_photoFailures; }

 protected:
  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;
  [[nodiscard]] int expectedBands() const override;

 private:
  void ApplyCardStyles();
  [[nodiscard]] graphics::PicturePointer LoadPhoto(const clsEmployee& employee);

  std::shared_ptr<clsEmployeeSet> m_employees;
  int m_fetched = 0;
  QStringList m_photoFailures;
};
