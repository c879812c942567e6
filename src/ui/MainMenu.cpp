#include "ui/MainMenu.h"

#include <algorithm>
#include <array>

#include <QHash>
#include <QMenu>
#include <QMenuBar>

#include "ui/DeptDialogs.h"
#include "ui/ExportMenu.h"
#include "ui/HelpMenu.h"
#include "ui/ImportMenu.h"
#include "ui/ToolsMenu.h"
#include "ui/cards/CardMenu.h"
#include "ui/frmMain.h"

namespace {

using L1 = QLatin1String;

constexpr QStringView separatorCaption = u"-";

/// The handler that calls a method of the window.
template <void (frmMain::*Method)()>
void method(frmMain& window) {
  (window.*Method)();
}

constexpr std::array tree = {
    MenuEntry{L1(), L1("mnuSys"), u"系统(&S)"},
    MenuEntry{L1("mnuSys"), L1("mnuCardInfoSet"), u"签到卡信息设置(&C)", mnuCardInfoSet_Click},
    MenuEntry{L1("mnuSys"), L1("mnuSplit1_1"), separatorCaption},
    MenuEntry{L1("mnuSys"), L1("mnuExit"), u"退出(&X)", method<&frmMain::mnuExit_Click>},

    MenuEntry{L1(), L1("menDeptMange"), u"部门(&D)"},
    MenuEntry{L1("menDeptMange"), L1("mnuDeptDsp"), u"显示列表(&D)", method<&frmMain::mnuDeptDsp_Click>},
    MenuEntry{L1("menDeptMange"), L1("mnuSplit2"), separatorCaption},
    MenuEntry{L1("menDeptMange"), L1("mnuDeptAppend"), u"追加(&A)", mnuDeptAppend_Click},
    MenuEntry{L1("menDeptMange"), L1("mnuDeptRemove"), u"删除(&R)", method<&frmMain::RemoveSelectedDepts>},
    MenuEntry{L1("menDeptMange"), L1("mnuDeptEdit"), u"修改(&E)", mnuDeptEdit_Click},
    MenuEntry{L1("menDeptMange"), L1("mnuSplit3"), separatorCaption},
    MenuEntry{L1("menDeptMange"), L1("mnuDeptExport"), u"导出(&O)", mnuDeptExport_Click},

    MenuEntry{L1(), L1("Opt"), u"员工(&E)"},
    MenuEntry{L1("Opt"), L1("mnuEmpDsp"), u"显示列表(&D)", method<&frmMain::mnuEmpDsp_Click>},
    MenuEntry{L1("Opt"), L1("mnuSplit1"), separatorCaption},
    MenuEntry{L1("Opt"), L1("mnuEmpImport"), u"导入初始信息(&I)", mnuEmpImport_Click},
    MenuEntry{L1("Opt"), L1("mnuEmpRemove"), u"删除(&R)", method<&frmMain::RemoveSelectedEmps>},
    MenuEntry{L1("Opt"), L1("mnuSplit4"), separatorCaption},
    MenuEntry{L1("Opt"), L1("mnuEmpExport"), u"导出(&O)", mnuEmpExport_Click},
    MenuEntry{L1("Opt"), L1("mnuEmpPrint"), u"打印签到卡(&P)", method<&frmMain::mnuEmpPrint_Click>},

    MenuEntry{L1(), L1("mnuAttendance"), u"考勤(&K)"},
    MenuEntry{L1("mnuAttendance"), L1("mnuMonthReport"), u"月考勤报表(&M)...",
              method<&frmMain::mnuMonthReport_Click>},

    MenuEntry{L1(), L1("mnuTools"), u"工具(&T)"},
    MenuEntry{L1("mnuTools"), L1("mnuRosterImport"), u"批量导入(&B)...", mnuRosterImport_Click},
    MenuEntry{L1("mnuTools"), L1("mnuCardSheet"), u"拼版打印(&G)...", mnuCardSheet_Click},

    MenuEntry{L1(), L1("mnuHelp"), u"帮助(&H)"},
    MenuEntry{L1("mnuHelp"), L1("mnuHelpFile"), u"帮助文件(&F)", mnuHelpFile_Click},
    MenuEntry{L1("mnuHelp"), L1("mnuVistHomePage"), u"访问官方网站(&V)", mnuVistHomePage_Click},
    MenuEntry{L1("mnuHelp"), L1("mnuAbout"), u"关于(&A)", mnuAbout_Click},

    MenuEntry{L1(), popMenuName, u"弹出菜单"},
    MenuEntry{popMenuName, L1("mnuPop_Append"), u"添加(&A)", method<&frmMain::mnuPop_Append_Click>},
    MenuEntry{popMenuName, L1("mnuPop_Remove"), u"删除(&R)", method<&frmMain::mnuPop_Remove_Click>},
    MenuEntry{popMenuName, L1("mnuPop_Edit"), u"修改(&E)", method<&frmMain::mnuPop_Edit_Click>},
    MenuEntry{popMenuName, L1("mnuSplit5"), separatorCaption},
    MenuEntry{popMenuName, L1("mnuPop_Export"), u"导出(&O)", method<&frmMain::mnuPop_Export_Click>},
};

}  // namespace

std::span<const MenuEntry> mainMenuTree() {
  return tree;
}

const MenuEntry& menuEntry(QLatin1String name) {
  return *std::find_if(tree.begin(), tree.end(),
                       [name](const MenuEntry& entry) { return entry.name == name; });
}

void buildMainMenu(QMainWindow& window, const std::function<void(const MenuEntry&)>& choose) {
  QHash<QLatin1String, QMenu*> menus;
  for (const MenuEntry& entry : tree) {
    if (entry.parent.isEmpty()) {
      QMenu* menu = window.menuBar()->addMenu(entry.caption.toString());
      menu->setObjectName(entry.name);
      menu->menuAction()->setVisible(entry.name != popMenuName);
      menus.insert(entry.name, menu);
      continue;
    }
    QMenu* menu = menus.value(entry.parent);
    QAction* action =
        entry.caption == separatorCaption ? menu->addSeparator() : menu->addAction(entry.caption.toString());
    action->setObjectName(entry.name);
    QObject::connect(action, &QAction::triggered, &window, [choose, action, &entry](bool checked) {
      // What is checked is for the handler to say, not for the click.
      action->setChecked(!checked);
      choose(entry);
    });
  }
}
