#include "ui/ToolsMenu.h"

#include <utility>

#include "ui/cards/frmCardSheet.h"
#include "ui/frmMain.h"
#include "ui/frmRosterImport.h"

void mnuRosterImport_Click(frmMain& window) {
  frmRosterImport dialog(&window);
  dialog.exec();
  if (dialog.Result) window.mnuEmpDsp_Click();
}

void mnuCardSheet_Click(frmMain& window) {
  const int selected = window.List().selectedCount();
  if (selected == 0) return window.mnuEmpPrint_Click();
  frmCardSheet dialog(window.Cards().Sheet(), selected, &window);
  if (dialog.exec() != QDialog::Accepted) return;
  window.Cards().setSheet(dialog.Sheet());
  auto employees = window.GetSelectedEmployees();
  window.NotePrinting(employees->Count());
  window.Cards().showSheets(std::move(employees));
}
