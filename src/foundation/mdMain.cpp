#include "foundation/mdMain.h"

#include <cstdio>

#include "dialogs/Dialogs.h"
#include "foundation/GlobalDefine.h"
#include "runtime/ProgramDirectory.h"

namespace {

void refuseToRun() {
  const QString where = QStringLiteral("找不到数据库文件：%1\n").arg(databaseFile());
  std::fputs(where.toLocal8Bit().constData(), stderr);
  dialogs::MsgBox(QStringLiteral("数据库异常，程序不能正常运行！点击确定后将程序将退出！"),
                  dialogs::Exclamation, QStringLiteral("错误"));
}

}  // namespace

bool Main(const MainFormFactory& makeMainForm) {
  if (!CheckDatabaseFile()) {
    refuseToRun();
    return false;
  }
  SetHomeAddress();
  gMainForm = makeMainForm();
  gMainForm->Show();
  return true;
}

bool CheckDatabaseFile() {
  return runtime::isNormalFile(databaseFile());
}

QString databaseFile() {
  return runtime::nativePath(GetDataPath() + QStringLiteral("\\vorlent.dat"));
}

void SetHomeAddress() {
  gHomeAddress = QStringLiteral("attendance.example");
}
