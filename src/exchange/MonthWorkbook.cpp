#include "exchange/MonthWorkbook.h"

#include <array>

#include "attendance/MonthSummary.h"
#include "exchange/Workbook.h"
#include "foundation/GlobalDefine.h"
#include "runtime/DefaultText.h"

namespace {

constexpr int titleRow = 0;
constexpr int numberColumn = 0;
constexpr int nameColumn = 1;
constexpr double numberWidth = 11;
constexpr double nameWidth = 12;
constexpr double timeWidth = 6.3;
constexpr double summaryWidth = 12;

constexpr int dayRow = 1;
constexpr int weekdayRow = 2;
constexpr int kindRow = 3;
constexpr int firstMonthRow = 4;
constexpr int firstDayColumn = 2;

constexpr int headingRow = 1;
constexpr int firstSummaryRow = 2;

bool isWeekend(const QDate& day) {
  return day.dayOfWeek() >= Qt::Saturday;
}

QString timeText(const QTime& time) {
  return time.isValid() ? runtime::shortTimeText(time) : QString();
}

class MonthBook {
 public:
  explicit MonthBook(const MonthData& data)
      : m_data(data),
        m_days(data.month.days()),
        m_title(m_book.addFormat({.points = 14, .bold = true})),
        m_heading(m_book.addFormat({.bold = true, .border = true, .centered = true})),
        m_weekendHeading(m_book.addFormat({.bold = true, .border = true, .centered = true, .shaded = true})),
        m_left(m_book.addFormat({.border = true})),
        m_note(m_book.addFormat({})),
        m_centered(m_book.addFormat({.border = true, .centered = true})),
        m_weekend(m_book.addFormat({.border = true, .centered = true, .shaded = true})) {}

  void save(const QString& path) {
    fillMonth();
    fillSummary();
    m_book.save(path);
  }

 private:
  Sheet addSheet(const QString& name) {
    Sheet sheet = m_book.addSheet(name);
    sheet.writeText(titleRow, 0, m_data.month.title(m_data.unit), m_title);
    sheet.setWidth(numberColumn, numberColumn, numberWidth);
    sheet.setWidth(nameColumn, nameColumn, nameWidth);
    sheet.allowTextNumbers(numberColumn);
    return sheet;
  }

  void writeEmployee(Sheet& sheet, int row, const QString& number, const QString& name) {
    sheet.writeText(row, numberColumn, number, m_left);
    sheet.writeText(row, nameColumn, name, m_left);
  }

  void fillMonth() {
    Sheet sheet = addSheet(QStringLiteral("月考勤"));
    writeMonthHeadings(sheet);
    int row = firstMonthRow;
    for (const auto& employee : *m_data.presence) {
      writeEmployee(sheet, row, employee->ENUMBER(), employee->ENAME());
      writeDays(sheet, row++, *employee);
    }
    sheet.freeze(firstMonthRow, firstDayColumn);
    sheet.printAcross();
  }

  void writeMonthHeadings(Sheet& sheet) {
    sheet.writeMerged(dayRow, numberColumn, kindRow, numberColumn, QStringLiteral("员工号"), m_heading);
    sheet.writeMerged(dayRow, nameColumn, kindRow, nameColumn, QStringLiteral("姓名"), m_heading);
    int column = firstDayColumn;
    for (const QDate& day : m_days) {
      lxw_format* format = isWeekend(day) ? m_weekendHeading : m_heading;
      sheet.writeMerged(dayRow, column, dayRow, column + 1, QString::number(day.day()), format);
      sheet.writeMerged(weekdayRow, column, weekdayRow, column + 1, weekdayText(day), format);
      sheet.writeText(kindRow, column++, QStringLiteral("签到"), format);
      sheet.writeText(kindRow, column++, QStringLiteral("签退"), format);
    }
    sheet.setWidth(firstDayColumn, column - 1, timeWidth);
  }

  void writeDays(Sheet& sheet, int row, const clsSingleEmployeeMonPresence& employee) {
    int column = firstDayColumn;
    for (const QDate& day : m_days) {
      lxw_format* format = isWeekend(day) ? m_weekend : m_centered;
      sheet.writeUtf8(row, column++, shortTime(employee.GetEnterTime(day)), format);
      sheet.writeUtf8(row, column++, shortTime(employee.GetExitTime(day)), format);
    }
  }

  /// FormatShortTime, which gives the same few hundred texts for tens of thousands of cells.
  const QByteArray& shortTime(const QDateTime& moment) {
    constexpr int millisecondsAMinute = 60'000;
    static const QByteArray none;
    if (runtime::isZero(moment)) return none;
    const int minute = moment.time().msecsSinceStartOfDay() / millisecondsAMinute;
    QByteArray& text = m_shortTimes[static_cast<std::size_t>(minute)];
    if (text.isEmpty()) text = FormatShortTime(moment).toUtf8();
    return text;
  }

  void fillSummary() {
    Sheet sheet = addSheet(QStringLiteral("汇总"));
    int column = 0;
    for (const QString& heading :
         {QStringLiteral("员工号"), QStringLiteral("姓名"), QStringLiteral("签到天数"),
          QStringLiteral("未签退天数"), QStringLiteral("最早签到"), QStringLiteral("最晚签退")}) {
      sheet.writeText(headingRow, column++, heading, m_heading);
    }
    sheet.setWidth(nameColumn + 1, column - 1, summaryWidth);
    int row = firstSummaryRow;
    for (const MonthSummary& summary : summarize(m_data.employees, *m_data.presence, m_days)) {
      writeSummary(sheet, row++, summary);
    }
    writeNobodys(sheet, row + 1);
    sheet.freeze(firstSummaryRow, nameColumn + 1);
    sheet.printUpright();
  }

  void writeSummary(Sheet& sheet, int row, const MonthSummary& summary) {
    writeEmployee(sheet, row, summary.employee.ENUMBER, summary.employee.ENAME);
    int column = nameColumn + 1;
    sheet.writeNumber(row, column++, summary.daysSignedIn, m_centered);
    sheet.writeNumber(row, column++, summary.daysNotSignedOut, m_centered);
    sheet.writeText(row, column++, timeText(summary.earliestArrival), m_centered);
    sheet.writeText(row, column, timeText(summary.latestDeparture), m_centered);
  }

  /// So that the records of the month add up to those in the database.
  void writeNobodys(Sheet& sheet, int row) {
    if (m_data.nobodys.empty()) return;
    sheet.writeText(row++, numberColumn, QStringLiteral("以下员工号已不在员工表中，其考勤记录没有列入："),
                    m_note);
    for (const NobodysPresence& of : m_data.nobodys) {
      sheet.writeText(row, numberColumn, of.number, m_left);
      sheet.writeText(row++, nameColumn, QStringLiteral("%1 条").arg(of.records), m_left);
    }
  }

  const MonthData& m_data;
  const std::vector<QDate> m_days;
  Workbook m_book;
  lxw_format* m_title;
  lxw_format* m_heading;
  lxw_format* m_weekendHeading;
  lxw_format* m_left;
  lxw_format* m_note;
  lxw_format* m_centered;
  lxw_format* m_weekend;
  /// By the minute of the day.
  std::array<QByteArray, 24 * 60> m_shortTimes;
};

}  // namespace

void writeMonthWorkbook(const MonthData& data, const QString& path) {
  MonthBook(data).save(path);
}
