#include "ui/ExportMenu.h"

#include "dialogs/Dialogs.h"
#include "foundation/Attempt.h"
#include "graphics/WaitCursor.h"
#include "records/RecordExport.h"
#include "runtime/Clock.h"
#include "runtime/DefaultText.h"
#include "runtime/OutputGuard.h"
#include "ui/ItemKey.h"
#include "ui/frmMain.h"

namespace {

constexpr int notWritten = -1;

/// The file that the user chose to save to; empty when cancelled.
QString chosenFile(const QString& title, const QString& proposed) {
  dialogs::FileBox box;
  box.save = true;
  box.title = title;
  box.filter = QStringLiteral("XML文件|*.xml");
  box.fileName = proposed;
  return dialogs::chooseFile(box).value(0);
}

/// Runs `write`, which gives the number of rows, and tells whether it succeeded. Gives that number too.
template <typename Write>
int tellExport(const QString& fileName, frmMain& window, const Write& write) {
  QString failure;
  const int rows = attempt(failure, int{notWritten}, [&] {
    const graphics::WaitCursor wait;
    runtime::requireFreeForOutput(fileName);
    return write();
  });
  if (rows == notWritten) {
    window.Status().note(QStringLiteral("未能导出：") + failure);
    dialogs::MsgBox(QStringLiteral("导出数据失败！"), dialogs::Exclamation, QStringLiteral("错误"));
  } else {
    window.Status().note(QStringLiteral("已导出 %1 条记录到 %2").arg(rows).arg(fileName));
    dialogs::MsgBox(QStringLiteral("数据已成功导出！"), dialogs::Information, QStringLiteral("信息"));
  }
  return rows;
}

/// From the bottom row to the top one.
QStringList selectedNumbers(const RecordList& list) {
  QStringList numbers;
  list.walkSelected([&](int row) { numbers.append(ItemIdentifier(list.key(row))); });
  return numbers;
}

}  // namespace

void mnuEmpExport_Click(frmMain& window) {
  const QString today = runtime::dateText(runtime::now().date());
  const QString file = chosenFile(QStringLiteral("导出所选员工"),
                                  QStringLiteral("员工信息_") + today + QStringLiteral(".xml"));
  if (!file.isEmpty()) ExportEmpXML(file, window);
}

void mnuDeptExport_Click(frmMain& window) {
  const QString file = chosenFile(QStringLiteral("导出部门"), QStringLiteral("部门信息.xml"));
  if (!file.isEmpty()) ExportDeptXML(file, window);
}

void ExportEmpXML(const QString& FileName, frmMain& window) {
  if (FileName.isEmpty()) return;
  const QStringList numbers = selectedNumbers(window.List());
  const int rows = tellExport(FileName, window, [&] { return exportEmployees(numbers, FileName); });
  if (rows != notWritten && rows < numbers.size()) {
    window.Status().note(
        QStringLiteral("已导出 %1 名员工，所选的其余员工已不在数据库中：%2").arg(rows).arg(FileName));
  }
}

void ExportDeptXML(const QString& FileName, frmMain& window) {
  if (FileName.isEmpty()) return;
  std::ignore = tellExport(FileName, window, [&] { return exportDepartments(FileName); });
}
