#include <gtest/gtest.h>

#include <QDateTime>
#include <QTemporaryDir>

#include "../support/Files.h"
#include "../support/Thrown.h"
#include "persisted/Reader.h"
#include "persisted/Refusal.h"
#include "persisted/Writer.h"

namespace {

using persisted::DataType;
using persisted::FieldDefinition;
using Row = std::vector<QVariant>;

const char* const deptFile =
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
    "<rs:data>\r\n"
    "\t<z:row ID='1' DNAME='语文&#x3c;&#x26;&#x3e;&#x22;组'/>\r\n"
    "\t<z:row ID='2' DNAME=''/>\r\n"
    "\t<z:row ID='3'/>\r\n"
    "\t<rs:insert>\r\n"
    "\t\t<z:row DNAME='a&#x9;b'/>\r\n"
    "\t</rs:insert>\r\n"
    "</rs:data>\r\n</xml>";

FieldDefinition column(const char* name, DataType type = DataType::VarWChar) {
  FieldDefinition definition;
  definition.name = QString::fromUtf8(name);
  definition.type = type;
  return definition;
}

std::vector<FieldDefinition> deptColumns() {
  FieldDefinition id = column("ID", DataType::Integer);
  id.baseColumn = id.name;
  id.key = id.autoIncrement = true;
  id.nullable = false;
  FieldDefinition name = column("DNAME");
  name.baseColumn = name.name;
  name.definedSize = 50;
  id.baseTable = name.baseTable = QStringLiteral("Dept");
  return {id, name};
}

persisted::Writer::ValueOf valuesOf(const Row& row) {
  return [&row](int column) { return row[static_cast<std::size_t>(column)]; };
}

class RecordsetWriter : public ::testing::Test {
 protected:
  [[nodiscard]] QString path() const { return directory.filePath(QStringLiteral("out.xml")); }
  void write(const std::vector<FieldDefinition>& columns, const std::vector<Row>& rows) const {
    persisted::Writer writer(path(), columns);
    for (const Row& row : rows) writer.row(valuesOf(row));
    writer.finish();
  }

  QTemporaryDir directory;
};

}  // namespace

TEST_F(RecordsetWriter, WritesSchemaAndRowsByteForByte) {
  persisted::Writer writer(path(), deptColumns());
  for (const Row& row :
       {Row{1, QStringLiteral("语文<&>\"组")}, Row{2, QString(QLatin1String(""))}, Row{3, QVariant()}}) {
    writer.row(valuesOf(row));
  }
  writer.pendingRow(valuesOf({QVariant(), QStringLiteral("a\tb")}));
  writer.finish();
  EXPECT_EQ(support::contentOf(path()), deptFile);
}

TEST_F(RecordsetWriter, EveryTypeComesBackAsItWas) {
  const std::vector<FieldDefinition> columns = {
      column("I", DataType::Integer),      column("D", DataType::Double),  column("M", DataType::Date),
      column("B", DataType::Boolean),      column("N", DataType::Decimal), column("文", DataType::VarWChar),
      column("L", DataType::LongVarBinary)};
  const Row row = {qlonglong{9007199254740993},
                   0.1 + 0.2,
                   QDateTime(QDate(2026, 2, 3), QTime(8, 5, 9)),
                   -1,
                   QStringLiteral("895.5560"),
                   QStringLiteral(" 一\r\n二\t "),
                   QByteArray("\0\xff'<", 4)};
  write(columns, {row, Row(columns.size())});
  persisted::Reader reader(path());
  ASSERT_EQ(reader.columns().size(), columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    EXPECT_EQ(reader.columns()[i].name, columns[i].name);
    EXPECT_EQ(reader.columns()[i].type, columns[i].type);
  }
  Row values;
  ASSERT_TRUE(reader.next(values));
  EXPECT_EQ(values, row);
  ASSERT_TRUE(reader.next(values));
  EXPECT_EQ(values, Row(columns.size())) << "Nulls";
  EXPECT_FALSE(reader.next(values));
}

TEST_F(RecordsetWriter, WhatCannotBeWrittenLeavesTheOldFile) {
  support::writeFile(path(), "old");
  const std::vector<FieldDefinition> columns = {column("DNAME")};
  for (const QString& bad : {QStringLiteral("bad\x01"), QString(QChar(0xD800)), QString(QChar(0xFFFF))}) {
    const auto error = support::thrown([&] { write(columns, {{QStringLiteral("good")}, {bad}}); });
    EXPECT_EQ(error.number(), persisted::invalidFormat);
    EXPECT_TRUE(error.description().contains(QStringLiteral("第 2 条记录的“DNAME”"))) << error.what();
  }
  EXPECT_EQ(support::contentOf(path()), "old");
}

TEST(AttributeNames, OtherThanPlainOrTakenOnesAreMadeOfTheirPlace) {
  std::vector<FieldDefinition> columns;
  for (const char* name : {"ID", "两字", "id", "1st", "A_2"}) columns.push_back(column(name));
  EXPECT_EQ(persisted::attributeNames(columns), (std::vector<QByteArray>{"ID", "c1", "c2", "c3", "A_2"}));
}
