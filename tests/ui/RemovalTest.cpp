#include "MainWindowTest.h"

namespace {

class Removal : public MainWindow {
 protected:
  [[nodiscard]] QString employeesLeft() const {
    return home.single(QStringLiteral("SELECT COUNT(*) FROM Employee"));
  }
};

}  // namespace

TEST_F(Removal, AsksForEachEmployeeFromTheBottomUp) {
  window.Form_Load();
  select({0, 2, 4});
  boxes.expectMessage(QStringLiteral("删除编号为[A005]的员工？"), dialogs::Answer::Yes);
  boxes.expectMessage(QStringLiteral("删除编号为[A003]的员工？"), dialogs::Answer::No);
  boxes.expectMessage(QStringLiteral("删除编号为[A001]的员工？"), dialogs::Answer::Yes);
  choose("mnuEmpRemove");
  EXPECT_EQ(boxes.messages()[0].style, 36);
  EXPECT_EQ(boxes.messages()[0].title, QStringLiteral("询问"));
  EXPECT_EQ(column(0).join(u' '), QStringLiteral("A002 A003 A004"));
  EXPECT_EQ(employeesLeft(), QStringLiteral("3"));
  EXPECT_EQ(counts(), QStringLiteral("共 3 名员工，已选 1 名，将打印 1 张签到卡"));
}

TEST_F(Removal, SaysThatAnEmployeeCouldNotBeRemovedAndGoesOn) {
  window.Form_Load();
  execute(QStringLiteral("DELETE FROM Employee WHERE ENUMBER = 'A002'"));
  select({0, 1});
  boxes.expectMessage(QStringLiteral("[A002]"), dialogs::Answer::Yes);
  boxes.expectMessage(QStringLiteral("未能删除编号为[A002]的员工！"));
  boxes.expectMessage(QStringLiteral("[A001]"), dialogs::Answer::Yes);
  choose("mnuEmpRemove");
  EXPECT_EQ(boxes.messages()[1].style, 48);
  EXPECT_EQ(boxes.messages()[1].title, QStringLiteral("错误"));
  EXPECT_EQ(column(0).join(u' '), QStringLiteral("A002 A003 A004 A005"));
  EXPECT_TRUE(note().contains(QStringLiteral("A002")));
}

TEST_F(Removal, RemovesDepartmentsWithoutEmployeesOnly) {
  choose("mnuDeptDsp");
  select({0, 2});
  boxes.expectMessage(QStringLiteral("删除编号为[3]名称为[空部门]的部门？"), dialogs::Answer::Yes);
  boxes.expectMessage(
      QStringLiteral("编号为[1]名称为[财务部]的部门下还有员工，\r\n"
                     "请删除相关员工或将员工转移到其它部门后再删除本部门！"));
  choose("mnuDeptRemove");
  EXPECT_EQ(boxes.messages()[1].style, 48);
  EXPECT_EQ(boxes.messages()[1].title, QStringLiteral("信息"));
  EXPECT_EQ(column(1).join(u' '), QStringLiteral("财务部 人事部"));
  EXPECT_EQ(home.single(QStringLiteral("SELECT COUNT(*) FROM Dept")), QStringLiteral("2"));
}

TEST_F(Removal, NeverRemovesADepartmentThatCouldNotBeCounted) {
  choose("mnuDeptDsp");
  execute(QStringLiteral("DROP TABLE Employee"));
  select({2});
  boxes.expectMessage(QStringLiteral("数据库操作错误！"));
  choose("mnuDeptRemove");
  EXPECT_EQ(boxes.messages()[0].style, 48);
  EXPECT_EQ(boxes.messages()[0].title, QStringLiteral("错误"));
  EXPECT_EQ(column(1).size(), 3);
  EXPECT_TRUE(note().startsWith(QStringLiteral("未能删除[3]："))) << note().toStdString();
}
