#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>

#include "printing/CardSheet.h"
#include "ui/cards/SheetPicture.h"

/// Asks how sign-in cards are laid on sheets of A4, and shows what that gives.
class frmCardSheet : public QDialog {
  Q_OBJECT

 public:
  /// Opens on `sheet`, for that many cards.
  frmCardSheet(const CardSheet& sheet, int cards, QWidget* parent = nullptr);

  /// What is chosen now.
  [[nodiscard]] CardSheet Sheet() const;

 private:
  void BuildWindow();
  [[nodiscard]] QLayout* BuildChoices();
  [[nodiscard]] QLayout* BuildOffset();
  [[nodiscard]] QLayout* BuildButtons();
  void Connect();
  void Fill(const CardSheet& sheet);
  /// Shows the sheet that is chosen now.
  void ShowSheet();

  int m_cards;
  SheetPicture* picSheet;
  QSpinBox* txtStart;
  QCheckBox* chkCutMarks;
  QDoubleSpinBox* txtRight;
  QDoubleSpinBox* txtDown;
  QRadioButton* optListed;
  QRadioButton* optByNumber;
  QLabel* lblSheets;
  QLabel* lblMargins;
};
