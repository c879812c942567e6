#include <set>

#include "records/RecordsFixture.h"
#include "records/clsEmployee.h"

namespace {

class EmployeeStore : public RecordsTest {
 protected:
  void SetUp() override {
    addDepartment(QStringLiteral("Sales"));
    addDepartment(QStringLiteral("教务处"));
  }

  /// An employee that can be stored, with a photo file of its own.
  std::unique_ptr<clsEmployee> complete(const QString& number) const {
    auto employee = std::make_unique<clsEmployee>();
    employee->setENUMBER(number);
    employee->setENAME(QStringLiteral("王五"));
    employee->setEBARCODE(QStringLiteral("123456789012345"));
    employee->setdid(2);
    employee->setENTERDATE(QDateTime(QDate(2026, 11, 3), QTime(9, 30)));
    employee->setHeadImg(m_home.file(QStringLiteral("temp.jpg")));
    support::writeFile(employee->HeadImg(), m_photo);
    return employee;
  }

  [[nodiscard]] QString count() const {
    return m_home.single(QStringLiteral("SELECT COUNT(*) FROM Employee"));
  }

  QByteArray m_photo = QByteArray("\xff\xd8\0any bytes\r\n", 14);
};

TEST_F(EmployeeStore, StoresWhatLoadingGivesBack) {
  const auto employee = complete(QStringLiteral("a#1[x]--;"));
  ASSERT_TRUE(employee->Add()) << employee->lastFailure().toStdString();
  clsEmployee loaded;
  loaded.setENUMBER(employee->ENUMBER());
  ASSERT_EQ(loaded.LoadByENUMBER(), clsEmployee::Found) << loaded.lastFailure().toStdString();
  EXPECT_EQ(loaded.ENAME(), QStringLiteral("王五"));
  EXPECT_EQ(loaded.DNAME(), QStringLiteral("教务处"));
  EXPECT_EQ(loaded.EBARCODE(), QStringLiteral("123456789012345"));
  EXPECT_EQ(loaded.ENTERDATE(), employee->ENTERDATE());
  EXPECT_EQ(content(QStringLiteral("a#1[x]--;.jpg")), m_photo);
}

TEST_F(EmployeeStore, OverwritesTheRowWithTheSameNumber) {
  addEmployee(QStringLiteral("A001"), QStringLiteral("9"));
  addEmployee(QStringLiteral("A002"), QStringLiteral("8"));
  ASSERT_TRUE(complete(QStringLiteral("a001"))->Add());
  EXPECT_EQ(count(), QStringLiteral("2"));
  clsEmployee loaded;
  loaded.setENUMBER(QStringLiteral("A001"));
  ASSERT_EQ(loaded.LoadByENUMBER(), clsEmployee::Found) << loaded.lastFailure().toStdString();
  EXPECT_EQ(loaded.ID(), 1);
  EXPECT_EQ(loaded.ENAME(), QStringLiteral("王五"));
  EXPECT_EQ(loaded.did(), 2);
  EXPECT_EQ(loaded.EBARCODE(), QStringLiteral("123456789012345"));
  EXPECT_EQ(content(QStringLiteral("A001.jpg")), m_photo);
}

TEST_F(EmployeeStore, RefusesIncompleteEmployees) {
  const auto refused = [this](const auto& spoil) {
    const auto employee = complete(QStringLiteral("A001"));
    spoil(*employee);
    return !employee->Add();
  };
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setENUMBER({}); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setENAME(QStringLiteral("  ")); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setEBARCODE({}); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setHeadImg({}); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setdid(0); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setdid(-1); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setENUMBER(QStringLiteral("O'Neil")); }));
  EXPECT_TRUE(refused([this](clsEmployee& e) { e.setHeadImg(m_home.file(QStringLiteral("missing"))); }));
  EXPECT_TRUE(refused([this](clsEmployee& e) { e.setHeadImg(m_home.path()); }));
  EXPECT_EQ(count(), QStringLiteral("0"));
}

TEST_F(EmployeeStore, RemovesByNumberOnlyAndKeepsPresence) {
  addEmployee(QStringLiteral("A001"));
  addEmployee(QStringLiteral("A002"));
  m_home.execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('A001','2026-11-15 08:00:00')"));
  clsEmployee employee;
  for (const char* number : {"", "B1", "' OR '1'='1", "%"}) {
    EXPECT_FALSE(employee.Remove(QString::fromLatin1(number))) << number;
  }
  EXPECT_EQ(count(), QStringLiteral("2"));
  EXPECT_TRUE(employee.Remove(QStringLiteral("A001")));
  employee.setENUMBER(QStringLiteral("A002"));
  EXPECT_TRUE(employee.RemoveMe());
  EXPECT_EQ(count(), QStringLiteral("0"));
  EXPECT_EQ(m_home.single(QStringLiteral("SELECT COUNT(*) FROM Presence")), QStringLiteral("1"));
}

TEST_F(EmployeeStore, BarcodesAre15Digits) {
  clsEmployee employee(runtime::Random(11));
  std::set<QString> codes;
  std::set<QChar> firstDigits;
  for (int i = 0; i < 2000; ++i) {
    const QString code = employee.CreateRandomCode();
    ASSERT_EQ(code.size(), 15);
    for (const QChar digit : code) ASSERT_TRUE(digit >= u'0' && digit <= u'9') << code.toStdString();
    codes.insert(code);
    firstDigits.insert(code[0]);
  }
  EXPECT_EQ(codes.size(), 2000U);
  EXPECT_EQ(firstDigits.size(), 10U) << "the first digit may be 0";
}

TEST_F(EmployeeStore, NewBarcodesAvoidThoseInUse) {
  clsEmployee first(runtime::Random(5));
  addEmployee(QStringLiteral("A001"), first.CreateRandomCode());
  addEmployee(QStringLiteral("A002"), first.CreateRandomCode());
  clsEmployee second(runtime::Random(5));
  ASSERT_TRUE(second.UpdateEBarCode()) << second.lastFailure().toStdString();
  EXPECT_EQ(second.EBARCODE(), first.CreateRandomCode()) << "the third is the first that is free";
  EXPECT_EQ(count(), QStringLiteral("2"));
}

}  // namespace
