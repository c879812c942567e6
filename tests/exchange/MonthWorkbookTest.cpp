#include <QDir>
#include <QHash>
#include <QProcess>

#include "MonthFixture.h"
#include "exchange/MonthWorkbook.h"
#include "support/Files.h"
#include "support/Thrown.h"

namespace {

/// The lines that the script prints, each keyed by its sheet and place.
class MonthWorkbook : public MonthFixture {
 protected:
  void write() {
    const QString path = file(QStringLiteral("m.xlsx"));
    writeMonthWorkbook(data, path);
    QProcess reader;
    reader.setProcessEnvironment([] {
      QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
      environment.insert(QStringLiteral("PYTHONIOENCODING"), QStringLiteral("utf-8"));
      return environment;
    }());
    reader.start(QStringLiteral("python3"), {QStringLiteral(TEST_DATA_DIR "/xlsx_cells.py"), path});
    ASSERT_TRUE(reader.waitForFinished());
    ASSERT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    lines = QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n');
  }

  /// `t text` or `n number` of the cell on the sheet; empty for a cell without content.
  [[nodiscard]] QString cell(const QString& sheet, const QString& place) const {
    const QString start = sheet + u'\t' + place + u'\t';
    for (const QString& line : lines) {
      if (line.startsWith(start)) return line.mid(start.size()).replace(u'\t', u' ');
    }
    return {};
  }
  [[nodiscard]] QString month(const char* place) const {
    return cell(QStringLiteral("月考勤"), QString::fromLatin1(place));
  }
  /// The row's cells A to F.
  [[nodiscard]] QStringList summary(int row) const {
    QStringList cells;
    for (const char column : {'A', 'B', 'C', 'D', 'E', 'F'}) {
      cells.append(cell(QStringLiteral("汇总"), QLatin1Char(column) + QString::number(row)));
    }
    return cells;
  }

  QStringList lines;
};

QStringList list(const QString& text) {
  return text.split(u'|');
}

}  // namespace

TEST_F(MonthWorkbook, TheMonthHasAPairOfColumnsADay) {
  write();
  EXPECT_EQ(month("A1"), QStringLiteral("t 青禾2026年11月员工考勤报表"));
  EXPECT_EQ(month("C2"), QStringLiteral("t 1"));
  EXPECT_EQ(month("C3"), QStringLiteral("t 日"));
  EXPECT_EQ(month("BI2"), QStringLiteral("t 30"));
  EXPECT_EQ(month("BI3"), QStringLiteral("t 一"));
  EXPECT_EQ(month("BK2"), QString()) << "November has no 31st";
  EXPECT_EQ(month("A5"), QStringLiteral("t 001"));
  EXPECT_EQ(month("B5"), QStringLiteral("t 张三"));
  EXPECT_EQ(month("C5"), QString());
  EXPECT_EQ(month("E5"), QStringLiteral("t 08:05"));
  EXPECT_EQ(month("F5"), QStringLiteral("t 17:30"));
  EXPECT_EQ(month("H5"), QString());
  EXPECT_EQ(month("C6"), QStringLiteral("t 00:00"));
  EXPECT_EQ(month("A7"), QStringLiteral("t X9"));
  EXPECT_EQ(month("A8"), QString());
  EXPECT_EQ(month("frozen"), QStringLiteral("C5"));
  EXPECT_TRUE(lines.contains(QStringLiteral("月考勤\tmerged\tC3:D3")));
}

TEST_F(MonthWorkbook, TheSummaryHasEveryEmployee) {
  write();
  EXPECT_EQ(summary(2),
            list(QStringLiteral("t 员工号|t 姓名|t 签到天数|t 未签退天数|t 最早签到|t 最晚签退")));
  EXPECT_EQ(summary(3), list(QStringLiteral("t C3|t 王五|n 0|n 0||")));
  EXPECT_EQ(summary(4), list(QStringLiteral("t 001|t 张三|n 3|n 1|t 07:59|t 18:01")));
  EXPECT_EQ(summary(5), list(QStringLiteral("t B2|t 李四|n 1|n 1|t 00:00|")));
  EXPECT_EQ(summary(6), list(QStringLiteral("t X9|t 外|n 1|n 0|t 10:00|t 11:00")));
  EXPECT_EQ(summary(7), list(QStringLiteral("|||||")));
  EXPECT_EQ(cell(QStringLiteral("汇总"), QStringLiteral("frozen")), QStringLiteral("C3"));
}

TEST_F(MonthWorkbook, RecordsOfNobodyStandBelowTheSummary) {
  data.nobodys = {{QStringLiteral("Z1"), 3}, {QStringLiteral("=1"), 1}};
  write();
  EXPECT_EQ(summary(7), list(QStringLiteral("|||||")));
  EXPECT_TRUE(summary(8)[0].contains(QStringLiteral("已不在员工表中")));
  EXPECT_EQ(summary(9), list(QStringLiteral("t Z1|t 3 条||||")));
  EXPECT_EQ(summary(10), list(QStringLiteral("t =1|t 1 条||||")));
}

TEST_F(MonthWorkbook, BothSheetsArePrintedOnePageWide) {
  write();
  // As many pages high as it takes.
  for (const QString& sheet : {QStringLiteral("月考勤"), QStringLiteral("汇总")}) {
    EXPECT_EQ(cell(sheet, QStringLiteral("pages wide and high")), QStringLiteral("1 0"))
        << sheet.toStdString();
  }
}

TEST_F(MonthWorkbook, AMonthWithoutRecordsOrEmployeesIsStillAWorkbook) {
  data.presence = std::make_shared<clsEmployeePresenceSet>();
  data.employees.clear();
  write();
  EXPECT_EQ(month("A2"), QStringLiteral("t 员工号"));
  EXPECT_EQ(month("A5"), QString());
}

TEST_F(MonthWorkbook, NamesAreWrittenAsTheyAre) {
  const QString name = QStringLiteral("=1+1&<é>😀") + QString(20, u'长');
  presence->Add(QStringLiteral("=A1"), name)->AddPresence(at(1, {8, 0}), at(1, {9, 0}));
  write();
  EXPECT_EQ(month("A8"), QStringLiteral("t =A1"));
  EXPECT_EQ(month("B8"), QStringLiteral("t ") + name);
}

TEST_F(MonthWorkbook, WhatCannotBeWrittenLeavesTheOldFileAndNothingBeside) {
  const QString path = file(QStringLiteral("old.xlsx"));
  support::writeFile(path, "old");
  QFile::setPermissions(path, QFile::ReadOwner);
  EXPECT_EQ(support::thrownNumber([&] { writeMonthWorkbook(data, path); }), runtime::ErrorNumber::FileAccess);
  EXPECT_EQ(support::contentOf(path), "old");
  EXPECT_EQ(QFileInfo(path).dir().entryList(QDir::Files), QStringList(QStringLiteral("old.xlsx")));
}
