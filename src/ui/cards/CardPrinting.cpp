#include "ui/cards/CardPrinting.h"

#include <utility>

#include "printing/CardSheetReport.h"
#include "runtime/Progress.h"
#include "ui/ItemKey.h"
#include "ui/cards/CardPreview.h"

std::shared_ptr<clsEmployeeSet> CardPrinting::GetSelectedEmployees() {
  m_skipped.clear();
  auto employees = std::make_shared<clsEmployeeSet>();
  const int total = m_list.selectedCount();
  int done = 0;
  m_list.walkSelected([&](int row) {
    collect(ItemIdentifier(m_list.key(row)), *employees);
    runtime::reportProgress(++done, total);
  });
  return employees;
}

void CardPrinting::collect(const QString& number, clsEmployeeSet& employees) {
  auto employee = std::make_shared<clsEmployee>();
  employee->setENUMBER(number);
  if (employee->LoadByENUMBER() == clsEmployee::Found) {
    employees.Add(employee);
    return;
  }
  const QString reason = employee->lastFailure();
  m_skipped.append(number + QStringLiteral("（") +
                   (reason.isEmpty() ? QStringLiteral("数据库中已没有该员工") : reason) +
                   QStringLiteral("）"));
}

void CardPrinting::show(std::shared_ptr<clsEmployeeSet> employees) {
  if (!m_report) m_report = std::make_unique<SingleEmployeeInfoReport>();
  showCardPreview(*m_report, std::move(employees));
}

void CardPrinting::showSheets(std::shared_ptr<clsEmployeeSet> employees) const {
  // Nothing else may hold the employees when the preview lets go of them: their photo files go with them.
  employees = arranged(*employees, m_sheet.order);
  CardSheetReport report(m_sheet);
  showCardPreview(report, std::move(employees));
}
