#include <gtest/gtest.h>

#include <QDateTime>

#include "../support/Files.h"
#include "AdoFile.h"
#include "ado/PersistedReader.h"
#include "ado/PersistedWriter.h"

namespace {

const char* const deptSchema =
    "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882'\r\n"
    "\txmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882'\r\n"
    "\txmlns:rs='urn:schemas-microsoft-com:rowset'\r\n"
    "\txmlns:z='#RowsetSchema'>\r\n"
    "<s:Schema id='RowsetSchema'>\r\n"
    "\t<s:ElementType name='row' content='eltOnly' rs:updatable='true'>\r\n"
    "\t\t<s:AttributeType name='ID' rs:number='1' rs:maydefer='true' rs:writeunknown='true' "
    "rs:basetable='Dept' "
    "rs:basecolumn='ID' rs:keycolumn='true' rs:autoincrement='true'>\r\n"
    "\t\t\t<s:datatype dt:type='int' dt:maxLength='4' rs:precision='10' rs:fixedlength='true'/>\r\n"
    "\t\t</s:AttributeType>\r\n"
    "\t\t<s:AttributeType name='DNAME' rs:number='2' rs:nullable='true' rs:maydefer='true' rs:write='true' "
    "rs:basetable='Dept' rs:basecolumn='DNAME'>\r\n"
    "\t\t\t<s:datatype dt:type='string' dt:maxLength='50'/>\r\n"
    "\t\t</s:AttributeType>\r\n"
    "\t\t<s:extends type='rs:rowbase'/>\r\n"
    "\t</s:ElementType>\r\n"
    "</s:Schema>\r\n"
    "<rs:data>\r\n";

class PersistedWriter : public AdoFile {
 protected:
  [[nodiscard]] QString xml() const { return file("out.xml"); }
  void save(ado::Recordset& rows) const { rows.Save(xml(), ado::PersistFormat::Xml); }
};

}  // namespace

TEST_F(PersistedWriter, WritesSchemaAndRowsByteForByte) {
  execute("INSERT INTO Dept(DNAME) VALUES('语文<&>\"组')");
  execute("INSERT INTO Dept(DNAME) VALUES('')");
  execute("INSERT INTO Dept(DNAME) VALUES(NULL)");
  execute(
      "INSERT INTO Dept(DNAME) VALUES('a"
      "\t"
      "b')");
  ado::Recordset rows;
  open(rows, "SELECT ID, DNAME FROM Dept ORDER BY ID");
  save(rows);
  EXPECT_EQ(support::contentOf(xml()), QByteArray(deptSchema) +
                                           "\t<z:row ID='1' DNAME='语文&#x3c;&#x26;&#x3e;&#x22;组'/>\r\n"
                                           "\t<z:row ID='2' DNAME=''/>\r\n"
                                           "\t<z:row ID='3'/>\r\n"
                                           "\t<z:row ID='4' DNAME='a&#x9;b'/>\r\n"
                                           "</rs:data>\r\n</xml>");
  EXPECT_FALSE(rows.IsEOF()) << "the position stays";
}

TEST_F(PersistedWriter, APendingRowIsWrittenAndNotStored) {
  ado::Recordset rows;
  openChangeable(rows, "select * from Employee where 1 = 0");
  rows.AddNew();
  const QByteArray photo = QByteArray::fromHex("ffd8ff00");
  field(rows, "DID").setValue(3);
  field(rows, "HEADIMG").setValue(photo);
  field(rows, "ENTERDATE").setValue(QDateTime(QDate(2026, 2, 3), QTime(0, 0)));
  save(rows);
  rows.Delete();
  rows.Close();
  EXPECT_EQ(column("SELECT COUNT(*) FROM Employee"), QStringLiteral("0"));
  EXPECT_TRUE(support::contentOf(xml()).contains(
      "\t<rs:insert>\r\n\t\t<z:row DID='3' ENTERDATE='2026-02-03T00:00:00' "
      "HEADIMG='ffd8ff00'/>\r\n\t</rs:insert>\r\n"));

  rows.Open(xml());
  ASSERT_EQ(rows.RecordCount(), 1);
  EXPECT_FALSE(field(rows, "ID").Value().isValid());
  EXPECT_EQ(field(rows, "did").Value(), QVariant(3));
  EXPECT_EQ(field(rows, "HEADIMG").Value().toByteArray(), photo);
  EXPECT_EQ(field(rows, "ENTERDATE").Value().toDateTime(), QDateTime(QDate(2026, 2, 3), QTime(0, 0)));
  EXPECT_EQ(field(rows, "HEADIMG").Definition().type, ado::DataType::LongVarBinary);
  EXPECT_EQ(field(rows, "ENUMBER").Definition().definedSize, 20);
  rows.MoveNext();
  EXPECT_TRUE(rows.IsEOF());
  EXPECT_EQ(failure([&] { rows.AddNew(); }), number(ado::AdoErrorNumber::OperationNotAllowed));
}

TEST_F(PersistedWriter, LongBinariesOfManyRowsComeBack) {
  for (int i = 1; i <= 50; ++i) {
    execute(QStringLiteral("INSERT INTO Employee(ENUMBER, HEADIMG) VALUES('%1', zeroblob(%2))")
                .arg(i)
                .arg(i % 3 == 0 ? 0 : i * 1000)
                .toUtf8()
                .constData());
  }
  ado::Recordset rows;
  open(rows, "SELECT * FROM Employee ORDER BY ID");
  save(rows);
  ado::PersistedReader reader(xml());
  std::vector<QVariant> values;
  int count = 0;
  while (reader.next(values)) {
    ++count;
    EXPECT_EQ(values[1].toString(), QString::number(count));
    const QByteArray expected(count % 3 == 0 ? 0 : count * 1000, '\0');
    EXPECT_EQ(values[4].toByteArray(), expected);
  }
  EXPECT_EQ(count, 50);
}

TEST_F(PersistedWriter, WhatCannotBeWrittenLeavesTheOldFile) {
  support::writeFile(xml(), "old");
  execute("INSERT INTO Dept(DNAME) VALUES('bad' || char(1))");
  ado::Recordset rows;
  open(rows, "SELECT ID, DNAME FROM Dept");
  EXPECT_NE(failure([&] { save(rows); }), 0);
  EXPECT_TRUE(words.contains(QStringLiteral("第 1 行的“DNAME”"))) << words.toStdString();
  EXPECT_EQ(support::contentOf(xml()), "old");

  ado::Recordset whole;
  open(whole, "SELECT 1 AS N");
  ASSERT_TRUE(QFile::setPermissions(xml(), QFile::ReadOwner));
  EXPECT_NE(failure([&] { save(whole); }), 0);
  EXPECT_EQ(support::contentOf(xml()), "old");
}

TEST_F(PersistedWriter, UnassignedChangesAreNotSavedSilently) {
  execute("INSERT INTO Dept(DNAME) VALUES('old')");
  ado::Recordset rows;
  openChangeable(rows, "SELECT * FROM Dept");
  field(rows, "DNAME").setValue(QStringLiteral("new"));
  EXPECT_EQ(failure([&] { save(rows); }), number(ado::AdoErrorNumber::OperationNotAllowed));
}

TEST(PersistedNames, OtherThanPlainOrTakenNamesGetOnesOfTheirPlace) {
  std::vector<ado::FieldDefinition> columns(5);
  const char* const names[] = {"ID", "两字", "id", "1st", "A_2"};
  for (std::size_t i = 0; i < columns.size(); ++i) columns[i].name = QString::fromUtf8(names[i]);
  EXPECT_EQ(ado::attributeNames(columns), (std::vector<QByteArray>{"ID", "c1", "c2", "c3", "A_2"}));
}
