#include "ui/frmDeptEdit.h"

#include <QFormLayout>

#include "dialogs/Dialogs.h"
#include "ui/Controls.h"
#include "ui/ItemKey.h"

namespace {

void warn(const QString& text) {
  dialogs::MsgBox(text, dialogs::Exclamation, QStringLiteral("警告"));
}

/// Still readable and copied from, but no place to type in.
void makeReadOnly(QLineEdit& box) {
  box.setReadOnly(true);
  box.setFocusPolicy(Qt::ClickFocus);
  QPalette colours = box.palette();
  colours.setColor(QPalette::Base, colours.color(QPalette::Window));
  box.setPalette(colours);
}

}  // namespace

frmDeptEdit::frmDeptEdit(QWidget* parent)
    : QDialog(parent),
      txtOldName(makeTextBox("txtOldName")),
      txtNewName(makeTextBox("txtNewName")),
      lblHint(new HintLabel("lblHint")) {
  BuildWindow();
  connect(txtNewName, &QLineEdit::textChanged, this, &frmDeptEdit::ShowHint);
}

void frmDeptEdit::BuildWindow() {
  setObjectName(QStringLiteral("frmDeptEdit"));
  setWindowTitle(QStringLiteral("修改部门名称"));
  makeReadOnly(*txtOldName);
  auto* btnOK = named("btnOK", new QPushButton(QStringLiteral("确认")));
  auto* btnCanCel = named("btnCanCel", new QPushButton(QStringLiteral("放弃")));
  btnOK->setDefault(true);
  connect(btnOK, &QPushButton::clicked, this, &frmDeptEdit::btnOK_Click);
  connect(btnCanCel, &QPushButton::clicked, this, &QDialog::hide);

  auto* form = new QFormLayout(this);
  form->addRow(makeLabel("Label1", QStringLiteral("原名称"), txtOldName), txtOldName);
  form->addRow(makeLabel("Label2", QStringLiteral("新名称"), txtNewName), txtNewName);
  form->addRow(nullptr, lblHint);
  form->addRow(makeButtonRow({btnOK, btnCanCel}));
  form->setSizeConstraint(QLayout::SetFixedSize);
  txtNewName->setFocus();
}

void frmDeptEdit::Form_Load() {
  m_Dept.setID(DeptNumber(DeptID));
  txtOldName->setText(m_Dept.DNAME());
  const QString& reason = m_Dept.lastFailure();
  if (m_Dept.DNAME().isEmpty()) {
    m_loadFailure = QStringLiteral("未能读到部门[%1]的名称：").arg(DeptID) +
                    (reason.isEmpty() ? QStringLiteral("数据库中没有这条记录") : reason);
  }
  ShowHint();
}

QString frmDeptEdit::NewName() const {
  return txtNewName->text().trimmed();
}

void frmDeptEdit::ShowHint() {
  const QString name = NewName();
  QString hint = quoteHint(QStringLiteral("部门名称"), name);
  if (hint.isEmpty()) hint = TakenHint(name);
  lblHint->showHint(hint.isEmpty() ? m_loadFailure : hint);
}

QString frmDeptEdit::TakenHint(const QString& name) {
  if (name.isEmpty() || !m_looksUpNames) return {};
  clsDept bearer;
  bearer.setDNAME(name);
  m_looksUpNames = bearer.lastFailure().isEmpty();
  if (bearer.ID() < 1 || bearer.ID() == m_Dept.ID()) return {};
  return QStringLiteral("部门[%1]已使用这个名称，确认后本部门的名称不会改变。").arg(bearer.ID());
}

bool frmDeptEdit::ValidateInput() const {
  if (NewName().isEmpty()) {
    warn(QStringLiteral("请输入新的部门名称！"));
    return false;
  }
  if (NewName() == txtOldName->text().trimmed()) {
    warn(QStringLiteral("新的部门名称不能与原名称相同！"));
    return false;
  }
  return true;
}

void frmDeptEdit::SaveName() {
  m_Dept.setDNAME(NewName());
  Result = m_Dept.UpdateToDb();
  if (Result) return;
  m_lastFailure =
      m_Dept.lastFailure().isEmpty() ? QStringLiteral("数据库中没有这条记录") : m_Dept.lastFailure();
  dialogs::MsgBox(QStringLiteral("更新失败！"), dialogs::Exclamation, QStringLiteral("错误"));
}

void frmDeptEdit::btnOK_Click() {
  if (ValidateInput()) SaveName();
  hide();
}
