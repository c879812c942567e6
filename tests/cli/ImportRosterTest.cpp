#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "cli/Running.h"
#include "exchange/RosterCsv.h"
#include "support/Files.h"
#include "support/TestHome.h"

namespace {

/// Imports of a small roster: B1 is right, B2 has no picture.
class ImportRoster : public testing::Test {
 protected:
  ImportRoster() {
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    EXPECT_TRUE(QDir(user.path()).mkdir(QStringLiteral("照片")));
    support::writeFile(photo, support::TestHome::tinyJpeg());
    support::writeFile(file,
                       QStringLiteral("编号,姓名,部门,录入日期\nB1,李四,教务处,\nB2,王五,新处,\n").toUtf8());
  }

  [[nodiscard]] Outcome import(const QStringList& options = {}) const {
    return runIn(
        home.path(),
        QStringList{QStringLiteral("import-roster"), file, QStringLiteral("--photos"), folder} + options);
  }
  [[nodiscard]] QString employees() const {
    return home.single(QStringLiteral("SELECT COUNT(*) FROM Employee"));
  }

  support::TestHome home;
  QTemporaryDir user;
  const QString file = user.filePath(QStringLiteral("名单.csv"));
  const QString folder = user.filePath(QStringLiteral("照片"));
  const QString photo = folder + QStringLiteral("/B1.jpg");
  const QString skip = QStringLiteral("--skip-bad");
};

TEST_F(ImportRoster, TellsWhatIsWrongAndWritesNothing) {
  const Outcome outcome = import();
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.out, QString());
  EXPECT_EQ(outcome.err, QStringLiteral("第 3 行：没有部门“新处”；没有照片 B2.jpg（或 .jpeg、.png）\n"
                                        "共有 1 行有错，没有导入任何员工（--skip-bad 跳过有错的行）\n"));
  EXPECT_EQ(employees(), QStringLiteral("0"));
}

TEST_F(ImportRoster, SkipsWhatIsWrongWhenItMay) {
  const Outcome outcome = import({skip});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.out, QStringLiteral("已导入 1 名员工：新增 1 名，更新 0 名，跳过 1 行\n"));
  EXPECT_TRUE(outcome.err.startsWith(QStringLiteral("第 3 行：")));
  EXPECT_EQ(employees(), QStringLiteral("1"));
  QFile::remove(photo);
  EXPECT_EQ(import({skip}).code, 1) << "nothing is left to import";
}

TEST_F(ImportRoster, MakesDepartmentsWhenToldTo) {
  support::writeFile(folder + QStringLiteral("/b2.JPG"), support::TestHome::tinyJpeg());
  const Outcome outcome = import({QStringLiteral("--create-departments")});
  EXPECT_EQ(outcome.out, QStringLiteral("已导入 2 名员工：新增 2 名，更新 0 名，新建部门 1 个，跳过 0 行\n"));
  EXPECT_EQ(outcome.err, QString());
  EXPECT_TRUE(QFile::exists(photo));
}

TEST_F(ImportRoster, ADryRunWritesNothing) {
  const Outcome outcome = import({skip, QStringLiteral("--dry-run")});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.out, QStringLiteral("核对完成，没有写入：可新增 1 名，更新 0 名，跳过 1 行\n"));
  EXPECT_EQ(employees(), QStringLiteral("0"));
  EXPECT_EQ(import({QStringLiteral("--dry-run")}).code, 1);
}

TEST_F(ImportRoster, AFileOrAFolderThatCannotBeReadIsExplained) {
  const QString command = QStringLiteral("import-roster");
  const QString photos = QStringLiteral("--photos");
  EXPECT_TRUE(runIn(home.path(), {command, file + u'x', photos, folder})
                  .err.contains(QStringLiteral("找不到名单文件")));
  EXPECT_TRUE(
      runIn(home.path(), {command, file, photos, home.path()}).err.contains(QStringLiteral("是程序目录")));
  EXPECT_EQ(run({command}).code, 2);
  EXPECT_EQ(run({command, file}).code, 2);
}

TEST_F(ImportRoster, TheTemplateGoesToStandardOutputOrAFile) {
  const QString command = QStringLiteral("import-roster");
  const QString option = QStringLiteral("--template");
  EXPECT_EQ(run({command, option}).out.toUtf8(), rosterTemplate());
  EXPECT_EQ(runIn(home.path(), {command, option, file}).code, 0);
  EXPECT_EQ(support::contentOf(file), rosterTemplate());
  EXPECT_EQ(runIn(home.path(), {command, option, home.databaseFile()}).code, 1);
  EXPECT_EQ(import({option}).code, 2);
}

}  // namespace
