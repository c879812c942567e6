#pragma once

#include <QDialog>
#include <QLineEdit>

#include "records/clsDept.h"
#include "ui/HintLabel.h"

/// Asks for the new name of a department and stores it. Whatever comes of 确认, the dialog then hides; the
/// user opens it again to retry.
class frmDeptEdit : public QDialog {
  Q_OBJECT

 public:
  explicit frmDeptEdit(QWidget* parent = nullptr);

  /// Decimal number of the department to rename; set before Form_Load.
  QString DeptID;
  /// The new name was stored.
  bool Result = false;

  /// Loads the department. Throws runtime::RuntimeError when DeptID is no number of a department.
  void Form_Load();
  void btnOK_Click();

  /// Why the new name could not be stored; empty when nothing failed.
  [[nodiscard]] const QString& LastFailure() const { return m_lastFailure; }

 private:
  void BuildWindow();
  [[nodiscard]] QString NewName() const;
  [[nodiscard]] bool ValidateInput() const;
  void SaveName();
  void ShowHint();
  /// The hint that another department bears `name`, empty when none does.
  [[nodiscard]] QString TakenHint(const QString& name);

  clsDept m_Dept;
  QLineEdit* txtOldName;
  QLineEdit* txtNewName;
  HintLabel* lblHint;
  /// What went wrong while loading.
  QString m_loadFailure;
  QString m_lastFailure;
  /// Off after a look-up failed: a database that waits before it fails would halt every keystroke.
  bool m_looksUpNames = true;
};
