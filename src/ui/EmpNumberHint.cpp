#include "ui/EmpNumberHint.h"

#include "ado/Recordset.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"
#include "ui/HintLabel.h"

namespace {

/// First column of the first row; Null when there is none.
QVariant valueOf(const QString& query) {
  ado::Recordset rows;
  rows.Open(query, clsDbConn().GetDbConn());
  return rows.IsEOF() ? QVariant() : rows.Fields(0).Value();
}

int countOf(const QString& query) {
  return runtime::toInt32(valueOf(query));
}

/// A number whose photo file cannot be written keeps the whole list of employees from being read.
QString fileNameHint(const QString& number) {
  if (!runtime::isPlainFileName(number)) {
    return QStringLiteral("此编号不能用作文件名，保存后将无法写出照片，员工列表也无法读出。");
  }
  return number == QStringLiteral("temp") ? QStringLiteral("此编号与程序的临时照片文件同名，请换一个编号。")
                                          : QString();
}

QString ownerHint(const QString& number) {
  const QString employees = QStringLiteral("FROM Employee WHERE ENUMBER=") + sql::quoted(number);
  if (countOf(QStringLiteral("SELECT COUNT(*) ") + employees) == 0) return {};
  const int listed = countOf(
      QStringLiteral("SELECT COUNT(*) FROM Employee, Dept WHERE Employee.DID = Dept.ID AND ENUMBER=") +
      sql::quoted(number));
  if (listed > 0) return QStringLiteral("此编号已有员工使用。");
  const QString name = runtime::toTextOrEmpty(valueOf(QStringLiteral("SELECT ENAME ") + employees));
  return QStringLiteral("此编号属于员工“%1”，其部门已不存在；保存将覆盖该员工。").arg(name);
}

QString recordsHint(const QString& number) {
  const int records =
      countOf(QStringLiteral("SELECT COUNT(*) FROM Presence WHERE ENUMBER=") + sql::quoted(number));
  return records == 0 ? QString()
                      : QStringLiteral("此编号已有 %1 条签到记录，保存后将算作新员工的记录。").arg(records);
}

}  // namespace

QString empNumberHint(const QString& number) {
  if (number.isEmpty()) return {};
  QString hint = quoteHint(QStringLiteral("员工编号"), number);
  if (hint.isEmpty()) hint = fileNameHint(number);
  if (hint.isEmpty()) hint = ownerHint(number);
  return hint.isEmpty() ? recordsHint(number) : hint;
}
