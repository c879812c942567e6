#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/Running.h"
#include "support/Files.h"
#include "support/TestHome.h"

namespace {

using support::contentOf;

/// Files with records in XML: written, shown and taken in.
class Xml : public testing::Test {
 protected:
  Xml() {
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    support::writeFile(picture, support::TestHome::tinyJpeg());
  }

  [[nodiscard]] Outcome command(const QStringList& arguments) const { return runIn(home.path(), arguments); }
  [[nodiscard]] Outcome makeFile(const QString& name, const QString& dept,
                                 const QStringList& more = {}) const {
    return command(QStringList{QStringLiteral("employee-xml"), QStringLiteral("--name"), name,
                               QStringLiteral("--dept"), dept, QStringLiteral("--photo"), picture,
                               QStringLiteral("--out"), file} +
                   more);
  }
  [[nodiscard]] Outcome import(const QString& number) const {
    return command({QStringLiteral("import"), file, QStringLiteral("--number"), number});
  }
  [[nodiscard]] Outcome show(const QStringList& more = {}) const {
    return command(QStringList{QStringLiteral("show-xml"), file} + more);
  }
  [[nodiscard]] QString employees() const {
    return home.single(QStringLiteral("SELECT COUNT(*) FROM Employee"));
  }
  /// The home holds the picture of the user and no photo of the program's.
  void expectOnlyTheUsersPicture() const {
    EXPECT_EQ(QDir(home.path()).entryList({QStringLiteral("*.jpg")}),
              QStringList(QStringLiteral("mine.jpg")));
    EXPECT_EQ(contentOf(picture), support::TestHome::tinyJpeg());
  }
  void expectFailure(const Outcome& outcome, const QString& why) const {
    EXPECT_EQ(outcome.code, 1) << why.toStdString();
    EXPECT_EQ(outcome.out, QString());
    EXPECT_TRUE(outcome.err.contains(why)) << outcome.err.toStdString();
    expectOnlyTheUsersPicture();
  }

  support::TestHome home;
  const QString picture = home.file(QStringLiteral("mine.jpg"));
  const QString file = home.file(QStringLiteral("new.xml"));
  const QString department = QStringLiteral("教务处");
};

TEST_F(Xml, AnEmployeeGoesThroughAFileIntoTheDatabase) {
  const Outcome made =
      makeFile(QStringLiteral("王五"), department, {QStringLiteral("--date"), QStringLiteral("2026-11-03")});
  EXPECT_EQ(made.out, QStringLiteral("已写入员工“王五”的文件：%1\n").arg(file)) << made.err.toStdString();
  expectOnlyTheUsersPicture();
  const QByteArray written = contentOf(file);
  const Outcome imported = import(QStringLiteral(" A9 "));
  EXPECT_EQ(imported.code, 0) << imported.err.toStdString();
  const QString barcode =
      home.single(QStringLiteral("SELECT EBARCODE FROM Employee WHERE ENUMBER = 'A9' AND DID = 1 AND "
                                 "ENAME = '王五' AND ENTERDATE LIKE '2026-11-03%'"));
  EXPECT_EQ(barcode.size(), 15);
  EXPECT_EQ(imported.out, QStringLiteral("已导入员工“A9”（王五，教务处），条码 %1\n").arg(barcode));
  expectOnlyTheUsersPicture();
  EXPECT_EQ(contentOf(file), written);
  expectFailure(import(QStringLiteral("a9")), QStringLiteral("已存在"));
  EXPECT_EQ(employees(), QStringLiteral("1"));
}

TEST_F(Xml, NoFileIsMadeOfWhatCannotBeImported) {
  expectFailure(makeFile(QStringLiteral("王五"), QStringLiteral("没有")), QStringLiteral("没有"));
  expectFailure(makeFile(QStringLiteral("王\u0001"), department), QStringLiteral("ENAME"));
  EXPECT_EQ(makeFile(QStringLiteral(" "), department).code, 2);
  EXPECT_EQ(
      makeFile(QStringLiteral("王五"), department, {QStringLiteral("--date"), QStringLiteral("2026-2-30")})
          .code,
      2);
  EXPECT_FALSE(QFile::exists(file));
}

TEST_F(Xml, NothingIsImportedOfAFileThatIsWrong) {
  expectFailure(import(QStringLiteral("A1")), QStringLiteral("找不到文件"));
  ASSERT_EQ(makeFile(QStringLiteral("王五"), department).code, 0);
  const QByteArray good = contentOf(file);
  EXPECT_EQ(import(QStringLiteral("../A1")).code, 2);
  home.insertEmployee(QStringLiteral("lost"), QStringLiteral("某"), 9, {});
  expectFailure(import(QStringLiteral("lost")), QStringLiteral("已存在"));
  support::writeFile(file, good.left(good.size() - 9));
  expectFailure(import(QStringLiteral("A1")), QString());
  support::writeFile(file, QByteArray(good).replace("DID='1'", "DID='40000'"));
  expectFailure(import(QStringLiteral("A1")), QStringLiteral("DID"));
  support::writeFile(file, QByteArray(good).replace("DID='1'", "DID='7'"));
  expectFailure(import(QStringLiteral("A1")), QStringLiteral("部门"));
  const qsizetype photo = good.indexOf("HEADIMG='") + 9;
  support::writeFile(file, QByteArray(good).replace(photo, good.indexOf('\'', photo) - photo, "414243"));
  expectFailure(import(QStringLiteral("A1")), QStringLiteral("照片"));
  EXPECT_EQ(employees(), QStringLiteral("1"));
}

TEST_F(Xml, ExportsAreShownWithTheirColumns) {
  home.insertEmployee(QStringLiteral("A1"), QStringLiteral("张\t三"), 1, support::TestHome::tinyJpeg());
  home.insertEmployee(QStringLiteral("A2"), QStringLiteral("李四"), 9, {});
  const Outcome exported =
      command({QStringLiteral("export"), QStringLiteral("employees"), QStringLiteral("--out"), file});
  EXPECT_EQ(exported.out, QStringLiteral("已导出 2 名员工：%1\n").arg(file)) << exported.err.toStdString();

  const QString hash = QString::fromLatin1(
      QCryptographicHash::hash(support::TestHome::tinyJpeg(), QCryptographicHash::Sha256).toHex());
  const QString table = show().out;
  EXPECT_TRUE(table.startsWith(QStringLiteral("列\t类型\t大小\nID\t整数\t4\n"))) << table.toStdString();
  EXPECT_TRUE(table.contains(QStringLiteral("张 三"))) << table.toStdString();
  EXPECT_TRUE(table.contains(QStringLiteral("字节 SHA-256 ") + hash)) << table.toStdString();

  const QJsonObject json = QJsonDocument::fromJson(show({QStringLiteral("--json")}).out.toUtf8()).object();
  EXPECT_EQ(json[u"columns"][0][u"type"], QStringLiteral("integer"));
  const QJsonArray rows = json[u"rows"].toArray();
  ASSERT_EQ(rows.size(), 2);
  EXPECT_EQ(rows[0][u"DID"], 1);
  EXPECT_EQ(rows[0][u"ENAME"], QStringLiteral("张\t三"));
  EXPECT_EQ(rows[0][u"ENTERDATE"], QStringLiteral("2026-11-02"));
  EXPECT_EQ(rows[0][u"HEADIMG"][u"sha256"], hash);
  EXPECT_TRUE(rows[1][u"HEADIMG"].isNull());
}

TEST_F(Xml, OtherTypesNamesTwiceAndBadValues) {
  const auto write = [this](const QByteArray& number) {
    support::writeFile(
        file,
        "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882' "
        "xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882' xmlns:rs='urn:schemas-microsoft-com:rowset' "
        "xmlns:z='#RowsetSchema'><s:Schema id='RowsetSchema'><s:ElementType name='row' content='eltOnly'>"
        "<s:AttributeType name='A' rs:number='1'><s:datatype dt:type='boolean'/></s:AttributeType>"
        "<s:AttributeType name='c1' rs:name='A' rs:number='2'><s:datatype dt:type='i8'/></s:AttributeType>"
        "<s:AttributeType name='N' rs:number='3'><s:datatype dt:type='number'/></s:AttributeType>"
        "<s:extends type='rs:rowbase'/></s:ElementType></s:Schema>"
        "<rs:data><z:row A='True' c1='9007199254740993' N='0.10'/><z:row N='" +
            number + "'/></rs:data></xml>");
  };
  write("1");
  EXPECT_TRUE(show().out.contains(QStringLiteral("\n是\t9007199254740993\t0.10\n<Null>\t<Null>\t1\n")));
  const QString json = show({QStringLiteral("--json")}).out;
  EXPECT_TRUE(
      json.endsWith(QStringLiteral("\"rows\":[\n{\"A\":true,\"A2\":9007199254740993,\"N\":\"0.10\"},\n"
                                   "{\"A\":null,\"A2\":null,\"N\":\"1\"}\n]}\n")))
      << json.toStdString();
  write("one");
  const Outcome outcome = show();
  EXPECT_EQ(outcome.code, 1);
  EXPECT_TRUE(outcome.err.contains(u'2') && outcome.err.contains(u'N')) << outcome.err.toStdString();
}

TEST_F(Xml, AnExportNeedsAKindAndAFileOfTheUsers) {
  const auto exported = [this](const char* what, const QString& out) {
    return command({QStringLiteral("export"), QString::fromLatin1(what), QStringLiteral("--out"), out});
  };
  EXPECT_EQ(exported("departments", file).out, QStringLiteral("已导出 1 个部门：%1\n").arg(file));
  EXPECT_EQ(exported("presence", file).code, 2);
  expectFailure(exported("departments", home.databaseFile()), QStringLiteral("不能用作输出"));
}

}  // namespace
