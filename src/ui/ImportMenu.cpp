#include "ui/ImportMenu.h"

#include "dialogs/Dialogs.h"
#include "runtime/RuntimeError.h"
#include "ui/frimEmpImport.h"
#include "ui/frmMain.h"

namespace {

/// The full paths of the files, in the order in which the box gives them.
QStringList chooseEmployeeFiles() {
  dialogs::FileBox box;
  box.title = QStringLiteral("选择员工信息文件");
  box.filter = QStringLiteral("XML文件|*.xml");
  box.flags = dialogs::Explorer | dialogs::AllowMultiSelect;
  return dialogs::chooseFile(box);
}

void import(const QStringList& files, frmMain& window) {
  {
    frimEmpImport dialog(&window);
    dialog.SetFileList(files);
    dialog.Form_Load();
    dialog.exec();
  }
  window.mnuEmpDsp_Click();
}

}  // namespace

void mnuEmpImport_Click(frmMain& window) {
  const QStringList files = chooseEmployeeFiles();
  if (files.isEmpty()) return;
  try {
    import(files, window);
  } catch (const runtime::RuntimeError& error) {
    window.Status().note(QStringLiteral("导入未能完成：") + error.description());
  }
}
