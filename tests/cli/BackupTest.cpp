#include <gtest/gtest.h>

#include <QDir>

#include "cli/Running.h"
#include "support/Files.h"
#include "support/TestHome.h"

namespace {

class Backup : public testing::Test {
 protected:
  Backup() {
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    home.insertEmployee(QStringLiteral("A1"), QStringLiteral("张三"), 1, support::TestHome::tinyJpeg());
  }

  [[nodiscard]] Outcome backup(const QString& out) const {
    return runIn(home.path(), {QStringLiteral("backup"), QStringLiteral("--out"), out});
  }
  /// Files of the home beside the three that belong there.
  [[nodiscard]] QStringList leftovers() const {
    QStringList files = QDir(home.path()).entryList(QDir::Files | QDir::Hidden);
    for (const QString& own : {QStringLiteral("attendance.ini"), QStringLiteral("vorlent.dat"),
                               QStringLiteral("vorlent.dat-journal")}) {
      files.removeAll(own);
    }
    return files;
  }

  support::TestHome home;
};

TEST_F(Backup, CopiesAndCountsWhileAnotherProgramIsWriting) {
  const auto writer = home.connect();
  writer->BeginTrans();
  std::ignore = writer->Execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('总务处')"));
  const QString copy = home.file(QStringLiteral("备份;a=b.dat"));
  const Outcome outcome = backup(copy);
  EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
  EXPECT_EQ(outcome.out,
            QStringLiteral("备份完好：%1（Dept 1 行，Employee 1 行，Presence 0 行）\n").arg(copy));
  writer->CommitTrans();
  EXPECT_EQ(leftovers(), QStringList(QStringLiteral("备份;a=b.dat")));
  EXPECT_EQ(home.single(QStringLiteral("SELECT COUNT(*) FROM Dept")), QStringLiteral("2"));
}

TEST_F(Backup, NeverOverwrites) {
  const QString taken = home.file(QStringLiteral("taken"));
  support::writeFile(taken, "kept");
  for (const QString& out : {taken, home.databaseFile(), home.path()}) {
    const Outcome outcome = backup(out);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("已经存在"))) << outcome.err.toStdString();
  }
  EXPECT_EQ(support::contentOf(taken), "kept");
  EXPECT_EQ(leftovers(), QStringList(QStringLiteral("taken")));
}

}  // namespace
