#include "ui/RecordRemoval.h"

#include "dialogs/Dialogs.h"
#include "records/clsEmployee.h"
#include "ui/ItemKey.h"

namespace {

bool confirmed(const QString& question) {
  return dialogs::MsgBox(question, dialogs::Question | dialogs::YesNo, QStringLiteral("询问")) ==
         dialogs::Answer::Yes;
}

void refuse(const QString& text, const QString& title) {
  dialogs::MsgBox(text, dialogs::Exclamation, title);
}

/// "编号为[7]名称为[财务部]的部门", the way every message names a department.
QString named(const clsDept& dept) {
  return QStringLiteral("编号为[") + QString::number(dept.ID()) + QStringLiteral("]名称为[") + dept.DNAME() +
         QStringLiteral("]的部门");
}

}  // namespace

void RecordRemoval::RemoveSelectedDepts() {
  m_list.walkSelected([this](int row) { removeDept(row); });
}

void RecordRemoval::removeDept(int row) {
  const QString identifier = ItemIdentifier(m_list.key(row));
  clsDept dept;
  dept.setID(DeptNumber(identifier));
  // A department that could not be loaded was not counted either: its count says nothing.
  if (dept.EMPLOYEENUM() < 0 || !dept.lastFailure().isEmpty()) {
    refuse(QStringLiteral("数据库操作错误！"), QStringLiteral("错误"));
    noteFailure(identifier, dept.lastFailure());
  } else if (dept.EMPLOYEENUM() > 0) {
    refuse(
        named(dept) + QStringLiteral("下还有员工，\r\n请删除相关员工或将员工转移到其它部门后再删除本部门！"),
        QStringLiteral("信息"));
  } else if (confirmed(QStringLiteral("删除") + named(dept) + QStringLiteral("？"))) {
    removeEmptyDept(dept, row);
  }
}

void RecordRemoval::removeEmptyDept(clsDept& dept, int row) {
  const QString identifier = ItemIdentifier(m_list.key(row));
  if (dept.Remove(identifier)) {
    m_list.removeRow(row);
    return;
  }
  refuse(QStringLiteral("未能删除") + named(dept) + QStringLiteral("！"), QStringLiteral("错误"));
  noteFailure(identifier, dept.lastFailure());
}

void RecordRemoval::RemoveSelectedEmps() {
  clsEmployee employee;
  m_list.walkSelected([&](int row) {
    const QString number = ItemIdentifier(m_list.key(row));
    const QString what = QStringLiteral("编号为[") + number + QStringLiteral("]的员工");
    if (!confirmed(QStringLiteral("删除") + what + QStringLiteral("？"))) return;
    if (employee.Remove(number)) {
      m_list.removeRow(row);
      return;
    }
    refuse(QStringLiteral("未能删除") + what + QStringLiteral("！"), QStringLiteral("错误"));
    noteFailure(number, employee.lastFailure());
  });
}

void RecordRemoval::noteFailure(const QString& identifier, const QString& reason) {
  m_status.note(QStringLiteral("未能删除[") + identifier + QStringLiteral("]：") +
                (reason.isEmpty() ? QStringLiteral("数据库中没有这条记录") : reason));
}
