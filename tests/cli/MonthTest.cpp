#include <gtest/gtest.h>

#include "cli/Running.h"
#include "support/Files.h"
#include "support/TestHome.h"

namespace {

using support::contentOf;

class Month : public testing::Test {
 protected:
  Month() {
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    home.insertEmployee(QStringLiteral("A1"), QStringLiteral("张三"), 1, {});
    home.execute(
        QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME, EXITTIME) "
                       "VALUES('A1', '2026-10-31 08:05:09', '2026-10-31 17:30:00')"));
  }

  [[nodiscard]] Outcome month(const QString& month, const QString& out) const {
    return runIn(home.path(), {QStringLiteral("month"), month, QStringLiteral("--out"), out});
  }

  const QString october = QStringLiteral("2026-10");
  support::TestHome home;
};

TEST_F(Month, TheEndingSaysWhatIsWritten) {
  const std::pair<QString, QByteArray> cases[] = {{QStringLiteral("m.pdf"), "%PDF"},
                                                  {QStringLiteral("m.XLSX"), "PK"},
                                                  {QStringLiteral("m.b.csv"), "\xEF\xBB\xBF"}};
  for (const auto& [name, start] : cases) {
    const QString path = home.file(name);
    const Outcome outcome = month(october, path);
    EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
    EXPECT_EQ(outcome.out, QStringLiteral("已写入 2026年10月 的考勤（有记录的员工 1 名）：%1\n").arg(path));
    EXPECT_TRUE(contentOf(path).startsWith(start)) << name.toStdString();
  }
  EXPECT_TRUE(
      contentOf(home.file(QStringLiteral("m.b.csv"))).contains("A1,张三,2026-10-31,六,08:05,17:30\r\n"));
}

TEST_F(Month, AMonthWithoutRecordsIsWrittenToo) {
  const QString path = home.file(QStringLiteral("m.pdf"));
  EXPECT_EQ(month(QStringLiteral("1900-01"), path).code, 0);
  EXPECT_TRUE(contentOf(path).startsWith("%PDF"));
}

TEST_F(Month, RecordsOfNobodyAreToldAndNoFault) {
  home.execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('Z9', '2026-10-30 08:00:00')"));
  const Outcome outcome = month(october, home.file(QStringLiteral("m.csv")));
  EXPECT_EQ(outcome.code, 0);
  EXPECT_TRUE(outcome.err.contains(QStringLiteral("另有 1 条考勤记录")) &&
              outcome.err.contains(QStringLiteral("Z9")));
  EXPECT_FALSE(contentOf(home.file(QStringLiteral("m.csv"))).contains("Z9"));
}

TEST_F(Month, AFailingDatabaseLeavesTheOldFile) {
  home.execute(QStringLiteral("DROP TABLE Presence"));
  for (const char* name : {"m.pdf", "m.xlsx", "m.csv"}) {
    const QString path = home.file(QString::fromLatin1(name));
    support::writeFile(path, "old");
    const Outcome outcome = month(october, path);
    EXPECT_EQ(outcome.code, 1) << name;
    EXPECT_TRUE(outcome.err.contains(QLatin1String("Presence"))) << outcome.err.toStdString();
    EXPECT_EQ(contentOf(path), "old") << name;
  }
}

TEST_F(Month, TheProgramsOwnFilesAreNoOutput) {
  const QString link = home.file(QStringLiteral("settings.csv"));
  ASSERT_TRUE(QFile::link(home.file(QStringLiteral("attendance.ini")), link));
  const Outcome outcome = month(october, link);
  EXPECT_EQ(outcome.code, 1);
  EXPECT_TRUE(outcome.err.contains(QStringLiteral("不能用作输出"))) << outcome.err.toStdString();
}

}  // namespace
