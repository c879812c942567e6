#pragma once

#include <memory>

#include <QMainWindow>

#include "foundation/MainForm.h"
#include "records/clsDept.h"
#include "records/clsEmployeeSet.h"
#include "ui/MainMenu.h"
#include "ui/MainStatus.h"
#include "ui/RecordList.h"
#include "ui/cards/CardPrinting.h"

/// The main window: the list of departments or of employees, and the menus from which all else is opened.
///
/// What a menu entry chosen by the user does runs inside one guard: an error that its handler lets out is
/// shown once in a critical box, and the program goes on. The handlers themselves let errors out.
class frmMain : public QMainWindow, public MainForm {
  Q_OBJECT

 public:
  frmMain();

  /// Shows the window; the list is filled as soon as the window has been painted.
  void Show() override;

  /// 1 for the employee list, 2 for the department list, 0 for neither, as the check marks say.
  [[nodiscard]] int GetListMode() const;
  /// The selected employees that can be printed, from the bottom row to the top one.
  [[nodiscard]] std::shared_ptr<clsEmployeeSet> GetSelectedEmployees();

  void Form_Load();
  void Form_Resize();
  void lsvData_MouseUp(Qt::MouseButton button, const QPoint& globalPosition);

  /// The list of records that is shown, for handlers that work on its selection.
  [[nodiscard]] RecordList& List() { return *lsvData; }
  [[nodiscard]] MainStatus& Status() { return m_status; }
  [[nodiscard]] CardPrinting& Cards() { return m_cards; }
  /// Says in the status bar how many cards are printed, and which of the selected employees are skipped.
  void NotePrinting(int cards);
  /// Reads the departments again; the check marks of the menus stay as they are.
  void ShowDeptList();

  void RemoveSelectedDepts();
  void RemoveSelectedEmps();
  void mnuExit_Click();
  void mnuDeptDsp_Click();
  void mnuEmpDsp_Click();
  void mnuEmpPrint_Click();
  void mnuMonthReport_Click();
  void mnuPop_Append_Click();
  void mnuPop_Remove_Click();
  void mnuPop_Edit_Click();
  void mnuPop_Export_Click();

 signals:
  /// The first list is on screen, or could not be read and the user has been told.
  void Loaded();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildWindow();
  /// The guard around a handler.
  void Run(MenuEntry::Handler handler);
  void Report(const QString& failure);
  /// What the entry of the list's mode does; nothing when no list is shown.
  void Perform(QLatin1String forEmployees, QLatin1String forDepartments);
  [[nodiscard]] QAction& Menu(QLatin1String name) const;

  void UpdateMenuState();
  void UpdateCounts();
  void EnableDeptMenus(bool enabled);
  void EnableEmpMenus(bool enabled);
  void CheckList(QLatin1String shown, QLatin1String other);
  void ClearList();
  void ShowDeptColumns();
  void ShowEmpColumns();
  void AddDeptItem(const clsDept& dept);
  void AddEmpItem(const clsEmployee& employee);
  void ShowEmpList();

  // Before the widgets: making them already sends this window events that ask for these.
  /// A handler is at work: no other may start before it ends.
  bool m_running = false;
  /// Records are being read while the window repaints: it must not close now.
  bool m_loading = false;
  bool m_loadAfterPaint = false;

  RecordList* lsvData;
  MainStatus m_status;
  CardPrinting m_cards;
};
