#pragma once

#include <QDialog>
#include <QLabel>

/// Title and version of the program, the way to the maker's web site and to the machine's system information.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget* parent = nullptr);

  void Form_MouseMove();
  void lblHomepage_MouseMove();
  void lblHomepage_Click();
  void cmdSysInfo_Click();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void Form_Load();
  void BuildWindow();
  [[nodiscard]] QLayout* BuildHead();
  [[nodiscard]] QLayout* BuildButtons();
  void ColorHomepage(int storedColor);

  QLabel* lblTitle;
  QLabel* lblVersion;
  QLabel* lblHomepage;
  QLabel* lblDescription;
  QLabel* lblDisclaimer;
};
