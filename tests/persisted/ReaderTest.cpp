#include <gtest/gtest.h>

#include <QDateTime>
#include <QRegularExpression>
#include <QStringEncoder>
#include <QTemporaryDir>

#include "../support/Files.h"
#include "../support/Thrown.h"
#include "persisted/Reader.h"
#include "runtime/RuntimeError.h"

namespace {

const QString top = QStringLiteral(
    "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882' "
    "xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882' "
    "xmlns:rs='urn:schemas-microsoft-com:rowset' xmlns:z='#RowsetSchema'>");

QString schema(const QString& columns) {
  return QStringLiteral("<s:Schema id='RowsetSchema'><s:ElementType name='row' content='eltOnly'>") +
         columns + QStringLiteral("<s:extends type='rs:rowbase'/></s:ElementType></s:Schema>");
}

QString column(const char* name, const char* type) {
  return QStringLiteral("<s:AttributeType name='%1'><s:datatype dt:type='%2'/></s:AttributeType>")
      .arg(QLatin1String(name), QLatin1String(type));
}

QString document(const QString& columns, const QString& rows) {
  return top + schema(columns) + QStringLiteral("<rs:data>") + rows + QStringLiteral("</rs:data></xml>");
}

/// A and B are texts.
QString twoTexts(const QString& rows) {
  return document(column("A", "string") + column("B", "string"), rows);
}

class RecordsetFiles : public ::testing::Test {
 protected:
  [[nodiscard]] QString path() const { return directory.filePath(QStringLiteral("in.xml")); }

  /// Rows as "a,b;a,b" with "-" for Null, or the error.
  QString read(const QByteArray& bytes) {
    support::writeFile(path(), bytes);
    QStringList rows;
    try {
      persisted::Reader reader(path());
      names.clear();
      for (const persisted::FieldDefinition& field : reader.columns()) names.append(field.name);
      std::vector<QVariant> values;
      while (reader.next(values)) {
        QStringList texts;
        for (const QVariant& value : values) {
          texts.append(!value.isValid() ? QStringLiteral("-")
                       : value.typeId() == QMetaType::QDateTime
                           ? value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
                       : value.typeId() == QMetaType::QByteArray
                           ? QString::fromLatin1(value.toByteArray().toHex())
                           : value.toString());
        }
        rows.append(texts.join(u','));
      }
    } catch (const runtime::RuntimeError& error) {
      return QStringLiteral("! ") + error.description();
    }
    return rows.join(u';');
  }
  QString read(const QString& text) { return read(text.toUtf8()); }

  /// What a value of that type is read as.
  QString value(const char* type, const QString& text) {
    return read(document(column("V", type), QStringLiteral("<z:row V='%1'/>").arg(text)));
  }

  QTemporaryDir directory;
  QStringList names;
};

bool isRefusal(const QString& result) {
  return result.startsWith(QLatin1String("! "));
}

}  // namespace

TEST_F(RecordsetFiles, TakesTheEncodingsThatXmlNames) {
  const QString text = twoTexts(QStringLiteral("<z:row A='张三' B='x'/>"));
  const QString rows = QStringLiteral("张三,x");
  EXPECT_EQ(read(text), rows);
  EXPECT_EQ(read("\xEF\xBB\xBF" + text.toUtf8()), rows);
  EXPECT_EQ(read(QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>\n") + text + u'\n'), rows);
  for (const QStringConverter::Encoding encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
    QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
    EXPECT_EQ(read(QByteArray(encoder(text))), rows);
  }
}

TEST_F(RecordsetFiles, FindsColumnsHoweverTheSchemaNamesThem) {
  EXPECT_EQ(read(document(QStringLiteral("<s:AttributeType name='B' rs:number='2'/>"
                                         "<s:AttributeType name='c0' rs:name='名 称' rs:number='1'/>"),
                          QStringLiteral("<z:row B='b' c0='a' other='z'/>"))),
            QStringLiteral("a,b"));
  EXPECT_EQ(names, (QStringList{QStringLiteral("名 称"), QStringLiteral("B")}));
  EXPECT_EQ(read(document(QStringLiteral("<s:AttributeType name='A' dt:type='int'/>"),
                          QStringLiteral("<z:row A='7'/>"))),
            QStringLiteral("7"));
  const QString beside = QStringLiteral(
      "<s:Schema id='RowsetSchema'><s:AttributeType name='A'/><s:AttributeType name='B'/>"
      "<s:ElementType name='row'><s:attribute type='B'/><s:attribute type='A'/></s:ElementType></s:Schema>");
  EXPECT_EQ(read(top + beside + QStringLiteral("<rs:data><z:row A='1' B='2'/></rs:data></xml>")),
            QStringLiteral("2,1"));
  QString other = twoTexts(QStringLiteral("<z:row A=\"1\"/>"));
  other.replace(QLatin1String("s:"), QLatin1String("schema:"))
      .replace(QLatin1String("xmlnschema:"), QLatin1String("xmlns:"));
  other.replace(QLatin1String("rschema:"), QLatin1String("rs:"));
  EXPECT_EQ(read(other.replace(QLatin1String("xmlns:s="), QLatin1String("xmlns:schema="))),
            QStringLiteral("1,-"));
}

TEST_F(RecordsetFiles, AppliesPendingChanges) {
  EXPECT_EQ(
      read(twoTexts(QStringLiteral(
          "<z:row A='1' B='plain'/>"
          "<rs:update><rs:original><z:row A='2' B='old'/></rs:original><z:row B='new'/></rs:update>"
          "<rs:update><rs:original><z:row A='3' B='old'/></rs:original><z:row rs:forcenull='B'/></rs:update>"
          "<rs:insert><z:row A='4'/><z:row A='5' B=''/></rs:insert>"
          "<rs:delete><z:row A='6'/></rs:delete>"))),
      QStringLiteral("1,plain;2,new;3,-;4,-;5,"));
  EXPECT_EQ(read(twoTexts({})), QString());
}

TEST_F(RecordsetFiles, ReadsValuesByTheirTypes) {
  EXPECT_EQ(value("int", QStringLiteral("-12")), QStringLiteral("-12"));
  EXPECT_EQ(value("i8", QStringLiteral("9007199254740993")), QStringLiteral("9007199254740993"));
  EXPECT_EQ(value("number", QStringLiteral("895.5560")), QStringLiteral("895.5560"));
  EXPECT_EQ(value("boolean", QStringLiteral("True")), QStringLiteral("-1"));
  EXPECT_EQ(value("dateTime", QStringLiteral("2004-01-31T08:05:09.123000000")),
            QStringLiteral("2004-01-31 08:05:09"));
  EXPECT_EQ(value("dateTime", QStringLiteral("2004-01-31")), QStringLiteral("2004-01-31 00:00:00"));
  EXPECT_EQ(value("time", QStringLiteral("11:25:04")), QStringLiteral("1899-12-30 11:25:04"));
  EXPECT_EQ(value("bin.hex", QStringLiteral("00Ff\r\n\t1a")), QStringLiteral("00ff1a"));
  EXPECT_EQ(value("bin.base64", QStringLiteral("AAE=")), QStringLiteral("AAE="));
  EXPECT_EQ(value("string", QStringLiteral(" a&#xd;&#xa;b ")), QStringLiteral(" a\r\nb "));
}

TEST_F(RecordsetFiles, ABadValueIsToldByRowAndColumn) {
  struct Case {
    const char* type;
    const char* text;
  };
  for (const Case& bad :
       {Case{"int", "4x"}, Case{"int", ""}, Case{"int", "99999999999999999999"}, Case{"boolean", "yes"},
        Case{"dateTime", "2004-13-41T00:00:00"}, Case{"dateTime", "2004-01-31T25:00:00"},
        Case{"dateTime", ""}, Case{"number", "1.2.3"}, Case{"float", "inf"}, Case{"bin.hex", "0"},
        Case{"bin.hex", "0g"}}) {
    const QString result =
        read(document(column("OK", "string") + column("V", bad.type),
                      QStringLiteral("<z:row OK='1'/><z:row V='%1'/>").arg(QLatin1String(bad.text))));
    EXPECT_TRUE(result.contains(QStringLiteral("第 2 条记录的“V”")))
        << bad.type << " " << result.toStdString();
  }
}

TEST_F(RecordsetFiles, RefusesWhatIsNoRecordset) {
  const QString good = twoTexts(QStringLiteral("<z:row A='1'/><z:row A='2'/>"));
  for (qsizetype length = 0; length < good.size(); length += 7) {
    EXPECT_TRUE(isRefusal(read(good.left(length)))) << length;
  }
  EXPECT_TRUE(isRefusal(read(QByteArray("ordinary text"))));
  EXPECT_TRUE(isRefusal(read(QByteArray("<html><body/></html>"))));
  EXPECT_TRUE(isRefusal(read(QString(good).replace(QLatin1String("BDC6E3F0"), QLatin1String("00000000")))));
  EXPECT_TRUE(
      isRefusal(read(QString(good).replace(QLatin1String("'#RowsetSchema'"), QLatin1String("'#Other'")))));
  EXPECT_TRUE(isRefusal(read(twoTexts(QStringLiteral("<z:row A='1'><z:row A='2'/></z:row>")))));
  EXPECT_TRUE(isRefusal(read(document(column("A", "int") + column("A", "int"), {}))));
  EXPECT_TRUE(read(twoTexts(QStringLiteral("<z:row A='\x01'/>"))).contains(QStringLiteral("控制字符")));
  EXPECT_TRUE(isRefusal(read(QByteArray())));
  ASSERT_TRUE(QFile::remove(path()));
  EXPECT_EQ(support::thrownNumber([this] { persisted::Reader{path()}; }), runtime::ErrorNumber::FileAccess);
  EXPECT_EQ(support::thrownNumber([this] { persisted::Reader{directory.path()}; }),
            runtime::ErrorNumber::FileAccess);
}

TEST_F(RecordsetFiles, ADamagedOneIsToldByNameAndInChinese) {
  static const QRegularExpression english(QStringLiteral("[a-z]{2,} [a-z]{2,}"));
  const QString good = twoTexts(QStringLiteral("<z:row A='1'/>"));
  QStringList reasons;
  const auto reasonOf = [&](const QByteArray& bytes) {
    reasons.append(read(bytes));
    EXPECT_TRUE(reasons.last().startsWith(QStringLiteral("! 文件“%1”").arg(path())))
        << reasons.last().toStdString();
    EXPECT_FALSE(english.match(reasons.last().remove(path())).hasMatch()) << reasons.last().toStdString();
    return reasons.last();
  };
  for (const char* bad : {"ordinary text",
                          "<a></b>",
                          "<a x='1' x='2'/>",
                          "<a/>more",
                          "<a/><b/>",
                          "<a>&none;</a>",
                          "<a>&#0;</a>",
                          "<a>&#1;</a>",
                          " <?xml version='1.0'?><a/>",
                          "<?xml version='1.0' encoding='none'?><a/>",
                          "<?xml version='1.0' encoding='UTF-16'?><a/>",
                          "<?xml encoding='UTF-8' version='1.0'?><a/>",
                          "<a><![CDATA[x",
                          "<x:a/>",
                          "<a xmlns:xml='b'/>",
                          "<a xmlns:xmlns='b'/>",
                          "<a xmlns:b=''/>",
                          "<a b='<'/>",
                          "<a b=c/>",
                          "<a>\xff</a>",
                          "<a",
                          "<!-- -- --><a/>",
                          ""}) {
    std::ignore = reasonOf(bad);
  }
  EXPECT_TRUE(reasonOf("<xml>\n <a></b></xml>").contains(QStringLiteral("不成对（文件的第 2 行")));
  EXPECT_TRUE(reasonOf(good.toUtf8().replace("A='1'", "A='1' A='2'")).contains(QStringLiteral("两次")));
  EXPECT_TRUE(reasonOf(good.left(good.size() - 9).toUtf8()).contains(QStringLiteral("不完整")));
}

TEST_F(RecordsetFiles, HostileFilesAreRefusedEarly) {
  EXPECT_TRUE(read(QByteArray("<!DOCTYPE xml [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]><xml>&b;</xml>"))
                  .contains(QStringLiteral("DOCTYPE")));
  EXPECT_TRUE(read(QByteArray("<a>").repeated(200000)).contains(QStringLiteral("嵌套")));
  QByteArray many("<xml ");
  for (int i = 0; i < 5000; ++i) many += "a" + QByteArray::number(i) + "='' ";
  EXPECT_TRUE(read(many + "/>").contains(QStringLiteral("属性")));
  QString columns;
  for (int i = 0; i < 3000; ++i) columns += column(("C" + QByteArray::number(i)).constData(), "int");
  EXPECT_TRUE(isRefusal(read(document(columns, {}))));
}

TEST_F(RecordsetFiles, ALongValueIsReadInReasonableTime) {
  const QByteArray digits = QByteArray(64 << 20, 'a');
  const QByteArray text =
      document(column("V", "bin.hex"), QStringLiteral("<z:row V='@'/>")).toUtf8().replace("@", digits);
  support::writeFile(path(), text);
  persisted::Reader reader(path());
  std::vector<QVariant> values;
  ASSERT_TRUE(reader.next(values));
  EXPECT_EQ(values[0].toByteArray().size(), 32 << 20);
  EXPECT_FALSE(reader.next(values));
}
