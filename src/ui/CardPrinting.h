#pragma once

#include <memory>

#include <QStringList>

#include "printing/SingleEmployeeInfoReport.h"
#include "records/clsEmployeeSet.h"
#include "ui/RecordList.h"

/// Prints the sign-in cards of the selected employees. The report is made at the first use and kept.
class CardPrinting {
 public:
  explicit CardPrinting(RecordList& list) : m_list(list) {}

  /// The selected employees that the database still has, from the bottom row to the top one; the others are
  /// skipped and listed in skipped().
  [[nodiscard]] std::shared_ptr<clsEmployeeSet> GetSelectedEmployees();
  /// Of the last collecting: number and reason of each employee left out.
  [[nodiscard]] const QStringList& skipped() const { return m_skipped; }
  /// Shows the cards until the user closes the preview.
  void show(std::shared_ptr<clsEmployeeSet> employees);

 private:
  void collect(const QString& number, clsEmployeeSet& employees);

  RecordList& m_list;
  QStringList m_skipped;
  std::unique_ptr<SingleEmployeeInfoReport> m_report;
};
