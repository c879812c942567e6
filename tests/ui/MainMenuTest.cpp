#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "MainWindowTest.h"
#include "foundation/GlobalDefine.h"

namespace {

/// "name caption" of every entry, menus first, in the order in which the user meets them.
QStringList treeOf(const QMenuBar& bar) {
  QStringList lines;
  for (const QAction* top : bar.actions()) {
    lines.append(top->menu()->objectName() + u' ' + top->text());
    for (const QAction* entry : top->menu()->actions()) {
      const QString caption = entry->isSeparator() ? QStringLiteral("-") : entry->text();
      lines.append(QStringLiteral("  ") + entry->objectName() + u' ' + caption);
    }
  }
  return lines;
}

const QString expectedTree = QStringLiteral(R"(mnuSys 系统(&S)
  mnuCardInfoSet 签到卡信息设置(&C)
  mnuSplit1_1 -
  mnuExit 退出(&X)
menDeptMange 部门(&D)
  mnuDeptDsp 显示列表(&D)
  mnuSplit2 -
  mnuDeptAppend 追加(&A)
  mnuDeptRemove 删除(&R)
  mnuDeptEdit 修改(&E)
  mnuSplit3 -
  mnuDeptExport 导出(&O)
Opt 员工(&E)
  mnuEmpDsp 显示列表(&D)
  mnuSplit1 -
  mnuEmpImport 导入初始信息(&I)
  mnuEmpRemove 删除(&R)
  mnuSplit4 -
  mnuEmpExport 导出(&O)
  mnuEmpPrint 打印签到卡(&P)
mnuAttendance 考勤(&K)
  mnuMonthReport 月考勤报表(&M)...
mnuTools 工具(&T)
  mnuRosterImport 批量导入(&B)...
  mnuCardSheet 拼版打印(&G)...
mnuHelp 帮助(&H)
  mnuHelpFile 帮助文件(&F)
  mnuVistHomePage 访问官方网站(&V)
  mnuAbout 关于(&A)
mnuPopMenu 弹出菜单
  mnuPop_Append 添加(&A)
  mnuPop_Remove 删除(&R)
  mnuPop_Edit 修改(&E)
  mnuSplit5 -
  mnuPop_Export 导出(&O))");

constexpr std::array departmentEntries = {"mnuDeptAppend", "mnuDeptRemove", "mnuDeptEdit", "mnuDeptExport"};
constexpr std::array employeeEntries = {"mnuEmpImport", "mnuEmpExport", "mnuEmpPrint", "mnuEmpRemove",
                                        "mnuCardSheet"};
constexpr std::array alwaysEnabled = {"mnuCardInfoSet", "mnuExit",         "mnuDeptDsp",  "mnuEmpDsp",
                                      "mnuMonthReport", "mnuRosterImport", "mnuAbout",    "mnuPop_Append",
                                      "mnuPop_Edit",    "mnuPop_Remove",   "mnuHelpFile", "mnuPop_Export",
                                      "mnuVistHomePage"};

class MainMenu : public MainWindow {
 protected:
  void expectMenusOf(int mode) const {
    EXPECT_EQ(window.GetListMode(), mode);
    EXPECT_EQ(action("mnuEmpDsp").isChecked(), mode == 1);
    EXPECT_EQ(action("mnuDeptDsp").isChecked(), mode == 2);
    for (const char* name : departmentEntries) EXPECT_EQ(action(name).isEnabled(), mode != 1) << name;
    for (const char* name : employeeEntries) EXPECT_EQ(action(name).isEnabled(), mode != 2) << name;
    for (const char* name : alwaysEnabled) EXPECT_TRUE(action(name).isEnabled()) << name;
  }

  [[nodiscard]] QMenu& popMenu() const { return *window.findChild<QMenu*>(QStringLiteral("mnuPopMenu")); }
};

}  // namespace

TEST_F(MainMenu, HasItsTree) {
  EXPECT_EQ(treeOf(*window.menuBar()).join(u'\n'), expectedTree);
  EXPECT_FALSE(popMenu().menuAction()->isVisible());
}

TEST_F(MainMenu, FollowsTheListThatIsShown) {
  expectMenusOf(0);
  window.Form_Load();
  expectMenusOf(1);
  choose("mnuDeptDsp");
  expectMenusOf(2);
  choose("mnuDeptDsp");
  expectMenusOf(2);
  choose("mnuEmpDsp");
  expectMenusOf(1);
}

TEST_F(MainMenu, StaysConsistentWhenTheEmployeesCannotBeRead) {
  choose("mnuDeptDsp");
  execute(QStringLiteral("UPDATE Employee SET HEADIMG = NULL WHERE ENUMBER = 'A003'"));
  boxes.expectMessage(QStringLiteral("A003"));
  choose("mnuEmpDsp");
  expectMenusOf(1);
  EXPECT_TRUE(column(0).isEmpty());
  EXPECT_EQ(counts(), QStringLiteral("共 0 名员工，已选 0 名"));
  EXPECT_EQ(note(), boxes.messages()[0].text);
}

TEST_F(MainMenu, PopsUpWhereTheRightButtonWasReleased) {
  window.Form_Load();
  window.show();
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(20, 20));
  EXPECT_FALSE(popMenu().isVisible());
  QTest::mouseClick(list().viewport(), Qt::RightButton, {}, QPoint(20, 20));
  EXPECT_TRUE(popMenu().isVisible());
  EXPECT_EQ(popMenu().pos(), list().viewport()->mapToGlobal(QPoint(20, 20)));
  popMenu().hide();
}

TEST_F(MainMenu, PopUpEntriesActOnTheListThatIsShown) {
  choose("mnuPop_Edit");
  choose("mnuPop_Remove");
  window.Form_Load();
  boxes.expectMessage(QStringLiteral("本功能将在后继版本中实现！"));
  choose("mnuPop_Edit");
  EXPECT_EQ(boxes.messages()[0].style, 64);
  EXPECT_EQ(boxes.messages()[0].title, QStringLiteral("提醒"));
  select({0});
  boxes.expectMessage(QStringLiteral("删除编号为[A001]的员工？"), dialogs::Answer::No);
  choose("mnuPop_Remove");

  choose("mnuDeptDsp");
  choose("mnuPop_Edit");
  select({2});
  boxes.expectMessage(QStringLiteral("名称为[空部门]的部门？"), dialogs::Answer::No);
  choose("mnuPop_Remove");
}

TEST_F(MainMenu, OpensHelpAndWebSite) {
  gHomeAddress = QStringLiteral("site.example");
  choose("mnuHelpFile");
  choose("mnuVistHomePage");
  EXPECT_EQ(desktop.opened,
            QStringList({home.file(QStringLiteral("HELP.CHM")), QStringLiteral("http://site.example")}));
  EXPECT_EQ(note(), QString());
  desktop.succeeds = false;
  choose("mnuVistHomePage");
  EXPECT_EQ(note(), QStringLiteral("未能打开：http://site.example"));
}
