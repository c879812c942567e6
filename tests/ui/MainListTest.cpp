#include <QCoreApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "MainWindowTest.h"

namespace {
class MainList : public MainWindow {};
}  // namespace

TEST_F(MainList, ShowsEmployeesOfDepartmentsThatExist) {
  addEmployee(QStringLiteral("B001"), 99);
  window.Form_Load();
  EXPECT_EQ(headers(), QStringList({QStringLiteral("员工号"), QStringLiteral("姓名"),
                                    QStringLiteral("所属部门"), QStringLiteral("签到条码")}));
  EXPECT_EQ(column(0).join(u' '), QStringLiteral("A001 A002 A003 A004 A005"));
  EXPECT_EQ(column(1)[1], QStringLiteral("员工A002"));
  EXPECT_EQ(column(2)[1], QStringLiteral("财务部"));
  EXPECT_EQ(column(3)[1], QStringLiteral("12345678901A002"));
  const double dots = window.logicalDpiX();
  EXPECT_EQ(list().columnWidth(0), std::lround(800 * dots / 1440));
  EXPECT_EQ(list().columnWidth(3), std::lround(2000 * dots / 1440));
}

TEST_F(MainList, ShowsDepartmentsAndReadsThemAgainEachTime) {
  choose("mnuDeptDsp");
  EXPECT_EQ(headers(), QStringList({QStringLiteral("部门号"), QStringLiteral("部门名称")}));
  EXPECT_EQ(column(0).join(u' '), QStringLiteral("1 2 3"));
  EXPECT_EQ(column(1).join(u' '), QStringLiteral("财务部 人事部 空部门"));
  addDepartment(QStringLiteral("新部门"));
  choose("mnuDeptDsp");
  EXPECT_EQ(column(1).last(), QStringLiteral("新部门"));
}

TEST_F(MainList, TellsOnceWhoseNumberCannotNameAPhotoFile) {
  addEmployee(QStringLiteral("../x"), 1);
  boxes.expectMessage(QStringLiteral("../x"));
  window.Form_Load();
  EXPECT_EQ(boxes.messages()[0].style, 16);
  EXPECT_TRUE(column(0).isEmpty());
  EXPECT_TRUE(note().contains(QStringLiteral("../x")));
  execute(QStringLiteral("DELETE FROM Employee WHERE ENUMBER = '../x'"));
  choose("mnuEmpDsp");
  EXPECT_EQ(column(0).size(), 5);
  EXPECT_EQ(note(), QString());
}

TEST_F(MainList, CountsRowsAndSelection) {
  EXPECT_EQ(counts(), QString());
  window.Form_Load();
  EXPECT_EQ(counts(), QStringLiteral("共 5 名员工，已选 0 名"));
  select({0, 2, 3});
  EXPECT_EQ(counts(), QStringLiteral("共 5 名员工，已选 3 名，将打印 3 张签到卡"));
  choose("mnuDeptDsp");
  EXPECT_EQ(counts(), QStringLiteral("共 3 个部门，已选 0 个"));
  list().selectAll();
  EXPECT_EQ(counts(), QStringLiteral("共 3 个部门，已选 3 个"));
}

TEST_F(MainList, FillsTheWindowButForItsGap) {
  const double dots = window.logicalDpiX();
  window.show();
  EXPECT_EQ(window.centralWidget()->width(), std::lround(9960 * dots / 1440));
  EXPECT_EQ(window.centralWidget()->height(), std::lround(6600 * dots / 1440));

  window.centralWidget()->resize(300, 200);
  const QRect expected(0, 0, static_cast<int>(std::lround(300 - 10 * dots / 1440)),
                       static_cast<int>(std::lround(200 - 10 * dots / 1440)));
  EXPECT_EQ(list().geometry(), expected);
  window.centralWidget()->resize(0, 100);
  EXPECT_EQ(list().width(), expected.width());
  EXPECT_LT(list().height(), 100);
}

TEST_F(MainList, LoadsOnlyOnceTheWindowHasBeenPainted) {
  QSignalSpy loaded(&window, &frmMain::Loaded);
  window.Show();
  EXPECT_EQ(loaded.count(), 0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return loaded.count() > 0; }));
  EXPECT_EQ(column(0).size(), 5);
  window.repaint();
  QCoreApplication::processEvents();
  EXPECT_EQ(loaded.count(), 1);
}

TEST_F(MainList, NeitherClosesNorStartsAnythingElseWhileItLoads) {
  const QByteArray large(2 << 20, 'x');
  for (int i = 0; i < 30; ++i) {
    addEmployee(QStringLiteral("C%1").arg(i), 1, large);
  }
  window.show();
  int turns = 0;
  QTimer meanwhile;
  QObject::connect(&meanwhile, &QTimer::timeout, &window, [&] {
    ++turns;
    EXPECT_FALSE(window.close());
    choose("mnuDeptDsp");
  });
  meanwhile.start(0);
  choose("mnuEmpDsp");
  meanwhile.stop();
  EXPECT_GT(turns, 0) << "the window never repainted while it loaded";
  EXPECT_FALSE(action("mnuDeptDsp").isChecked());
  EXPECT_EQ(column(0).size(), 35);
  EXPECT_TRUE(window.close());
}
