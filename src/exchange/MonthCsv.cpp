#include "exchange/MonthCsv.h"

#include "foundation/GlobalDefine.h"
#include "runtime/DefaultText.h"
#include "runtime/ReplacingFile.h"

namespace {

const QString lineEnd = QStringLiteral("\r\n");

/// A value with the quotes that it needs to stay in its column.
QString cell(QString value) {
  const bool plain = std::none_of(value.begin(), value.end(), [](QChar character) {
    return character == u',' || character == u'"' || character == u'\r' || character == u'\n';
  });
  if (plain) return value;
  value.replace(u'"', QStringLiteral("\"\""));
  return u'"' + value + u'"';
}

struct DayText {
  QDate date;
  /// Date and weekday as they stand in a line.
  QString cells;
};

std::vector<DayText> dayTexts(const AttendanceMonth& month) {
  std::vector<DayText> texts;
  for (const QDate& day : month.days()) {
    texts.push_back({day, runtime::dateText(day) + u',' + weekdayText(day)});
  }
  return texts;
}

QString linesOf(const clsSingleEmployeeMonPresence& employee, const std::vector<DayText>& days) {
  const QString who = cell(employee.ENUMBER()) + u',' + cell(employee.ENAME()) + u',';
  QString lines;
  for (const DayText& day : days) {
    lines += who + day.cells + u',' + FormatShortTime(employee.GetEnterTime(day.date)) + u',' +
             FormatShortTime(employee.GetExitTime(day.date)) + lineEnd;
  }
  return lines;
}

}  // namespace

void writeMonthCsv(const MonthData& data, const QString& path) {
  runtime::ReplacingFile file(path);
  file.write("\xEF\xBB\xBF");
  file.write((QStringLiteral("员工号,姓名,日期,星期,签到,签退") + lineEnd).toUtf8());
  const std::vector<DayText> days = dayTexts(data.month);
  for (const auto& employee : *data.presence) file.write(linesOf(*employee, days).toUtf8());
  file.commit();
}
