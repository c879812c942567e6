#include "records/RecordsFixture.h"
#include "records/clsEmployeeSet.h"
#include "runtime/Progress.h"
#include "support/Thrown.h"

namespace {

class EmployeeSet : public RecordsTest {
 protected:
  void SetUp() override { addDepartment(QStringLiteral("Sales")); }

  /// What loading all employees ends with.
  static std::string failure() {
    clsEmployeeSet employees;
    return support::thrown([&] { employees.LoadSet(); }).what();
  }
};

class Steps : public runtime::ProgressListener {
 public:
  void progress(int done, int) override { seen += done; }
  QList<int> seen;
};

TEST_F(EmployeeSet, LoadsAllThatHaveADepartmentWithTheirPhotos) {
  addEmployee(QStringLiteral("B2"), QStringLiteral("x7"));
  m_home.insertEmployee(QStringLiteral("A1"), QStringLiteral("李四"), 1, "photo of A1");
  m_home.insertEmployee(QStringLiteral("lost"), QStringLiteral("无"), 9, "x", QStringLiteral("1"));
  Steps steps;
  const runtime::ProgressScope scope(steps);
  {
    clsEmployeeSet employees;
    EXPECT_TRUE(employees.LoadSet());
    ASSERT_EQ(employees.Count(), 2);
    EXPECT_EQ(employees.Item(1)->ENUMBER(), QStringLiteral("B2"));
    EXPECT_EQ(employees.Item(1)->EBARCODE(), QStringLiteral("X7"));
    const auto second = employees.Item(QStringLiteral("a1"));
    EXPECT_EQ(second->ENAME(), QStringLiteral("李四"));
    EXPECT_EQ(second->DNAME(), QStringLiteral("Sales"));
    EXPECT_EQ(second->EBARCODE(), QString()) << "Null reads as empty";
    EXPECT_EQ(content(QStringLiteral("A1.jpg")), "photo of A1");
    EXPECT_EQ(second->HeadImg(), m_home.file(QStringLiteral("A1.jpg")));
  }
  EXPECT_TRUE(photoFiles().isEmpty());
  EXPECT_EQ(steps.seen, (QList<int>{1, 2}));
}

TEST_F(EmployeeSet, MembersHeldElsewhereKeepTheirPhotos) {
  addEmployee(QStringLiteral("A1"));
  addEmployee(QStringLiteral("A2"));
  std::shared_ptr<clsEmployee> held;
  {
    clsEmployeeSet employees;
    employees.LoadSet();
    held = employees.Item(2);
    employees.Remove(QStringLiteral("A1"));
    EXPECT_EQ(photoFiles(), QStringList(QStringLiteral("A2.jpg")));
  }
  EXPECT_EQ(photoFiles(), QStringList(QStringLiteral("A2.jpg")));
}

TEST_F(EmployeeSet, ErrorsNameTheEmployee) {
  addEmployee(QStringLiteral("A1"));
  m_home.insertEmployee(QStringLiteral("P2"), QStringLiteral("李四"), 1, {}, QStringLiteral("1"));
  EXPECT_EQ(failure().find("编号为[P2]的员工没有照片："), 0U);

  m_home.execute(QStringLiteral("UPDATE Employee SET ENUMBER = '../x' WHERE ENUMBER = 'P2'"));
  EXPECT_EQ(failure().find("编号为[../x]的员工的照片无法写入："), 0U);

  m_home.execute(QStringLiteral("UPDATE Employee SET ENAME = NULL WHERE ENUMBER = '../x'"));
  EXPECT_EQ(failure().find("编号为[../x]的员工无法载入："), 0U);

  m_home.execute(QStringLiteral("DELETE FROM Employee WHERE ENUMBER = '../x'"));
  m_home.insertEmployee(QStringLiteral("D3"), QStringLiteral("李四"), 1, QByteArray(50'000, 'x'));
  gConnection.reset();
  support::damageFile(m_home.databaseFile(), -20'000);
  EXPECT_EQ(failure().find("编号为[D3]的员工的照片无法读取："), 0U);
  EXPECT_TRUE(photoFiles().isEmpty());
}

}  // namespace
