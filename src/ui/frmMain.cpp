#include "ui/frmMain.h"

#include <array>
#include <utility>

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QStatusBar>

#include "dialogs/Dialogs.h"
#include "graphics/ApplicationIcon.h"
#include "graphics/Twips.h"
#include "records/clsDeptSet.h"
#include "runtime/RuntimeError.h"
#include "ui/ItemKey.h"
#include "ui/LoadProgress.h"
#include "ui/ProgramTitle.h"
#include "ui/RecordRemoval.h"
#include "ui/months/frmMonthReport.h"

namespace {

using L1 = QLatin1String;

constexpr int employeeMode = 1;
constexpr int departmentMode = 2;

// Twips.
constexpr QSize designedArea(9960, 6600);
constexpr double gapBesideList = 10;

constexpr std::array deptColumns = {ListColumn{u"部门号", 800}, ListColumn{u"部门名称", 2000}};
constexpr std::array empColumns = {ListColumn{u"员工号", 800}, ListColumn{u"姓名", 1000},
                                   ListColumn{u"所属部门", 2000}, ListColumn{u"签到条码", 2000}};

constexpr std::array deptMenus = {L1("mnuDeptAppend"), L1("mnuDeptRemove"), L1("mnuDeptEdit"),
                                  L1("mnuDeptExport")};
constexpr std::array empMenus = {L1("mnuEmpImport"), L1("mnuEmpExport"), L1("mnuEmpPrint"),
                                 L1("mnuEmpRemove"), L1("mnuCardSheet")};

/// The list's length in a window whose inner length is `pixels`: the designed gap less, unchanged in a window
/// that is no longer than the gap.
int listLength(int pixels, int before, double dotsPerInch) {
  const double inner = graphics::pixelsToTwips(pixels, dotsPerInch);
  return inner > gapBesideList ? graphics::twipsToPixels(inner - gapBesideList, dotsPerInch) : before;
}

}  // namespace

frmMain::frmMain() : lsvData(new RecordList), m_status(*statusBar()), m_cards(*lsvData) {
  BuildWindow();
  connect(lsvData, &RecordList::mouseUp, this, &frmMain::lsvData_MouseUp);
  connect(lsvData, &RecordList::countsChanged, this, &frmMain::UpdateCounts);
}

void frmMain::BuildWindow() {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(programTitle);
  setWindowIcon(graphics::applicationIcon());
  buildMainMenu(*this, [this](const MenuEntry& entry) {
    if (entry.handler) Run(entry.handler);
  });
  Menu(L1("mnuDeptDsp")).setCheckable(true);
  Menu(L1("mnuEmpDsp")).setCheckable(true);

  auto* area = new QWidget;
  lsvData->setObjectName(QStringLiteral("lsvData"));
  lsvData->setParent(area);
  setCentralWidget(area);
  area->installEventFilter(this);
  resize(graphics::twipsToPixels(designedArea.width(), logicalDpiX()),
         graphics::twipsToPixels(designedArea.height(), logicalDpiY()) + menuBar()->sizeHint().height() +
             statusBar()->sizeHint().height());
}

void frmMain::Show() {
  m_loadAfterPaint = true;
  show();
}

bool frmMain::event(QEvent* event) {
  const bool handled = QMainWindow::event(event);
  if (m_loadAfterPaint && event->type() == QEvent::Paint) {
    m_loadAfterPaint = false;
    QMetaObject::invokeMethod(this, &frmMain::Form_Load, Qt::QueuedConnection);
  }
  return handled;
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
  if (watched == centralWidget() && event->type() == QEvent::Resize) Form_Resize();
  return QMainWindow::eventFilter(watched, event);
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (m_loading) {
    event->ignore();
  } else {
    QMainWindow::closeEvent(event);
  }
}

void frmMain::Run(MenuEntry::Handler handler) {
  if (m_running) return;
  const QScopedValueRollback running(m_running, true);
  m_status.note({});
  try {
    handler(*this);
  } catch (const runtime::RuntimeError& error) {
    Report(error.description());
  } catch (const std::exception& error) {
    Report(QString::fromUtf8(error.what()));
  }
}

void frmMain::Report(const QString& failure) {
  m_status.note(failure);
  dialogs::showUnhandled(failure);
}

QAction& frmMain::Menu(QLatin1String name) const {
  return *findChild<QAction*>(name);
}

int frmMain::GetListMode() const {
  if (Menu(L1("mnuEmpDsp")).isChecked()) return employeeMode;
  return Menu(L1("mnuDeptDsp")).isChecked() ? departmentMode : 0;
}

void frmMain::UpdateMenuState() {
  const int mode = GetListMode();
  if (mode == 0) return;
  EnableDeptMenus(mode == departmentMode);
  EnableEmpMenus(mode == employeeMode);
}

void frmMain::EnableDeptMenus(bool enabled) {
  for (const QLatin1String name : deptMenus) Menu(name).setEnabled(enabled);
}

void frmMain::EnableEmpMenus(bool enabled) {
  for (const QLatin1String name : empMenus) Menu(name).setEnabled(enabled);
}

void frmMain::UpdateCounts() {
  m_status.showCounts(GetListMode(), lsvData->rowCount(), lsvData->selectedCount());
}

void frmMain::ClearList() {
  lsvData->clearAll();
}

void frmMain::ShowDeptColumns() {
  ClearList();
  lsvData->setColumns(deptColumns);
}

void frmMain::ShowEmpColumns() {
  ClearList();
  lsvData->setColumns(empColumns);
}

void frmMain::AddDeptItem(const clsDept& dept) {
  const QString id = QString::number(dept.ID());
  lsvData->addRow(MakeItemKey(id), {id, dept.DNAME()});
}

void frmMain::AddEmpItem(const clsEmployee& employee) {
  const QString& number = employee.ENUMBER();
  lsvData->addRow(MakeItemKey(number), {number, employee.ENAME(), employee.DNAME(), employee.EBARCODE()});
}

void frmMain::ShowDeptList() {
  ShowDeptColumns();
  const clsDeptSet departments;
  for (const auto& dept : departments) AddDeptItem(*dept);
  const QString& failure = departments.firstFailure();
  if (!failure.isEmpty()) m_status.note(QStringLiteral("部门列表未能完整读取：") + failure);
  UpdateCounts();
}

void frmMain::ShowEmpList() {
  ShowEmpColumns();
  clsEmployeeSet employees;
  {
    const QScopedValueRollback loading(m_loading, true);
    const LoadProgress progress(*statusBar());
    employees.LoadSet();
  }
  for (const auto& employee : employees) AddEmpItem(*employee);
}

std::shared_ptr<clsEmployeeSet> frmMain::GetSelectedEmployees() {
  const QScopedValueRollback loading(m_loading, true);
  const LoadProgress progress(*statusBar());
  return m_cards.GetSelectedEmployees();
}

void frmMain::RemoveSelectedDepts() {
  RecordRemoval(*lsvData, m_status).RemoveSelectedDepts();
}

void frmMain::RemoveSelectedEmps() {
  RecordRemoval(*lsvData, m_status).RemoveSelectedEmps();
}

void frmMain::Form_Load() {
  Run(menuEntry(L1("mnuEmpDsp")).handler);
  emit Loaded();
}

void frmMain::Form_Resize() {
  const QSize inner = centralWidget()->size();
  lsvData->setGeometry(0, 0, listLength(inner.width(), lsvData->width(), logicalDpiX()),
                       listLength(inner.height(), lsvData->height(), logicalDpiY()));
}

void frmMain::lsvData_MouseUp(Qt::MouseButton button, const QPoint& globalPosition) {
  if (button == Qt::RightButton) findChild<QMenu*>(popMenuName)->popup(globalPosition);
}

void frmMain::mnuExit_Click() {
  close();
}

void frmMain::CheckList(QLatin1String shown, QLatin1String other) {
  Menu(shown).setChecked(true);
  Menu(other).setChecked(false);
}

void frmMain::mnuDeptDsp_Click() {
  CheckList(L1("mnuDeptDsp"), L1("mnuEmpDsp"));
  ShowDeptList();
  UpdateMenuState();
}

void frmMain::mnuEmpDsp_Click() {
  CheckList(L1("mnuEmpDsp"), L1("mnuDeptDsp"));
  // The menus follow the check marks also when the list cannot be read and stays empty.
  const auto update = qScopeGuard([this] {
    UpdateMenuState();
    UpdateCounts();
  });
  ShowEmpList();
}

void frmMain::mnuEmpPrint_Click() {
  auto employees = GetSelectedEmployees();
  NotePrinting(employees->Count());
  m_cards.show(std::move(employees));
}

void frmMain::NotePrinting(int cards) {
  const QStringList& skipped = m_cards.skipped();
  if (cards == 0 && skipped.isEmpty()) {
    m_status.note(QStringLiteral("没有选中员工，没有可打印的签到卡"));
    return;
  }
  QString note = QStringLiteral("打印 %1 张").arg(cards);
  if (!skipped.isEmpty()) {
    note += QStringLiteral("，跳过 %1 名：").arg(skipped.size()) + skipped.join(QStringLiteral("、"));
  }
  m_status.note(note);
}

void frmMain::mnuMonthReport_Click() {
  frmMonthReport(this).exec();
}

void frmMain::Perform(QLatin1String forEmployees, QLatin1String forDepartments) {
  const int mode = GetListMode();
  if (mode == 0) return;
  const MenuEntry::Handler handler = menuEntry(mode == employeeMode ? forEmployees : forDepartments).handler;
  if (handler) handler(*this);
}

void frmMain::mnuPop_Append_Click() {
  Perform(L1("mnuEmpImport"), L1("mnuDeptAppend"));
}

void frmMain::mnuPop_Remove_Click() {
  Perform(L1("mnuEmpRemove"), L1("mnuDeptRemove"));
}

void frmMain::mnuPop_Edit_Click() {
  if (GetListMode() == employeeMode) {
    dialogs::MsgBox(QStringLiteral("本功能将在后继版本中实现！"), dialogs::Information,
                    QStringLiteral("提醒"));
  } else {
    Perform(L1("mnuPop_Edit"), L1("mnuDeptEdit"));
  }
}

void frmMain::mnuPop_Export_Click() {
  Perform(L1("mnuEmpExport"), L1("mnuDeptExport"));
}
