#include <gtest/gtest.h>

#include <QDir>
#include <QSet>
#include <QTemporaryDir>

#include "ado/Recordset.h"
#include "cli/DemoPeople.h"
#include "cli/DemoPresence.h"
#include "cli/Running.h"
#include "foundation/clsConfiguration.h"
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

  /// Every row of `query`, values between bars.
  [[nodiscard]] QStringList rows(const QString& query, const QString& name = QStringLiteral("home")) const {
    runtime::setAppPath(home(name));
    const auto connection = std::make_shared<ado::Connection>();
    connection->Open(BuildConnectionString());
    ado::Recordset set;
    set.Open(query, connection);
    QStringList lines;
    for (; !set.IsEOF(); set.MoveNext()) {
      QStringList values;
      for (int i = 0; i < set.FieldCount(); ++i) {
        const QVariant value = set.Fields(i).Value();
        values.append(value.typeId() == QMetaType::QByteArray
                          ? QString::fromLatin1(value.toByteArray().toHex())
                          : runtime::toTextOrEmpty(value));
      }
      lines.append(values.join(u'|'));
    }
    runtime::setAppPath({});
    return lines;
  }
  [[nodiscard]] QString single(const QString& query) const { return rows(query).value(0); }

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
  clsConfiguration settings;
  settings.setFileName(home() + QStringLiteral("/attendance.ini"));
  settings.setGroup(QStringLiteral("UNIT"));
  EXPECT_NE(settings.GetItem(QStringLiteral("DSPNAME")), QString());
  EXPECT_EQ(settings.GetItem(QStringLiteral("UNITNAME")), settings.GetItem(QStringLiteral("DSPNAME")));
}

TEST_F(Demo, IsTheSameForTheSameArgumentsAndDay) {
  const QString other = QStringLiteral("other");
  for (const QString& name : {QStringLiteral("home"), other}) {
    ASSERT_EQ(runIn(home(name), {demo, employeesOption, QStringLiteral("12")}).code, 0);
  }
  for (const QString& query : {QStringLiteral("SELECT * FROM Dept ORDER BY ID"),
                               QStringLiteral("SELECT * FROM Employee ORDER BY ID"),
                               QStringLiteral("SELECT * FROM Presence ORDER BY ENUMBER, ENTERTIME")}) {
    const QStringList first = rows(query);
    EXPECT_FALSE(first.isEmpty());
    EXPECT_TRUE(first == rows(query, other)) << query.toStdString();
  }
}

TEST_F(Demo, PhotosAreDistinctAndAboutAsLargeAsAsked) {
  ASSERT_EQ(runIn(home(), {demo, employeesOption, QStringLiteral("20"), QStringLiteral("--photo-kb"),
                           QStringLiteral("30")})
                .code,
            0);
  QSet<QString> photos;
  for (const QString& photo : rows(QStringLiteral("SELECT HEADIMG FROM Employee"))) {
    const qsizetype bytes = photo.size() / 2;
    EXPECT_GT(bytes, 20 * 1024);
    EXPECT_LT(bytes, 40 * 1024);
    photos.insert(photo);
  }
  EXPECT_EQ(photos.size(), 20);
}

TEST_F(Demo, PresenceCoversTheWorkingDaysUpToYesterday) {
  ASSERT_EQ(runIn(home(), {demo, employeesOption, QStringLiteral("40")}).code, 0);
  EXPECT_TRUE(single(QStringLiteral("SELECT MIN(ENTERTIME) FROM Presence"))
                  .startsWith(QLatin1String("2026-10-01 07")));
  EXPECT_TRUE(single(QStringLiteral("SELECT MAX(ENTERTIME) FROM Presence"))
                  .startsWith(QLatin1String("2026-11-17 0")));
  // 34 working days; a few of the days are missed, a few of the sign-outs forgotten.
  const int all = single(QStringLiteral("SELECT COUNT(*) FROM Presence")).toInt();
  EXPECT_GT(all, 40 * 34 * 90 / 100);
  EXPECT_LT(all, 40 * 34);
  const int open = single(QStringLiteral("SELECT COUNT(*) FROM Presence WHERE EXITTIME IS NULL")).toInt();
  EXPECT_GT(open, 0);
  EXPECT_LT(open, all / 10);
  EXPECT_EQ(single(QStringLiteral("SELECT COUNT(*) FROM Presence WHERE EXITTIME <= ENTERTIME")),
            QStringLiteral("0"));
}

TEST_F(Demo, MonthChoosesTheDays) {
  ASSERT_EQ(runIn(home(), {demo, employeesOption, QStringLiteral("5"), QStringLiteral("--month"),
                           QStringLiteral("2024-02")})
                .code,
            0);
  EXPECT_TRUE(
      single(QStringLiteral("SELECT MIN(ENTERTIME) FROM Presence")).startsWith(QLatin1String("2024-02-01")));
  EXPECT_TRUE(
      single(QStringLiteral("SELECT MAX(ENTERTIME) FROM Presence")).startsWith(QLatin1String("2024-02-29")));
}

TEST_F(Demo, RefusesAHomeThatIsThere) {
  ASSERT_EQ(runIn(home(), {QStringLiteral("init")}).code, 0);
  const Outcome again = runIn(home(), {demo});
  EXPECT_EQ(again.code, 1);
  EXPECT_TRUE(again.err.contains(QStringLiteral("已经存在")));
  EXPECT_EQ(single(QStringLiteral("SELECT COUNT(*) FROM Employee")), QStringLiteral("0"));
}

TEST(DemoPeople, HaveUniqueNumbersAndBarcodes) {
  QSet<QString> numbers;
  QSet<QString> barcodes;
  for (const cli::DemoPerson& person : cli::demoPeople(12'000, today.date())) {
    numbers.insert(person.number);
    barcodes.insert(person.barcode);
    ASSERT_EQ(person.barcode.size(), 15);
    ASSERT_TRUE(person.department >= 1 && person.department <= cli::demoDepartments().size());
    ASSERT_LT(person.entered, today.date());
  }
  EXPECT_EQ(numbers.size(), 12'000);
  EXPECT_EQ(barcodes.size(), 12'000);
}

}  // namespace
