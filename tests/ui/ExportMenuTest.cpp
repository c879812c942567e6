#include "MainWindowTest.h"
#include "ado/Recordset.h"
#include "printing/OutputFile.h"
#include "runtime/OutputGuard.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "ui/ExportMenu.h"

namespace {

class ExportMenu : public MainWindow {
 protected:
  [[nodiscard]] static QString valuesIn(const QString& path, const QString& column) {
    ado::Recordset rows;
    QStringList values;
    for (rows.Open(path); !rows.IsEOF(); rows.MoveNext()) {
      values.append(rows.Fields(column).Value().toString());
    }
    return values.join(u' ');
  }
  void expectBox(std::size_t index, const QString& title, int style) const {
    ASSERT_GT(boxes.messages().size(), index);
    EXPECT_EQ(boxes.messages()[index].title, title);
    EXPECT_EQ(boxes.messages()[index].style, style);
  }

  const QString file = home.file(QStringLiteral("out.xml"));
  const QString done = QStringLiteral("数据已成功导出！");
  const QString failed = QStringLiteral("导出数据失败！");
};

}  // namespace

TEST_F(ExportMenu, WritesTheSelectedEmployeesOverAnOlderFile) {
  const support::FixedClock clock(QDateTime(QDate(2026, 3, 5), QTime(8, 5)));
  support::writeFile(file, "old");
  window.Form_Load();
  select({1, 3, 4});
  boxes.expectFile({file});
  boxes.expectMessage(done);
  choose("mnuEmpExport");
  const dialogs::FileBox& box = boxes.files()[0];
  EXPECT_TRUE(box.save);
  EXPECT_EQ(box.filter, QStringLiteral("XML文件|*.xml"));
  EXPECT_EQ(box.fileName, QStringLiteral("员工信息_2026-03-05.xml"));
  EXPECT_EQ(boxes.messages()[0].text, done);
  expectBox(0, QStringLiteral("信息"), 64);
  EXPECT_EQ(valuesIn(file, QStringLiteral("ENUMBER")), QStringLiteral("A002 A004 A005"));
  EXPECT_EQ(note(), QStringLiteral("已导出 3 条记录到 ") + file);

  execute(QStringLiteral("DELETE FROM Employee WHERE ENUMBER = 'A004'"));
  boxes.expectFile({file});
  boxes.expectMessage(done);
  choose("mnuPop_Export");
  EXPECT_EQ(valuesIn(file, QStringLiteral("ENUMBER")), QStringLiteral("A002 A005"));
  EXPECT_TRUE(note().contains(QStringLiteral("其余员工已不在数据库中"))) << note().toStdString();
}

TEST_F(ExportMenu, WritesAllDepartments) {
  choose("mnuDeptDsp");
  for (const char* entry : {"mnuDeptExport", "mnuPop_Export"}) {
    boxes.expectFile({file});
    boxes.expectMessage(done);
    choose(entry);
    EXPECT_EQ(boxes.files().back().fileName, QStringLiteral("部门信息.xml"));
    EXPECT_EQ(valuesIn(file, QStringLiteral("DNAME")), QStringLiteral("财务部 人事部 空部门"));
    QFile::remove(file);
  }
}

TEST_F(ExportMenu, CancellingWritesAndSaysNothing) {
  window.Form_Load();
  boxes.expectFile({});
  choose("mnuEmpExport");
  ExportDeptXML({}, window);
  EXPECT_EQ(note(), QString());
}

TEST_F(ExportMenu, AFailureKeepsTheOlderFileAndTheStatusBarSaysWhy) {
  support::writeFile(file, "old");
  window.Form_Load();
  const auto refused = [this](const QString& path, const QString& why) {
    boxes.expectMessage(failed);
    ExportEmpXML(path, window);
    EXPECT_TRUE(note().contains(why)) << note().toStdString();
  };
  refused(file, QStringLiteral("没有选中员工"));
  expectBox(0, QStringLiteral("错误"), 48);
  select({0});
  refused(home.file(QStringLiteral("none/out.xml")), QStringLiteral("none/out.xml"));
  const QByteArray database = support::contentOf(home.databaseFile());
  const runtime::OutputGuard before = runtime::installOutputGuard(refuseOwnFile);
  refused(home.databaseFile(), QStringLiteral("程序自己的文件"));
  runtime::installOutputGuard(before);
  EXPECT_EQ(support::contentOf(home.databaseFile()), database);
  execute(QStringLiteral("UPDATE Employee SET ENAME = 'a' || char(1)"));
  refused(file, QStringLiteral("ENAME"));
  EXPECT_EQ(support::contentOf(file), "old");
}
