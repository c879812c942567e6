#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "MainWindowTest.h"
#include "exchange/RosterCsv.h"
#include "support/Files.h"
#include "ui/frmRosterImport.h"

namespace {

/// The dialog over a roster in which the employee A001 and the new B1 are right, and B2 has no picture.
class RosterImportDialog : public MainWindow {
 protected:
  RosterImportDialog() {
    EXPECT_TRUE(QDir(user.path()).mkdir(QStringLiteral("照片")));
    for (const char* name : {"A001.jpg", "B1.jpg"}) {
      support::writeFile(folder + u'/' + QLatin1String(name), support::TestHome::tinyJpeg());
    }
    support::writeFile(file, QStringLiteral("编号,姓名,部门,录入日期\nA001,张三,财务部,2026-9-1\n"
                                            "B1,李四,新部门,2026-9-1\nB2,王五,财务部,2026-9-1\n")
                                 .toUtf8());
  }

  template <typename Control>
  static Control& child(const QDialog& dialog, const char* name) {
    return *dialog.findChild<Control*>(QLatin1String(name));
  }
  static void click(const QDialog& dialog, const char* button) {
    child<QAbstractButton>(dialog, button).click();
  }
  static bool isEnabled(const QDialog& dialog, const char* name) {
    return child<QWidget>(dialog, name).isEnabled();
  }
  static QString summary(const QDialog& dialog) { return child<QLabel>(dialog, "lblSummary").text(); }
  /// The last column, top row first.
  static QStringList outcomes(const QDialog& dialog) {
    const QAbstractItemModel& rows = *child<QTreeView>(dialog, "lsvLines").model();
    QStringList texts;
    for (int row = 0; row < rows.rowCount(); ++row) {
      texts.append(rows.index(row, rows.columnCount() - 1).data().toString());
    }
    return texts;
  }

  /// Chooses the file and the folder, which checks them.
  void chooseSources(const QDialog& dialog) {
    boxes.expectFile({file});
    click(dialog, "btnFile");
    boxes.expectFolder(folder);
    click(dialog, "btnFolder");
  }
  [[nodiscard]] QString employees() const {
    return home.single(QStringLiteral("SELECT COUNT(*) FROM Employee"));
  }

  QTemporaryDir user;
  const QString file = user.filePath(QStringLiteral("名单.csv"));
  const QString folder = user.filePath(QStringLiteral("照片"));
  const QString missing = QStringLiteral("错误：没有照片 B2.jpg（或 .jpeg、.png）");
};

}  // namespace

TEST_F(RosterImportDialog, ShowsTheCheckedLinesAndFollowsTheOptions) {
  const frmRosterImport dialog;
  EXPECT_FALSE(isEnabled(dialog, "btnRecheck"));
  chooseSources(dialog);
  EXPECT_EQ(outcomes(dialog), QStringList({QStringLiteral("更新（原姓名“员工A001”）"),
                                           QStringLiteral("错误：没有部门“新部门”"), missing}));
  EXPECT_FALSE(isEnabled(dialog, "btnImport"));
  click(dialog, "chkCreateDepts");
  EXPECT_EQ(outcomes(dialog)[1], QStringLiteral("新增（新建部门“新部门”）"));
  EXPECT_EQ(summary(dialog), QStringLiteral("共 3 行：新增 1 名，更新 1 名，新建部门 1 个，有错 1 行"));
  EXPECT_FALSE(isEnabled(dialog, "btnImport"));
  click(dialog, "chkSkipBad");
  EXPECT_TRUE(isEnabled(dialog, "btnImport"));
  click(dialog, "chkOnlyBad");
  EXPECT_EQ(outcomes(dialog), QStringList(missing));
}

TEST_F(RosterImportDialog, StaysOpenForTheLinesThatWereLeftOut) {
  frmRosterImport dialog;
  dialog.show();
  chooseSources(dialog);
  click(dialog, "chkCreateDepts");
  click(dialog, "chkSkipBad");
  boxes.expectMessage(QStringLiteral("已导入 2 名员工：新增 1 名，更新 1 名，新建部门 1 个，跳过 1 行"));
  click(dialog, "btnImport");
  EXPECT_EQ(boxes.messages()[0].style, dialogs::Information);
  EXPECT_TRUE(dialog.Result);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(outcomes(dialog), QStringList({QStringLiteral("更新"), QStringLiteral("更新"), missing}));

  // The picture comes in later.
  support::writeFile(folder + QStringLiteral("/B2.jpg"), support::TestHome::tinyJpeg());
  click(dialog, "btnRecheck");
  boxes.expectMessage(QStringLiteral("已导入 3 名员工"));
  click(dialog, "btnImport");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(employees(), QStringLiteral("7"));
  EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(), 3);
}

TEST_F(RosterImportDialog, EscapeEndsTheWorkAndNotTheDialog) {
  frmRosterImport dialog;
  dialog.show();
  QTimer::singleShot(0, &dialog, [&dialog] {
    EXPECT_FALSE(isEnabled(dialog, "btnClose"));
    EXPECT_FALSE(isEnabled(dialog, "btnFile"));
    dialog.reject();
  });
  chooseSources(dialog);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(outcomes(dialog).isEmpty());
  EXPECT_EQ(summary(dialog), QStringLiteral("已取消，没有写入任何内容"));

  click(dialog, "chkSkipBad");
  click(dialog, "btnRecheck");
  QTimer::singleShot(0, &dialog, [&dialog] { click(dialog, "btnCancel"); });
  click(dialog, "btnImport");
  EXPECT_FALSE(dialog.Result);
  EXPECT_EQ(home.single(QStringLiteral("SELECT ENAME FROM Employee WHERE ENUMBER = 'A001'")),
            QStringLiteral("员工A001"));
  EXPECT_TRUE(isEnabled(dialog, "btnClose"));
  click(dialog, "btnClose");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(RosterImportDialog, ErrorsAreToldAndLeaveNothingToImport) {
  const frmRosterImport dialog;
  chooseSources(dialog);
  click(dialog, "chkSkipBad");
  support::writeFile(file, "no roster");
  boxes.expectMessage(QStringLiteral("缺少“编号”列"));
  click(dialog, "btnRecheck");
  EXPECT_EQ(boxes.messages()[0].style, dialogs::Exclamation);
  EXPECT_FALSE(isEnabled(dialog, "btnImport"));
  EXPECT_TRUE(outcomes(dialog).isEmpty());
}

TEST_F(RosterImportDialog, TheTemplateReplacesOnlyCsvFiles) {
  const frmRosterImport dialog;
  boxes.expectFile({home.databaseFile()});
  boxes.expectMessage(QStringLiteral("必须以“.csv”结尾"));
  click(dialog, "btnTemplate");
  boxes.expectFile({file});
  boxes.expectMessage(QStringLiteral("已保存空白名单"));
  click(dialog, "btnTemplate");
  EXPECT_EQ(support::contentOf(file), rosterTemplate());
  EXPECT_EQ(employees(), QStringLiteral("5"));
}

TEST_F(RosterImportDialog, OpensFromTheMenuAndRefreshesTheList) {
  window.Form_Load();
  QTimer::singleShot(0, [this] {
    auto* dialog = qobject_cast<frmRosterImport*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    chooseSources(*dialog);
    click(*dialog, "chkSkipBad");
    boxes.expectMessage(QStringLiteral("已导入 1 名员工"));
    click(*dialog, "btnImport");
    dialog->reject();
  });
  choose("mnuRosterImport");
  EXPECT_EQ(column(1)[0], QStringLiteral("张三"));
}
