#pragma once

#include <functional>
#include <memory>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>

#include "exchange/RosterImport.h"
#include "ui/RosterModel.h"

class CancelProgress;

/// Imports a roster: asks for the CSV file and the folder of pictures, shows the checked lines with what is
/// wrong, and writes them. Checking and writing can be cancelled; a cancelled import has written nothing.
class frmRosterImport : public QDialog {
  Q_OBJECT

 public:
  explicit frmRosterImport(QWidget* parent = nullptr);

  /// Whether employees were imported.
  bool Result = false;

  void btnFile_Click();
  void btnFolder_Click();
  void btnTemplate_Click();
  void btnImport_Click();
  void btnCancel_Click();
  /// Reads the file and the pictures again; does nothing before both are chosen.
  void Check();

  /// While there is work under way it ends the work and not the dialog.
  void reject() override;

 private:
  void BuildWindow();
  void Connect();
  [[nodiscard]] QLayout* BuildSources();
  [[nodiscard]] QLayout* BuildOptions();
  [[nodiscard]] QLayout* BuildProgress();
  [[nodiscard]] QLayout* BuildButtons();
  void BuildList();

  [[nodiscard]] RosterOptions Options() const;
  /// Judges the lines anew after an option was changed.
  void Judge();
  void ShowLines();
  void UpdateButtons();
  /// Runs `work` with the progress bar, and nothing usable but cancelling; tells of the error that ends it.
  void Work(const QString& what, const std::function<void()>& work);

  std::unique_ptr<RosterCheck> m_check;
  /// Of the work under way; otherwise null.
  CancelProgress* m_progress = nullptr;

  QLineEdit* txtFile;
  QLineEdit* txtFolder;
  QPushButton* btnFile;
  QPushButton* btnFolder;
  QCheckBox* chkCreateDepts;
  QCheckBox* chkSkipBad;
  QCheckBox* chkOnlyBad;
  QTreeView* lsvLines;
  QLabel* lblSummary;
  QProgressBar* pbProgress;
  QPushButton* btnCancel;
  QPushButton* btnTemplate;
  QPushButton* btnRecheck;
  QPushButton* btnImport;
  QPushButton* btnClose;
  RosterModel m_rows;
};
