#include <gtest/gtest.h>

#include "cli/Running.h"
#include "support/Files.h"
#include "support/TestHome.h"

namespace {

class Check : public testing::Test {
 protected:
  Check() { home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')")); }

  void insert(const QString& number, const QByteArray& photo, const QString& barcode, int department = 1) {
    home.insertEmployee(number, QStringLiteral("某"), department, photo, barcode);
  }
  [[nodiscard]] Outcome check() const { return runIn(home.path(), {QStringLiteral("check")}); }

  const QByteArray picture = support::TestHome::tinyJpeg();
  support::TestHome home;
};

TEST_F(Check, AGoodDatabaseGivesASummary) {
  insert(QStringLiteral("A1"), picture, QStringLiteral("100000000000001"));
  const Outcome outcome = check();
  EXPECT_EQ(outcome.code, 0) << outcome.out.toStdString();
  EXPECT_EQ(outcome.out, QStringLiteral("数据库完好：Dept 1 行，Employee 1 行，Presence 0 行\n"));
  EXPECT_EQ(outcome.err, QString());
}

TEST_F(Check, EveryFaultIsOneLine) {
  home.execute(QStringLiteral("INSERT INTO Dept(ID, DNAME) VALUES(32768, '远')"));
  insert(QStringLiteral("../x"), picture, QStringLiteral("100000000000001"));
  insert(QStringLiteral("A1"), picture, QStringLiteral("100000000000002"), 9);
  insert(QStringLiteral("A2"), QByteArray(), QStringLiteral("100000000000003"));
  insert(QStringLiteral("A3"), "no picture", QStringLiteral("100000000000004"));
  insert(QStringLiteral("A4"), picture.left(picture.size() / 2), QStringLiteral("100000000000005"));
  insert(QStringLiteral("A5"), picture, QString());
  insert(QStringLiteral("A6"), picture, QStringLiteral("100000000000007"));
  insert(QStringLiteral("A7"), picture, QStringLiteral("100000000000007"));
  insert(QStringLiteral("C8"), picture, QStringLiteral("100000000000008"));
  insert(QStringLiteral("c8"), picture, QStringLiteral("100000000000009"));
  insert(QStringLiteral("D'9"), picture, QStringLiteral("100000000000010"));
  const Outcome outcome = check();
  EXPECT_EQ(outcome.code, 1);
  const QStringList expected{
      QStringLiteral("部门“远”：部门号 32768 大于 32767"),
      QStringLiteral("员工“../x”（某）：编号不能用作文件名"),
      QStringLiteral("员工“A1”（某）：没有部门"),
      QStringLiteral("员工“A2”（某）：没有照片"),
      QStringLiteral("员工“A3”（某）：照片不是可识别的图片"),
      QStringLiteral("员工“A4”（某）：照片不是可识别的图片"),
      QStringLiteral("员工“A5”（某）：没有条码"),
      QStringLiteral("员工“A6”（某）：条码“100000000000007”与其他员工相同"),
      QStringLiteral("员工“A7”（某）：条码“100000000000007”与其他员工相同"),
      QStringLiteral("员工“C8”（某）：编号与其他员工相同"),
      QStringLiteral("员工“c8”（某）：编号与其他员工相同"),
      QStringLiteral("员工“D'9”（某）：编号含有单引号，无法按编号读取"),
  };
  EXPECT_EQ(outcome.out.toStdString(), (expected.join(u'\n') + u'\n').toStdString());
  EXPECT_EQ(outcome.err, QStringLiteral("共有 %1 个问题\n").arg(expected.size()));
}

TEST_F(Check, ADamagedPageIsFound) {
  insert(QStringLiteral("A1"), QByteArray(200'000, 'x'), QStringLiteral("100000000000001"));
  support::damageFile(home.databaseFile(), -100'000);
  insert(QStringLiteral("A2"), "no picture", QStringLiteral("100000000000002"));
  const Outcome outcome = check();
  EXPECT_EQ(outcome.code, 1);
  const QStringList lines = outcome.out.split(u'\n', Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 3) << "what follows from the damage is not told: " << outcome.out.toStdString();
  EXPECT_TRUE(lines[0].startsWith(QStringLiteral("数据库已损坏：")));
  EXPECT_TRUE(lines[1].startsWith(QStringLiteral("员工“A1”（某）：照片无法读取：")));
  EXPECT_TRUE(lines[2].startsWith(QStringLiteral("员工“A2”（某）：照片不是")));
}

}  // namespace
