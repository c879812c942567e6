#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "MainWindowTest.h"
#include "ui/frmDeptAppend.h"
#include "ui/frmDeptEdit.h"

namespace {

class DeptDialogs : public MainWindow {
 protected:
  template <typename Control>
  static Control& child(const QWidget& dialog, const char* name) {
    return *dialog.findChild<Control*>(QLatin1String(name));
  }
  static void type(const QWidget& dialog, const char* box, const QString& text) {
    child<QLineEdit>(dialog, box).setText(text);
  }
  static void press(const QWidget& dialog, const char* button) { child<QPushButton>(dialog, button).click(); }
  static QString hint(const QWidget& dialog) { return child<QLabel>(dialog, "lblHint").text(); }

  /// Opens the rename dialog of the department, as the menu does.
  static void open(frmDeptEdit& dialog, const QString& number) {
    dialog.DeptID = number;
    dialog.Form_Load();
    dialog.show();
  }
  [[nodiscard]] QString names() const {
    return home.single(
        QStringLiteral("SELECT group_concat(DNAME, ' ') FROM (SELECT * FROM Dept ORDER BY ID)"));
  }
  void expectBox(std::size_t index, const QString& text, const QString& title) const {
    ASSERT_GT(boxes.messages().size(), index);
    EXPECT_EQ(boxes.messages()[index].text, text);
    EXPECT_EQ(boxes.messages()[index].title, title);
    EXPECT_EQ(boxes.messages()[index].style, 48);
  }
  /// Chooses the entry; in the dialogs that it opens one after the other `answers` act.
  void chooseAndAnswer(const char* entry, const std::vector<std::function<void(QDialog&)>>& answers) const {
    std::size_t answered = 0;
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, qApp, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      if (answered < answers.size()) {
        answers[answered++](*dialog);
      } else {
        ADD_FAILURE() << "a dialog too many";
        dialog->reject();
      }
    });
    turns.start(0);
    choose(entry);
    EXPECT_EQ(answered, answers.size());
  }

  const QString warning = QStringLiteral("警告");
  const QString failure = QStringLiteral("错误");
};

}  // namespace

TEST_F(DeptDialogs, AppendsANameWithoutTheBlanksAroundIt) {
  frmDeptAppend dialog;
  dialog.show();
  type(dialog, "txtDeptName", QStringLiteral("  教务处 "));
  press(dialog, "btnOK");
  EXPECT_TRUE(dialog.Result);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(names(), QStringLiteral("财务部 人事部 空部门 教务处"));
}

TEST_F(DeptDialogs, AppendStaysOpenUntilTheNameIsRight) {
  addDepartment(QStringLiteral("Sales"));
  frmDeptAppend dialog;
  dialog.show();
  const auto refused = [&](const QString& name, const QString& text) {
    type(dialog, "txtDeptName", name);
    boxes.expectMessage(text);
    press(dialog, "btnOK");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.Result);
  };
  refused(QStringLiteral("   "), QStringLiteral("请输入部门名称！"));
  refused(QStringLiteral(" sALES"), QStringLiteral("部门名称已经存在，请重新输入！"));
  EXPECT_EQ(child<QLineEdit>(dialog, "txtDeptName").selectedText(), QStringLiteral(" sALES"));
  refused(QStringLiteral("O'Neil"), QStringLiteral("追加部门失败！"));
  expectBox(0, QStringLiteral("请输入部门名称！"), warning);
  expectBox(1, QStringLiteral("部门名称已经存在，请重新输入！"), warning);
  expectBox(2, QStringLiteral("追加部门失败！"), failure);
  EXPECT_EQ(names(), QStringLiteral("财务部 人事部 空部门 Sales"));
  execute(QStringLiteral("DROP TABLE Dept"));
  refused(QStringLiteral("新部门"), QStringLiteral("追加部门失败！"));
  EXPECT_TRUE(hint(dialog).contains(QStringLiteral("Dept"))) << "the box does not tell why";
  press(dialog, "btnCancel");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_FALSE(dialog.Result);
}

TEST_F(DeptDialogs, RenamesAndTakesOtherLetterCaseForAnotherName) {
  execute(QStringLiteral("UPDATE Dept SET DNAME = 'sales' WHERE ID = 2"));
  frmDeptEdit dialog;
  open(dialog, QStringLiteral("2"));
  EXPECT_EQ(child<QLineEdit>(dialog, "txtOldName").text(), QStringLiteral("sales"));
  type(dialog, "txtNewName", QStringLiteral(" Sales "));
  EXPECT_EQ(hint(dialog), QString()) << "only the department itself bears it";
  press(dialog, "btnOK");
  EXPECT_TRUE(dialog.Result);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(names(), QStringLiteral("财务部 Sales 空部门"));
}

TEST_F(DeptDialogs, RenameClosesAfterEveryMessage) {
  const auto refused = [this](const QString& name, const QString& text) {
    frmDeptEdit dialog;
    open(dialog, QStringLiteral("1"));
    type(dialog, "txtNewName", name);
    boxes.expectMessage(text);
    press(dialog, "btnOK");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.Result);
  };
  refused(QStringLiteral(" "), QStringLiteral("请输入新的部门名称！"));
  refused(QStringLiteral(" 财务部 "), QStringLiteral("新的部门名称不能与原名称相同！"));
  refused(QStringLiteral("a'b"), QStringLiteral("更新失败！"));
  expectBox(0, QStringLiteral("请输入新的部门名称！"), warning);
  expectBox(1, QStringLiteral("新的部门名称不能与原名称相同！"), warning);
  expectBox(2, QStringLiteral("更新失败！"), failure);
  EXPECT_EQ(names(), QStringLiteral("财务部 人事部 空部门"));
}

TEST_F(DeptDialogs, ATakenNameIsHintedAtAndChangesNothing) {
  frmDeptEdit dialog;
  open(dialog, QStringLiteral("1"));
  const QSize size = dialog.sizeHint();
  type(dialog, "txtNewName", QStringLiteral("人事部 "));
  EXPECT_TRUE(hint(dialog).contains(QStringLiteral("[2]"))) << hint(dialog).toStdString();
  EXPECT_EQ(dialog.sizeHint(), size) << "the window must not jump";
  press(dialog, "btnOK");
  EXPECT_TRUE(dialog.Result);
  EXPECT_EQ(names(), QStringLiteral("财务部 人事部 空部门"));
}

TEST_F(DeptDialogs, AQuoteIsHintedAtAsLongAsItIsThere) {
  frmDeptAppend appending;
  frmDeptEdit renaming;
  open(renaming, QStringLiteral("1"));
  for (const auto& [dialog, box] :
       {std::pair<QWidget*, const char*>(&appending, "txtDeptName"), {&renaming, "txtNewName"}}) {
    type(*dialog, box, QStringLiteral("a'"));
    EXPECT_TRUE(hint(*dialog).contains(QStringLiteral("单引号"))) << box;
    type(*dialog, box, QStringLiteral("a"));
    EXPECT_EQ(hint(*dialog), QString()) << box;
  }
}

TEST_F(DeptDialogs, ADepartmentThatIsGoneIsSaidToBeGone) {
  frmDeptEdit dialog;
  open(dialog, QStringLiteral("77"));
  EXPECT_TRUE(hint(dialog).contains(QStringLiteral("[77]"))) << hint(dialog).toStdString();
  type(dialog, "txtNewName", QStringLiteral("新名"));
  boxes.expectMessage(QStringLiteral("更新失败！"));
  press(dialog, "btnOK");
  EXPECT_FALSE(dialog.Result);
  frmDeptEdit broken;
  broken.DeptID = QStringLiteral("40000");
  EXPECT_THROW(broken.Form_Load(), runtime::RuntimeError);
}

TEST_F(DeptDialogs, TheMenuShowsTheNewDepartmentAndEnterAndEscapeAnswer) {
  choose("mnuDeptDsp");
  chooseAndAnswer("mnuPop_Append", {[](QDialog& dialog) {
                    QTest::keyClicks(dialog.focusWidget(), QStringLiteral("Labor"));
                    QTest::keyClick(&dialog, Qt::Key_Return);
                  }});
  EXPECT_EQ(column(1).last(), QStringLiteral("Labor"));
  EXPECT_EQ(counts(), QStringLiteral("共 4 个部门，已选 0 个"));

  addDepartment(QStringLiteral("unseen"));
  chooseAndAnswer("mnuDeptAppend", {[](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }});
  EXPECT_EQ(column(1).last(), QStringLiteral("Labor")) << "read again without need";
}

TEST_F(DeptDialogs, TheMenuRenamesFromTheBottomUpAndReadsTheListOnce) {
  choose("mnuDeptDsp");
  choose("mnuDeptEdit");
  EXPECT_EQ(note(), QStringLiteral("没有选中部门"));
  select({0, 1, 2});
  boxes.expectMessage(QStringLiteral("更新失败！"));
  QStringList order;
  const auto answer = [&](const QString& name, const char* button) {
    return [&order, name, button](QDialog& dialog) {
      order.append(child<QLineEdit>(dialog, "txtOldName").text());
      QTest::keyClicks(dialog.focusWidget(), name);
      press(dialog, button);
    };
  };
  chooseAndAnswer("mnuPop_Edit",
                  {answer(QStringLiteral("third"), "btnOK"), answer(QStringLiteral("second"), "btnCanCel"),
                   answer(QStringLiteral("fir'st"), "btnOK")});
  EXPECT_EQ(order.join(u' '), QStringLiteral("空部门 人事部 财务部"));
  EXPECT_EQ(column(1).join(u' '), QStringLiteral("财务部 人事部 third"));
  EXPECT_TRUE(note().startsWith(QStringLiteral("未能修改部门[1]："))) << note().toStdString();
}
