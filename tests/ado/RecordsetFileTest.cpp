#include <gtest/gtest.h>

#include <QDateTime>

#include "../support/Files.h"
#include "AdoFile.h"
#include "persisted/Reader.h"

namespace {

class RecordsetFile : public AdoFile {
 protected:
  [[nodiscard]] QString xml() const { return file("out.xml"); }
  void save(ado::Recordset& rows) const { rows.Save(xml(), ado::PersistFormat::Xml); }
};

}  // namespace

TEST_F(RecordsetFile, HoldsEveryRowAndWhatTheTableSaysOfItsColumns) {
  execute("INSERT INTO Dept(DNAME) VALUES('语文组')");
  execute("INSERT INTO Dept(DNAME) VALUES(NULL)");
  ado::Recordset rows;
  open(rows, "SELECT ID, DNAME FROM Dept ORDER BY ID");
  rows.MoveNext();
  save(rows);
  EXPECT_FALSE(rows.IsEOF()) << "the position stays";
  EXPECT_TRUE(support::contentOf(xml()).endsWith(
      "<rs:data>\r\n\t<z:row ID='1' DNAME='语文组'/>\r\n\t<z:row ID='2'/>\r\n</rs:data>\r\n</xml>"));
  persisted::Reader reader(xml());
  const ado::FieldDefinition& id = reader.columns()[0];
  EXPECT_TRUE(id.key && id.autoIncrement && !id.nullable && id.type == ado::DataType::Integer);
  const ado::FieldDefinition& name = reader.columns()[1];
  EXPECT_TRUE(!name.key && !name.autoIncrement && name.nullable);
  EXPECT_EQ(name.definedSize, 50);
  EXPECT_EQ(name.baseTable + u'.' + name.baseColumn, QStringLiteral("Dept.DNAME"));
}

TEST_F(RecordsetFile, APendingRowIsWrittenAndNotStored) {
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

TEST_F(RecordsetFile, LongBinariesOfManyRowsComeBack) {
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
  persisted::Reader reader(xml());
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

TEST_F(RecordsetFile, WhatCannotBeWrittenLeavesTheOldFile) {
  support::writeFile(xml(), "old");
  execute("INSERT INTO Dept(DNAME) VALUES('bad' || char(1))");
  ado::Recordset rows;
  open(rows, "SELECT ID, DNAME FROM Dept");
  EXPECT_NE(failure([&] { save(rows); }), 0);
  EXPECT_TRUE(words.contains(QStringLiteral("第 1 条记录的“DNAME”"))) << words.toStdString();
  EXPECT_EQ(support::contentOf(xml()), "old");

  ado::Recordset whole;
  open(whole, "SELECT 1 AS N");
  ASSERT_TRUE(QFile::setPermissions(xml(), QFile::ReadOwner));
  EXPECT_NE(failure([&] { save(whole); }), 0);
  EXPECT_EQ(support::contentOf(xml()), "old");
}

TEST_F(RecordsetFile, WhatIsWrongWithItIsAnErrorOfTheRecordset) {
  ado::Recordset rows;
  EXPECT_NE(failure([&] { rows.Open(xml()); }), 0);
  support::writeFile(xml(), "<xml>");
  EXPECT_NE(failure([&] { rows.Open(xml()); }), 0);
  EXPECT_TRUE(words.contains(xml())) << words.toStdString();
  EXPECT_EQ(rows.State(), ado::ObjectState::Closed);
}

TEST_F(RecordsetFile, UnassignedChangesAreNotSavedSilently) {
  execute("INSERT INTO Dept(DNAME) VALUES('old')");
  ado::Recordset rows;
  openChangeable(rows, "SELECT * FROM Dept");
  field(rows, "DNAME").setValue(QStringLiteral("new"));
  EXPECT_EQ(failure([&] { save(rows); }), number(ado::AdoErrorNumber::OperationNotAllowed));
}
