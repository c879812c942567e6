#include "foundation/clsConfiguration.h"
#include "records/RecordsFixture.h"
#include "records/clsEmployee.h"
#include "runtime/ProgramDirectory.h"
#include "support/FullDisk.h"

namespace {

class EmployeeLoad : public RecordsTest {
 protected:
  void SetUp() override { addDepartment(QStringLiteral("Sales")); }

  [[nodiscard]] static int load(clsEmployee& employee, const QString& number) {
    employee.setENUMBER(number);
    return employee.LoadByENUMBER();
  }
};

TEST_F(EmployeeLoad, FillsTheRecordAndWritesThePhotoThatGoesWithIt) {
  addEmployee(QStringLiteral("A001"), QStringLiteral("ab3"));
  {
    clsEmployee employee;
    ASSERT_EQ(load(employee, QStringLiteral("A001")), clsEmployee::Found)
        << employee.lastFailure().toStdString();
    EXPECT_EQ(employee.ENAME(), QStringLiteral("张三"));
    EXPECT_EQ(employee.DNAME(), QStringLiteral("Sales"));
    EXPECT_EQ(employee.did(), 1);
    EXPECT_EQ(employee.ID(), 1);
    EXPECT_EQ(employee.EBARCODE(), QStringLiteral("AB3"));
    EXPECT_EQ(employee.ENTERDATE(), QDateTime(QDate(2026, 11, 2), QTime(0, 0)));
    EXPECT_EQ(employee.HeadImg(), m_home.file(QStringLiteral("A001.jpg")));
    EXPECT_EQ(content(QStringLiteral("A001.jpg")), support::TestHome::tinyJpeg());
  }
  EXPECT_TRUE(photoFiles().isEmpty());
}

TEST_F(EmployeeLoad, FindsByBarcodeWithTheNumberOfTheRow) {
  addEmployee(QStringLiteral("A001"), QStringLiteral("000000000000003"));
  clsEmployee employee;
  EXPECT_EQ(employee.IsExist(), clsEmployee::NotFound) << "no barcode";
  employee.setEBARCODE(QStringLiteral("000000000000003"));
  ASSERT_EQ(employee.IsExist(), clsEmployee::Found) << employee.lastFailure().toStdString();
  EXPECT_EQ(employee.ENUMBER(), QStringLiteral("A001"));
  EXPECT_EQ(photoFiles(), QStringList(QStringLiteral("A001.jpg")));
}

TEST_F(EmployeeLoad, FindsNobodyWithoutNumberRowOrDepartment) {
  m_home.insertEmployee(QStringLiteral("lost"), QStringLiteral("李"), 5, support::TestHome::tinyJpeg(),
                        QStringLiteral("1"));
  clsEmployee employee;
  for (const char* number : {"", "B2", "lost"}) {
    EXPECT_EQ(load(employee, QString::fromLatin1(number)), clsEmployee::NotFound) << number;
    EXPECT_TRUE(employee.lastFailure().isEmpty());
  }
  EXPECT_TRUE(photoFiles().isEmpty());
}

TEST_F(EmployeeLoad, FailsOnNumbersThatAreNoFileNameAndTouchesNoOtherDirectory) {
  const QString outside = m_home.file(QStringLiteral("x.jpg"));
  ASSERT_TRUE(QDir(m_home.path()).mkdir(QStringLiteral("app")));
  support::writeFile(outside, "kept");
  runtime::setAppPath(m_home.file(QStringLiteral("app")));
  support::writeFile(settingsFile(), "[DATA]\r\nPATH=" + m_home.path().toUtf8() + "\r\n");
  for (const char* text : {"../x", "..\\x", "a/b"}) {
    const QString number = QString::fromLatin1(text);
    addEmployee(number);
    {
      clsEmployee employee;
      EXPECT_EQ(load(employee, number), clsEmployee::Failed) << text;
      EXPECT_TRUE(employee.lastFailure().contains(u'[' + number + u']'))
          << employee.lastFailure().toStdString();
    }
    EXPECT_TRUE(clsEmployee().Remove(number)) << "it can still be got rid of";
  }
  EXPECT_EQ(content(QStringLiteral("x.jpg")), "kept");
}

TEST_F(EmployeeLoad, LeavesNoHalfWrittenPhotoOnAFullDisk) {
  m_home.insertEmployee(QStringLiteral("A001"), QStringLiteral("张三"), 1, QByteArray(30000, 'x'),
                        QStringLiteral("1"));
  clsEmployee employee;
  const support::FullDisk disk(10000);
  EXPECT_EQ(load(employee, QStringLiteral("A001")), clsEmployee::Failed);
  EXPECT_TRUE(employee.lastFailure().contains(QStringLiteral("[A001]")))
      << employee.lastFailure().toStdString();
  EXPECT_TRUE(photoFiles().isEmpty());
}

TEST_F(EmployeeLoad, FailsOnSingleQuotesAndWithoutADatabase) {
  clsEmployee employee;
  EXPECT_EQ(load(employee, QStringLiteral("' OR '1'='1")), clsEmployee::Failed);
  employee.setEBARCODE(QStringLiteral("'"));
  EXPECT_EQ(employee.IsExist(), clsEmployee::Failed);
  EXPECT_FALSE(employee.lastFailure().isEmpty());

  const QString path = loseDatabase();
  EXPECT_EQ(load(employee, QStringLiteral("A001")), clsEmployee::Failed);
  EXPECT_TRUE(employee.lastFailure().contains(path));
  EXPECT_FALSE(employee.UpdateEBarCode());
  EXPECT_TRUE(employee.lastFailure().contains(path));
}

TEST_F(EmployeeLoad, GoingDeletesOnlyANormalFile) {
  const QString directory = m_home.file(QStringLiteral("dir"));
  ASSERT_TRUE(QDir().mkdir(directory));
  support::writeFile(m_home.file(QStringLiteral("copy.jpg")), "x");
  for (const QString& path : {directory, m_home.file(QStringLiteral("missing")), QStringLiteral("  "),
                              u' ' + m_home.file(QStringLiteral("copy.jpg")) + u' '}) {
    clsEmployee employee;
    employee.setHeadImg(path);
  }
  EXPECT_TRUE(QDir(directory).exists());
  EXPECT_TRUE(photoFiles().isEmpty());
}

}  // namespace
