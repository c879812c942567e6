#include "ui/DeptDialogs.h"

#include "ui/ItemKey.h"
#include "ui/frmDeptAppend.h"
#include "ui/frmDeptEdit.h"
#include "ui/frmMain.h"

namespace {

/// Whether the department with that number was renamed. The dialog's message does not tell why it was not:
/// the status bar does.
bool rename(const QString& identifier, frmMain& window) {
  frmDeptEdit dialog(&window);
  dialog.DeptID = identifier;
  dialog.Form_Load();
  dialog.exec();
  if (!dialog.LastFailure().isEmpty()) {
    window.Status().note(QStringLiteral("未能修改部门[%1]：").arg(identifier) + dialog.LastFailure());
  }
  return dialog.Result;
}

}  // namespace

void mnuDeptAppend_Click(frmMain& window) {
  frmDeptAppend dialog(&window);
  dialog.exec();
  if (dialog.Result) {
    window.ShowDeptList();
  } else if (!dialog.LastFailure().isEmpty()) {
    window.Status().note(QStringLiteral("未能追加部门：") + dialog.LastFailure());
  }
}

void mnuDeptEdit_Click(frmMain& window) {
  const RecordList& list = window.List();
  if (list.selectedCount() == 0) window.Status().note(QStringLiteral("没有选中部门"));
  bool changed = false;
  list.walkSelected([&](int row) {
    if (rename(ItemIdentifier(list.key(row)), window)) changed = true;
  });
  if (changed) window.ShowDeptList();
}
