#include "ado/Recordset.h"
#include "records/EmployeeFile.h"
#include "records/RecordExport.h"
#include "records/RecordsFixture.h"
#include "records/clsEmployee.h"
#include "runtime/RuntimeError.h"

namespace {

class EmployeeFiles : public RecordsTest {
 protected:
  void SetUp() override { addDepartment(QStringLiteral("教务处")); }

  /// An employee that can be saved, with a photo file of its own.
  std::unique_ptr<clsEmployee> complete() const {
    auto employee = std::make_unique<clsEmployee>();
    employee->setENAME(QStringLiteral(" <王五>&'\" "));
    employee->setdid(7);
    employee->setENTERDATE(QDateTime(QDate(2026, 11, 3), QTime(9, 30)));
    employee->setHeadImg(m_home.file(QStringLiteral("temp.jpg")));
    support::writeFile(employee->HeadImg(), m_photo);
    return employee;
  }
  /// As a file of one row with these attributes.
  [[nodiscard]] int load(EmployeeFile& file, const QByteArray& attributes) const {
    support::writeFile(
        m_file,
        "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882' "
        "xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882' xmlns:rs='urn:schemas-microsoft-com:rowset' "
        "xmlns:z='#RowsetSchema'><s:Schema id='RowsetSchema'><s:ElementType name='row' content='eltOnly'>"
        "<s:attribute type='ENAME'/><s:attribute type='DID'/><s:attribute type='ENTERDATE'/>"
        "<s:attribute type='HEADIMG'/><s:extends type='rs:rowbase'/></s:ElementType>"
        "<s:AttributeType name='ENAME' rs:number='1'><s:datatype dt:type='string'/></s:AttributeType>"
        "<s:AttributeType name='DID' rs:number='2'><s:datatype dt:type='int'/></s:AttributeType>"
        "<s:AttributeType name='ENTERDATE' rs:number='3'><s:datatype dt:type='dateTime'/></s:AttributeType>"
        "<s:AttributeType name='HEADIMG' rs:number='4'><s:datatype dt:type='bin.hex'/></s:AttributeType>"
        "</s:Schema><rs:data><z:row " +
            attributes + "/></rs:data></xml>");
    return file.Load(m_file);
  }
  [[nodiscard]] int rowsOf(const QString& path) const {
    ado::Recordset rows;
    rows.Open(path);
    return rows.RecordCount();
  }

  QByteArray m_photo = QByteArray("\xff\xd8\0any bytes\r\n", 14);
  QString m_file = m_home.file(QStringLiteral("new.xml"));
};

TEST_F(EmployeeFiles, GiveBackWhatWasSavedAndNothingElse) {
  support::writeFile(m_file, "old");
  const auto employee = complete();
  employee->setENUMBER(QStringLiteral("A1"));
  employee->setEBARCODE(QStringLiteral("123456789012345"));
  ASSERT_TRUE(employee->savetoXML(m_file)) << employee->lastFailure().toStdString();
  EXPECT_EQ(m_home.single(QStringLiteral("SELECT COUNT(*) FROM Employee")), QStringLiteral("0"));

  EmployeeFile file;
  ASSERT_EQ(file.Load(m_file), EmployeeFile::Loaded) << file.lastFailure().toStdString();
  EXPECT_EQ(file.name(), QStringLiteral("<王五>&'\""));
  EXPECT_EQ(file.department(), std::int16_t{7});
  EXPECT_EQ(file.enterDate(), QStringLiteral("2026-11-03 09:30:00"));
  EXPECT_EQ(file.photo(), m_photo);
  ado::Recordset row;
  row.Open(m_file);
  EXPECT_EQ(row.RecordCount(), 1);
  EXPECT_FALSE(row.Fields(QStringLiteral("ENUMBER")).Value().isValid());
  EXPECT_FALSE(row.Fields(QStringLiteral("EBARCODE")).Value().isValid());
}

TEST_F(EmployeeFiles, AreNotWrittenForIncompleteEmployeesAndTheOldOneStays) {
  support::writeFile(m_file, "old");
  const auto refused = [this](const auto& spoil) {
    const auto employee = complete();
    spoil(*employee);
    return !employee->savetoXML(m_file);
  };
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setENAME(QStringLiteral(" ")); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setdid(0); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setHeadImg({}); }));
  EXPECT_TRUE(refused([this](clsEmployee& e) { e.setHeadImg(m_home.file(QStringLiteral("missing"))); }));
  EXPECT_TRUE(refused([](clsEmployee& e) { e.setENAME(QStringLiteral("a\x01")); })) << "not XML";
  EXPECT_EQ(content(QStringLiteral("new.xml")), "old");
  loseDatabase();
  EXPECT_TRUE(refused([](clsEmployee&) {}));
  EXPECT_EQ(content(QStringLiteral("new.xml")), "old");
}

TEST_F(EmployeeFiles, SayHowFarTheyCouldBeRead) {
  EmployeeFile file;
  EXPECT_EQ(load(file, "ENAME='a' DID='2' ENTERDATE='2004-02-03' HEADIMG='ffd8'"), EmployeeFile::Loaded);
  EXPECT_EQ(file.enterDate(), QStringLiteral("2004-02-03"));
  EXPECT_EQ(load(file, "ENAME='a' DID='2' ENTERDATE='2004-02-03'"), EmployeeFile::Failed);
  EXPECT_TRUE(file.lastFailure().contains(QStringLiteral("没有照片"))) << file.lastFailure().toStdString();
  EXPECT_EQ(file.enterDate(), QStringLiteral("2004-02-03"));
  EXPECT_FALSE(file.photo());
  EXPECT_EQ(load(file, "ENAME='b' DID='40000' ENTERDATE='2004-02-03' HEADIMG='ffd8'"), EmployeeFile::Failed);
  EXPECT_TRUE(file.lastFailure().contains(QStringLiteral("“%1”的部门（列 DID）").arg(m_file)))
      << file.lastFailure().toStdString();
  EXPECT_TRUE(file.lastFailure().contains(QStringLiteral("40000 不在 -32768 到 32767 之间")));
  EXPECT_EQ(file.name(), QStringLiteral("b"));
  EXPECT_FALSE(file.enterDate()) << "that of the file before";
  EXPECT_EQ(load(file, "ENAME='c' DID='2' ENTERDATE='2004-13-41' HEADIMG='ffd8'"), EmployeeFile::Failed);
  EXPECT_TRUE(file.lastFailure().contains(QStringLiteral("ENTERDATE"))) << file.lastFailure().toStdString();
}

TEST_F(EmployeeFiles, CanBeMissingEmptyOrSomethingElse) {
  EmployeeFile file;
  EXPECT_EQ(file.Load({}), EmployeeFile::Missing);
  EXPECT_EQ(file.Load(m_home.path()), EmployeeFile::Missing);
  EXPECT_TRUE(file.lastFailure().contains(m_home.path()));
  ASSERT_EQ(exportAllEmployees(m_file), 0);
  EXPECT_EQ(file.Load(m_file), EmployeeFile::NoRow);
  ASSERT_EQ(exportDepartments(m_file), 1);
  EXPECT_EQ(file.Load(m_file), EmployeeFile::Failed);
  EXPECT_NE(file.lastFailure(), QString());
}

TEST_F(EmployeeFiles, ExportsHoldTheChosenRecordsAndTheirPhotos) {
  for (const auto* number : {u"A1", u"A2", u"x#1"}) addEmployee(QString::fromUtf16(number));
  EXPECT_EQ(exportEmployees({QStringLiteral("x#1"), QStringLiteral("gone"), QStringLiteral("A1")}, m_file),
            2);
  ado::Recordset rows;
  rows.Open(m_file);
  EXPECT_EQ(rows.Fields(QStringLiteral("ENUMBER")).Value().toString(), QStringLiteral("A1"));
  EXPECT_EQ(rows.Fields(QStringLiteral("HEADIMG")).Value().toByteArray(), support::TestHome::tinyJpeg());
  EXPECT_EQ(exportAllEmployees(m_file), 3);
  EXPECT_EQ(rowsOf(m_file), 3);
  EXPECT_EQ(photoFiles(), QStringList());
}

TEST_F(EmployeeFiles, AnExportThatFailsLeavesTheOldFile) {
  addEmployee(QStringLiteral("A1"));
  support::writeFile(m_file, "old");
  EXPECT_THROW(exportEmployees({}, m_file), runtime::RuntimeError);
  EXPECT_THROW(exportEmployees({QStringLiteral("A'1")}, m_file), runtime::RuntimeError);
  EXPECT_THROW(exportDepartments(m_home.file(QStringLiteral("none/d.xml"))), runtime::RuntimeError);
  m_home.execute(QStringLiteral("UPDATE Employee SET ENAME = 'a' || char(1)"));
  EXPECT_THROW(exportAllEmployees(m_file), runtime::RuntimeError);
  EXPECT_EQ(content(QStringLiteral("new.xml")), "old");
}

}  // namespace
