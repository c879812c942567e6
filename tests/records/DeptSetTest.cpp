#include "records/RecordsFixture.h"
#include "records/clsDeptSet.h"

namespace {

using DeptSet = RecordsTest;

TEST_F(DeptSet, HoldsAllDepartmentsUnderTheirNumbers) {
  EXPECT_EQ(clsDeptSet().Count(), 0);
  addDepartment(QStringLiteral("二"));
  addDepartment(QStringLiteral("一"));
  m_home.execute(QStringLiteral("UPDATE Dept SET PASSWORD = 'secret' WHERE [ID] = 2"));
  addEmployee(QStringLiteral("A1"));

  const clsDeptSet departments;
  EXPECT_EQ(departments.Count(), 2);
  EXPECT_EQ(departments.Item(1)->DNAME(), QStringLiteral("二"));
  EXPECT_EQ(departments.Item(1)->EMPLOYEENUM(), 1);
  EXPECT_EQ(departments.Item(QStringLiteral("2"))->PASSWORD(), QStringLiteral("secret"));
  EXPECT_TRUE(departments.firstFailure().isEmpty()) << departments.firstFailure().toStdString();
}

TEST_F(DeptSet, SkipsWhatFailsAndGoesOn) {
  addDepartment(QStringLiteral("甲"));
  m_home.execute(QStringLiteral("INSERT INTO Dept(ID, DNAME) VALUES(40000,'big')"));
  m_home.execute(QStringLiteral("INSERT INTO Dept(ID, DNAME) VALUES(40001,NULL)"));
  m_home.execute(QStringLiteral("INSERT INTO Dept(ID, DNAME) VALUES(7,'乙')"));

  const clsDeptSet departments;
  EXPECT_EQ(departments.Item(QStringLiteral("7"))->DNAME(), QStringLiteral("乙"));
  EXPECT_EQ(departments.Item(QStringLiteral("0"))->DNAME(), QStringLiteral("big"));
  EXPECT_EQ(departments.Count(), 3) << "a second department without a number finds its key taken";
  EXPECT_TRUE(departments.firstFailure().contains(QStringLiteral("40000")));
}

}  // namespace
