#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "exchange/RosterCsv.h"
#include "runtime/CodePage.h"
#include "support/Files.h"
#include "support/Thrown.h"

namespace {

class RosterCsv : public ::testing::Test {
 protected:
  std::vector<RosterRow> read(const QByteArray& bytes) const {
    support::writeFile(path, bytes);
    return readRoster(path);
  }
  QString refusal(const QByteArray& bytes) const {
    support::writeFile(path, bytes);
    return support::thrown([this] { std::ignore = readRoster(path); }).description();
  }

  static QString valuesOf(const RosterRow& row) {
    return QStringList{row.number, row.name, row.department, row.date, row.barcode}.join(u'|');
  }

  QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("r.csv"));
  const QString text = QStringLiteral("编号,姓名,部门,录入日期\r\nA1, 张三\u3000,教务处,2026-9-1\r\n");
};

}  // namespace

TEST_F(RosterCsv, IsReadInEachEncoding) {
  for (const QByteArray& bytes :
       {text.toUtf8(), "\xEF\xBB\xBF" + text.toUtf8(), runtime::toCodePage(text).value()}) {
    const auto rows = read(bytes);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(valuesOf(rows[0]), QStringLiteral("A1|张三|教务处|2026-9-1|"));
    EXPECT_EQ(rows[0].fault, QString());
  }
}

TEST_F(RosterCsv, ColumnsAreFoundByTheirHeadings) {
  const auto rows = read(QStringLiteral("\n签到条码,所属部门,录入日期,,姓名,员工号\n"
                                        "1,处,,,甲,A\n ,,\n,,,,,\n2,处,,x,乙,\"B\"\n")
                             .toUtf8());
  ASSERT_EQ(rows.size(), 2u) << "lines without a value are left out";
  EXPECT_EQ(valuesOf(rows[0]), QStringLiteral("A|甲|处||1"));
  EXPECT_EQ(rows[0].line, 3);
  EXPECT_EQ(rows[1].line, 6);
  EXPECT_EQ(rows[1].fault, QStringLiteral("第 4 列没有标题"));
}

TEST_F(RosterCsv, LinesThatCannotBeTakenApartSaySo) {
  const auto rows = read(text.toUtf8() + "A2,x,y\nA3,x,y,z,\n\"A4\"5,x,y,z\nA5,\xB1,y,z\nA6,\"a\nb\",y,z\n");
  ASSERT_EQ(rows.size(), 6u);
  EXPECT_EQ(rows[1].fault, QStringLiteral("应有 4 列，实有 3 列"));
  EXPECT_EQ(rows[2].fault, QStringLiteral("应有 4 列，实有 5 列"));
  EXPECT_EQ(rows[3].fault, QStringLiteral("引号后面有多余的文字"));
  EXPECT_EQ(rows[4].fault, QStringLiteral("文字编码有误，应与标题行相同"));
  EXPECT_EQ(rows[5].place(), QStringLiteral("第 7–8 行"));
  // Half a character at the end of a field.
  EXPECT_NE(read(runtime::toCodePage(text).value() + "A2,\xB1,y,z\n")[1].fault, QString());
}

TEST_F(RosterCsv, AHeadingThatDoesNotFitIsRefused) {
  EXPECT_TRUE(refusal("").contains(QStringLiteral("是空的")));
  EXPECT_TRUE(refusal("A1,x,y,z\n").contains(QStringLiteral("第 1 行（标题行）：缺少“编号”列")));
  EXPECT_TRUE(
      refusal(QStringLiteral("编号,姓名,部门\n").toUtf8()).contains(QStringLiteral("缺少“录入日期”列")));
  EXPECT_TRUE(refusal(QStringLiteral("编号,姓名,部门,录入日期,条形码\n").toUtf8())
                  .contains(QStringLiteral("不认识的列“条形码”")));
  EXPECT_TRUE(refusal(QStringLiteral("编号,姓名,部门,录入日期,员工号\n").toUtf8())
                  .contains(QStringLiteral("“员工号”列出现了两次")));
  EXPECT_TRUE(refusal("\xB1,b\n").contains(QStringLiteral("编码有误")));
}

TEST_F(RosterCsv, OtherKindsOfFilesAreRefused) {
  EXPECT_TRUE(refusal("PK\x03\x04zip").contains(QStringLiteral("Excel 工作簿")));
  EXPECT_TRUE(refusal("\xFF\xFE\x16\x7F").contains(QStringLiteral("UTF-16")));
  EXPECT_TRUE(refusal(text.toUtf8() + "A1,\"x\n").contains(QStringLiteral("第 3 行：引号没有结束")));
  EXPECT_TRUE(refusal(QByteArray(17 * 1024 * 1024, 'x')).contains(QStringLiteral("超过 16 MB")));
  EXPECT_EQ(support::thrownNumber([this] { std::ignore = readRoster(path + u'x'); }),
            runtime::ErrorNumber::FileNotFound);
  EXPECT_EQ(support::thrownNumber([this] { std::ignore = readRoster(directory.path()); }),
            runtime::ErrorNumber::FileAccess);
  EXPECT_EQ(support::thrownNumber([] { std::ignore = readRoster(QStringLiteral("/dev/zero")); }),
            runtime::ErrorNumber::FileAccess);
}

TEST_F(RosterCsv, TheTemplateIsARosterWithoutLines) {
  EXPECT_TRUE(rosterTemplate().startsWith("\xEF\xBB\xBF"));
  EXPECT_TRUE(read(rosterTemplate()).empty());
}
