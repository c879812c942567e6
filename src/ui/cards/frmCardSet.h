#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "dialogs/Dialogs.h"
#include "printing/clsTextDspStyle.h"
#include "ui/cards/CardFace.h"

/// Lets the user design the card: unit line, memo and logo. Every choice is stored at once and shown on a
/// card as it will be printed; there is nothing to confirm or to take back.
class frmCardSet : public QDialog {
 public:
  explicit frmCardSet(QWidget* parent = nullptr);

  void btnUnitName_Click();
  void btnUnitFont_Click();
  void btnUnitColor_Click();
  void btnUnitLogo_Click();
  void btnMemoText_Click();
  void btnMemoFont_Click();
  void btnMemoColor_Click();

 private:
  /// One of the two lines, its question and its preview.
  struct Line {
    const card::Line& design;
    QString prompt;
    CardText& preview;
  };

  void Form_Load();
  void BuildWindow();
  [[nodiscard]] QPushButton* button(const char* name, const QString& caption, void (frmCardSet::*handler)());
  [[nodiscard]] QWidget* BuildUnit();
  [[nodiscard]] QWidget* BuildMemo();
  [[nodiscard]] QLayout* BuildBottom();
  [[nodiscard]] Line unitLine();
  [[nodiscard]] Line memoLine();

  void AskText(const Line& line);
  void AskFont(const Line& line);
  /// Stores name, size in points, bold and italic, a name and a size only when there are any; whether that
  /// was done.
  [[nodiscard]] bool StoreFont(const dialogs::FontBox& font, const QString& points);
  void AskColor(const Line& line);
  /// Shows what the settings hold, which is what the card prints.
  void ShowStored(const Line& line);
  void ShowLogo();
  void TakeLogo(const QString& path);
  /// Whether the settings now hold the path; they hold the former one when they cannot.
  [[nodiscard]] static bool StoreLogo(const QString& path);
  /// Says in the dialog whether a choice was stored.
  void Tell(bool stored, const QString& what);

  clsTextDspStyle m_style;
  CardFace* m_card;
  QLabel* lblLogoWarning;
  QLabel* lblFailure;
};
