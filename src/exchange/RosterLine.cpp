#include "exchange/RosterLine.h"

QString RosterLine::outcome() const {
  if (!isRight()) return QStringLiteral("错误：") + faults.join(QStringLiteral("；"));
  QString text = isUpdate ? QStringLiteral("更新") : QStringLiteral("新增");
  if (!nameBefore.isEmpty()) text += QStringLiteral("（原姓名“%1”）").arg(nameBefore);
  if (makesDepartment()) text += QStringLiteral("（新建部门“%1”）").arg(row.department);
  return text;
}

QString RosterLine::faultText() const {
  return row.place() + QStringLiteral("：") + faults.join(QStringLiteral("；"));
}
