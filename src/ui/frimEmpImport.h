#pragma once

#include <cstdint>
#include <optional>

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStringList>

#include "records/EmployeeFile.h"
#include "records/clsDept.h"
#include "records/clsEmployee.h"
#include "ui/HintLabel.h"

/// Shows files of one employee each, one after the other; the user checks what they hold, gives the employee
/// a number, and saves or passes on. The photo is copied to a temporary file in the program directory; an
/// attempt to save uses that file up, so each file can be saved only once.
class frimEmpImport : public QDialog {
  Q_OBJECT

 public:
  explicit frimEmpImport(QWidget* parent = nullptr);
  ~frimEmpImport() override;

  /// The full paths of the files to show, at least one; set before Form_Load.
  void SetFileList(const QStringList& list);
  /// Shows the first file.
  void Form_Load();
  void btnSave_Click();
  void btnNext_Click();

  void done(int result) override;

 private:
  enum SaveResult : int { Saved = 1, NotSaved = 0, Refused = -1 };

  void BuildWindow();
  [[nodiscard]] QGridLayout* BuildFields();
  [[nodiscard]] QWidget* BuildFrame();
  [[nodiscard]] QLayout* BuildProgress();
  void Connect();

  void InitProgress();
  void FillDeptList();
  /// What came of loading the next file, 2 when there is none.
  [[nodiscard]] int ShowNext();
  void ShowProgress();
  void UpdateNextButton();
  /// Gives an EmployeeFile::LoadResult, Failed also for a photo that is none. The controls keep what they
  /// showed before when the file holds no value for them.
  [[nodiscard]] int LoadEmpFile(const QString& path);
  void ShowValues(const EmployeeFile& file);
  void ShowPhoto();
  void SelectDept(std::int16_t id);
  /// The department with the name in the box; number 0 when there is none.
  [[nodiscard]] clsDept SelectedDept() const;
  [[nodiscard]] std::int16_t GetSelectedDeptID() const;
  [[nodiscard]] bool CheckInput();
  [[nodiscard]] bool CheckNumber();
  /// The date that was typed; nothing, after a message, when it is none.
  [[nodiscard]] std::optional<QDateTime> EnterDate();
  [[nodiscard]] int SaveEmployee();
  [[nodiscard]] bool Store(clsEmployee& employee);
  /// Deletes the temporary photo.
  void RemovePhoto() const;

  /// Tells why the input is refused and goes back to the field.
  void Refuse(const QString& text, QWidget* field) const;
  void NoteLoading(const QString& path, int result);
  void NoteDept(const QString& note);
  void ShowDeptHint();
  void ShowNumberHint();

  QStringList FileList;
  int FileCount = 0;
  /// How many files were shown.
  int CurIndex = 0;
  QString TempImgPath;
  /// Why the last file could not be read or the employee could not be saved.
  QString m_failure;
  /// What there is to say about a department that needs no other hint.
  QString m_deptNote;
  /// Off after a look-up failed: a database that waits before it fails would halt every keystroke.
  bool m_looksUp = true;

  QLineEdit* txtFile;
  QLineEdit* txtName;
  QComboBox* cbDept;
  HintLabel* lblDeptHint;
  QLineEdit* txtInputDate;
  QLineEdit* txtEmpNum;
  HintLabel* lblNumberHint;
  QLabel* imgHeader;
  HintLabel* lblFileNote;
  HintLabel* lblReason;
  QProgressBar* pbWorking;
  QLabel* lblProcess;
  QPushButton* btnSave;
  QPushButton* btnNext;
};
