#include "ui/frmDeptAppend.h"

#include <QFormLayout>

#include "dialogs/Dialogs.h"
#include "records/clsDept.h"
#include "ui/Controls.h"

frmDeptAppend::frmDeptAppend(QWidget* parent)
    : QDialog(parent), txtDeptName(makeTextBox("txtDeptName")), lblHint(new HintLabel("lblHint")) {
  BuildWindow();
  connect(txtDeptName, &QLineEdit::textChanged, this, &frmDeptAppend::ShowHint);
}

void frmDeptAppend::BuildWindow() {
  setObjectName(QStringLiteral("frmDeptAppend"));
  setWindowTitle(QStringLiteral("增加新部门"));
  auto* btnOK = named("btnOK", new QPushButton(QStringLiteral("确认")));
  auto* btnCancel = named("btnCancel", new QPushButton(QStringLiteral("放弃")));
  btnOK->setDefault(true);
  connect(btnOK, &QPushButton::clicked, this, &frmDeptAppend::btnOK_Click);
  connect(btnCancel, &QPushButton::clicked, this, &QDialog::hide);

  auto* form = new QFormLayout(this);
  form->addRow(makeLabel("Label1", QStringLiteral("新增部门名称"), txtDeptName), txtDeptName);
  form->addRow(nullptr, lblHint);
  form->addRow(makeButtonRow({btnOK, btnCancel}));
  form->setSizeConstraint(QLayout::SetFixedSize);
  txtDeptName->setFocus();
}

QString frmDeptAppend::NewName() const {
  return txtDeptName->text().trimmed();
}

void frmDeptAppend::ShowHint() {
  lblHint->showHint(quoteHint(QStringLiteral("部门名称"), NewName()));
}

void frmDeptAppend::Refuse(const QString& text, const QString& title) {
  dialogs::MsgBox(text, dialogs::Exclamation, title);
  askAgain(*txtDeptName);
}

void frmDeptAppend::btnOK_Click() {
  if (NewName().isEmpty()) {
    Refuse(QStringLiteral("请输入部门名称！"), QStringLiteral("警告"));
  } else {
    Append();
  }
}

void frmDeptAppend::Append() {
  clsDept dept;
  dept.setDNAME(NewName());
  if (dept.ID() >= 1) {
    Refuse(QStringLiteral("部门名称已经存在，请重新输入！"), QStringLiteral("警告"));
    return;
  }
  Result = dept.AppendToDb();
  m_lastFailure = dept.lastFailure();
  if (Result) {
    hide();
    return;
  }
  // The message does not tell why, and hides nothing of the window.
  if (lblHint->text().isEmpty()) lblHint->showHint(m_lastFailure);
  Refuse(QStringLiteral("追加部门失败！"), QStringLiteral("错误"));
}
