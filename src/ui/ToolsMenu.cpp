#include "ui/ToolsMenu.h"

#include "ui/frmMain.h"
#include "ui/frmRosterImport.h"

void mnuRosterImport_Click(frmMain& window) {
  frmRosterImport dialog(&window);
  dialog.exec();
  if (dialog.Result) window.mnuEmpDsp_Click();
}
