#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "cli/Running.h"
#include "support/TestHome.h"

namespace {

/// Lists and removal on a few records.
class Records : public testing::Test {
 protected:
  Records() {
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('总务;#[处--')"));
  }

  void insert(const QString& number, const QString& name, int department = 1, const QString& barcode = {}) {
    home.insertEmployee(number, name, department, support::TestHome::tinyJpeg(), barcode);
  }
  [[nodiscard]] Outcome list(const QString& what) const {
    return runIn(home.path(), {QStringLiteral("list"), what});
  }
  [[nodiscard]] Outcome remove(const QString& number) const {
    return runIn(home.path(), {QStringLiteral("remove"), QStringLiteral("--"), number});
  }
  [[nodiscard]] QString employees() const {
    return home.single(QStringLiteral("SELECT COUNT(*) FROM Employee"));
  }

  support::TestHome home;
};

TEST_F(Records, EmployeesAreListedByNumberAlsoWithoutDepartment) {
  insert(QStringLiteral("B2"), QStringLiteral("李\t四\n"), 9);
  insert(QStringLiteral("A1"), QStringLiteral("张三"), 2, QStringLiteral("123456789012345"));
  const Outcome outcome = list(QStringLiteral("employees"));
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.out, QStringLiteral("编号\t姓名\t部门\t条码\t录入日期\n"
                                        "A1\t张三\t总务;#[处--\t123456789012345\t2026-11-02\n"
                                        "B2\t李 四 \t\t\t2026-11-02\n"));
  EXPECT_EQ(outcome.err, QString());
  EXPECT_EQ(QDir(home.path()).entryList({QStringLiteral("*.jpg")}), QStringList());
}

TEST_F(Records, DepartmentsAreListedWithTheirEmployees) {
  insert(QStringLiteral("A1"), QStringLiteral("张三"), 2);
  insert(QStringLiteral("A2"), QStringLiteral("李四"), 2);
  EXPECT_EQ(list(QStringLiteral("departments")).out,
            QStringLiteral("部门号\t名称\t人数\n1\t教务处\t0\n2\t总务;#[处--\t2\n"));
}

TEST_F(Records, RemoveTakesNumbersThatNoFileCanBear) {
  const QStringList numbers{QStringLiteral("../x"),  QStringLiteral("a/b"),   QStringLiteral("-5"),
                            QStringLiteral("--all"), QStringLiteral("[a,b]"), QStringLiteral("1;2--")};
  for (const QString& number : numbers) insert(number, QStringLiteral("某人"));
  for (const QString& number : numbers) {
    const Outcome outcome = remove(number);
    EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
    EXPECT_EQ(outcome.out, QStringLiteral("已删除员工“%1”\n").arg(number));
  }
  EXPECT_EQ(employees(), QStringLiteral("0"));
}

TEST_F(Records, RemoveOfSomebodyElseFails) {
  insert(QStringLiteral("A1"), QStringLiteral("张三"));
  const Outcome unknown = remove(QStringLiteral("A2"));
  EXPECT_EQ(unknown.code, 1);
  EXPECT_EQ(unknown.err, QStringLiteral("没有编号为“A2”的员工\n"));
  EXPECT_EQ(remove(QStringLiteral("x' OR '1'='1")).code, 1);
  EXPECT_EQ(employees(), QStringLiteral("1"));
}

TEST_F(Records, ADatabaseThatCannotBeOpenedIsExplained) {
  QFile::remove(home.databaseFile());
  const QStringList commands[] = {
      {QStringLiteral("list"), QStringLiteral("employees")},
      {QStringLiteral("remove"), QStringLiteral("A1")},
      {QStringLiteral("check")},
      {QStringLiteral("sign"), QStringLiteral("1")},
      {QStringLiteral("today")},
      {QStringLiteral("cards"), QStringLiteral("--all"), QStringLiteral("--out"),
       home.file(QStringLiteral("c.pdf"))},
      {QStringLiteral("backup"), QStringLiteral("--out"), home.file(QStringLiteral("copy.dat"))}};
  for (const QStringList& command : commands) {
    const Outcome outcome = runIn(home.path(), command);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.out, QString());
    EXPECT_TRUE(outcome.err.contains(home.databaseFile())) << outcome.err.toStdString();
  }
  EXPECT_FALSE(QFile::exists(home.databaseFile()));
}

}  // namespace
