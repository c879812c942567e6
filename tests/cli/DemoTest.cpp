#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "ado/Recordset.h"
#include "cli/Running.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"
#include "support/FixedClock.h"

namespace {

const QDateTime today(QDate(2026, 11, 18), QTime(9, 30));

/// A home that does not exist yet.
class Demo : public testing::Test {
 protected:
  [[nodiscard]] QString home(const QString& name = QStringLiteral("home")) const {
    return m_above.filePath(name);
  }

  /// The first value of every row of `query`.
  [[nodiscard]] QStringList column(const QString& query, const QString& name = QStringLiteral("home")) const {
    runtime::setAppPath(home(name));
    const auto connection = std::make_shared<ado::Connection>();
    connection->Open(BuildConnectionString());
    ado::Recordset set;
    set.Open(query, connection);
    QStringList values;
    for (; !set.IsEOF(); set.MoveNext()) values.append(runtime::toTextOrEmpty(set.Fields(0).Value()));
    runtime::setAppPath({});
    return values;
  }
  [[nodiscard]] QString single(const QString& query) const { return column(query).value(0); }

  QTemporaryDir m_above;
  support::FixedClock m_clock{today};
};

const QString demo = QStringLiteral("demo");
const QString employeesOption = QStringLiteral("--employees");

TEST_F(Demo, MakesAHomeWithoutFindings) {
  const Outcome made = runIn(home(), {demo, employeesOption, QStringLiteral("30")});
  ASSERT_EQ(made.code, 0) << made.err.toStdString();
  EXPECT_EQ(single(QStringLiteral("SELECT COUNT(*) FROM Employee")), QStringLiteral("30"));
  EXPECT_EQ(single(QStringLiteral("SELECT COUNT(*) FROM Dept")), QStringLiteral("8"));
  const Outcome checked = runIn(home(), {QStringLiteral("check")});
  EXPECT_EQ(checked.code, 0) << checked.out.toStdString();
}

TEST_F(Demo, IsTheSameForTheSameArgumentsAndDay) {
  const QString other = QStringLiteral("other");
  for (const QString& name : {QStringLiteral("home"), other}) {
    ASSERT_EQ(runIn(home(name), {demo, employeesOption, QStringLiteral("12")}).code, 0);
  }
  for (const QString& query : {QStringLiteral("SELECT DNAME FROM Dept ORDER BY ID"),
                               QStringLiteral("SELECT ENAME || EBARCODE || hex(HEADIMG) FROM Employee"),
                               QStringLiteral("SELECT ENUMBER || ENTERTIME FROM Presence")}) {
    const QStringList first = column(query);
    EXPECT_FALSE(first.isEmpty());
    EXPECT_TRUE(first == column(query, other)) << query.toStdString();
  }
}

TEST_F(Demo, PresenceCoversTheWorkingDaysUpToYesterday) {
  ASSERT_EQ(runIn(home(), {demo, employeesOption, QStringLiteral("40")}).code, 0);
  EXPECT_TRUE(single(QStringLiteral("SELECT MIN(ENTERTIME) FROM Presence"))
                  .startsWith(QLatin1String("2026-10-01 07")));
  EXPECT_TRUE(single(QStringLiteral("SELECT MAX(ENTERTIME) FROM Presence"))
                  .startsWith(QLatin1String("2026-11-17 0")));
  // 34 working days; a few of the days are missed.
  const int all = single(QStringLiteral("SELECT COUNT(*) FROM Presence")).toInt();
  EXPECT_GT(all, 40 * 34 * 90 / 100);
  EXPECT_LT(all, 40 * 34);
  EXPECT_EQ(single(QStringLiteral("SELECT COUNT(*) FROM Presence WHERE EXITTIME <= ENTERTIME")),
            QStringLiteral("0"));
}

TEST_F(Demo, RefusesAHomeThatIsThere) {
  ASSERT_EQ(runIn(home(), {QStringLiteral("init")}).code, 0);
  const Outcome again = runIn(home(), {demo});
  EXPECT_EQ(again.code, 1);
  EXPECT_TRUE(again.err.contains(QStringLiteral("已经存在")));
  EXPECT_EQ(single(QStringLiteral("SELECT COUNT(*) FROM Employee")), QStringLiteral("0"));
}

}  // namespace
