#pragma once

#include <memory>

#include <QStringList>

#include "printing/CardSheet.h"
#include "printing/SingleEmployeeInfoReport.h"
#include "records/clsEmployeeSet.h"
#include "ui/RecordList.h"

/// Prints the sign-in cards of the selected employees. The plain report is made at the first use and kept.
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
  /// Shows the cards several on a sheet, until the user closes the preview. `employees` are those of
  /// GetSelectedEmployees().
  void showSheets(std::shared_ptr<clsEmployeeSet> employees) const;

  /// How the sheets are laid out: as the user chose last since the program started.
  [[nodiscard]] const CardSheet& Sheet() const { return m_sheet; }
  void setSheet(const CardSheet& sheet) { m_sheet = sheet; }

 private:
  void collect(const QString& number, clsEmployeeSet& employees);

  RecordList& m_list;
  QStringList m_skipped;
  CardSheet m_sheet;
  std::unique_ptr<SingleEmployeeInfoReport> m_report;
};
