#pragma once

#include <functional>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include "attendance/MonthData.h"
#include "foundation/clsSchoolArea.h"

/// Asks for a month and shows its report or exports it as a workbook. Opens on the month that is most likely
/// wanted today. The unit's name is stored when it was changed, at each run and when the dialog closes.
class frmMonthReport : public QDialog {
  Q_OBJECT

 public:
  explicit frmMonthReport(QWidget* parent = nullptr);

  void btnPreview_Click();
  void btnExport_Click();

  void done(int result) override;

 private:
  void BuildWindow();
  [[nodiscard]] QLayout* BuildFields();
  [[nodiscard]] QLayout* BuildButtons();
  [[nodiscard]] AttendanceMonth Month() const;
  [[nodiscard]] QString Unit() const;
  void ShowMonth();
  void StoreUnit();
  /// Runs `work`, and tells of the error that ends it.
  void Try(const std::function<void()>& work) const;
  void Export(const QString& path);
  /// The month that is chosen now. Shows what could not be listed. Throws runtime::RuntimeError.
  [[nodiscard]] MonthData Load();

  clsSchoolArea m_area;
  QSpinBox* txtYear;
  QComboBox* cbMonth;
  QLineEdit* txtSchoolName;
  QLabel* lblNobodys;
};
