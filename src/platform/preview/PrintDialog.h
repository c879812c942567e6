#pragma once

#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include "preview/PageChoice.h"
#include "preview/PrintJob.h"

namespace preview {

/// Asks for printer, paper, pages and copies. Opens on the default printer with the paper that the document
/// wants, and says what is wrong with a printer before anything is printed. Control names: `cmbPrinter`,
/// `lblState`, `cmbPaper`, `lblPaper`, `spnCopies`, `chkCollate`, `cmbSides`, `cmbColor`, `btnPrint`,
/// `btnCancel`, and those of PageChoice.
class PrintDialog : public QDialog {
  Q_OBJECT

 public:
  /// `queues` holds at least one.
  PrintDialog(const std::vector<spooler::Queue>& queues, const report::Document& document, int currentPage,
              QWidget* parent);

  /// What the accepted dialog chose.
  [[nodiscard]] PrintChoice choice() const;
  /// Whether the user was told that the printer stands still.
  [[nodiscard]] bool printerStopped() const { return m_details.stopped; }

  /// Stays open when the pages are not understood, or when the user takes back what has a catch.
  void accept() override;

 private:
  void makeControls(const std::vector<spooler::Queue>& queues);
  void arrange();
  /// Asks the printer what it can do.
  void showPrinter();
  void showAbilities();
  void showPaper();
  [[nodiscard]] const spooler::Paper* paper() const;
  [[nodiscard]] bool pageIsCut() const;
  /// What the user should know before printing; empty when there is nothing.
  [[nodiscard]] QString catches() const;

  QString m_title;
  QSize m_page;
  spooler::Details m_details;
  QComboBox* m_printer;
  QLabel* m_state;
  QComboBox* m_paper;
  QLabel* m_paperHint;
  PageChoice* m_pages;
  QSpinBox* m_copies;
  QCheckBox* m_collate;
  QComboBox* m_sides;
  QComboBox* m_color;
  QPushButton* m_print;
  QPushButton* m_cancel;
};

}  // namespace preview
