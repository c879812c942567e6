#include "MonthFixture.h"
#include "exchange/MonthCsv.h"
#include "support/Files.h"
#include "support/Thrown.h"

namespace {
using MonthCsv = MonthFixture;
}  // namespace

TEST_F(MonthCsv, HasALineForEachEmployeeAndDay) {
  const QString path = file(QStringLiteral("m.csv"));
  writeMonthCsv(data, path);
  const QByteArray bytes = support::contentOf(path);
  EXPECT_TRUE(bytes.startsWith("\xEF\xBB\xBF"));
  EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
  const QStringList lines = QString::fromUtf8(bytes.mid(3)).split(QStringLiteral("\r\n"));
  ASSERT_EQ(lines.size(), 1 + 3 * 30 + 1);
  EXPECT_EQ(lines[0], QStringLiteral("员工号,姓名,日期,星期,签到,签退"));
  EXPECT_EQ(lines[1], QStringLiteral("001,张三,2026-11-01,日,,"));
  EXPECT_EQ(lines[2], QStringLiteral("001,张三,2026-11-02,一,08:05,17:30"));
  EXPECT_EQ(lines[3], QStringLiteral("001,张三,2026-11-03,二,07:59,"));
  EXPECT_EQ(lines[31], QStringLiteral("b2,\"李,\"\"四\"\"\",2026-11-01,日,00:00,"));
  EXPECT_EQ(lines.last(), QString());
}

TEST_F(MonthCsv, AFileThatCannotBeReplacedStaysAsItWas) {
  const QString path = file(QStringLiteral("m.csv"));
  support::writeFile(path, "old");
  QFile::setPermissions(path, QFile::ReadOwner);
  EXPECT_EQ(support::thrownNumber([&] { writeMonthCsv(data, path); }), runtime::ErrorNumber::FileAccess);
  EXPECT_EQ(support::contentOf(path), "old");
}
