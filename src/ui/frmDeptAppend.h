#pragma once

#include <QDialog>
#include <QLineEdit>

#include "ui/HintLabel.h"

/// Asks for the name of a new department and inserts it. The dialog stays open until that succeeded or the
/// user gives up; closing it only hides it.
class frmDeptAppend : public QDialog {
  Q_OBJECT

 public:
  explicit frmDeptAppend(QWidget* parent = nullptr);

  /// A department was inserted.
  bool Result = false;

  void btnOK_Click();

  /// Why the last insertion failed; empty when none did.
  [[nodiscard]] const QString& LastFailure() const { return m_lastFailure; }

 private:
  void BuildWindow();
  [[nodiscard]] QString NewName() const;
  void Refuse(const QString& text, const QString& title);
  void Append();
  void ShowHint();

  QLineEdit* txtDeptName;
  HintLabel* lblHint;
  QString m_lastFailure;
};
