#include "cli/MonthCommand.h"

#include <array>

#include <QFileInfo>

#include "attendance/MonthLoader.h"
#include "cli/Database.h"
#include "exchange/MonthCsv.h"
#include "exchange/MonthWorkbook.h"
#include "foundation/clsSchoolArea.h"
#include "printing/EmployeeMonthReport.h"
#include "report/Pdf.h"
#include "runtime/OutputGuard.h"

namespace cli {

namespace {

/// What a writer tells: how many employees have a record in the month.
using Writer = int (*)(const AttendanceMonth& month, const QString& unit, const QString& path);

int writeReport(const AttendanceMonth& month, const QString& unit, const QString& path) {
  EmployeeMonthReport report;
  report.setMonth(month, unit, loadMonth(month));
  report::writePdf(report.run(), path);
  return report.presenceList->Count();
}

int writeData(const AttendanceMonth& month, const QString& unit, const QString& path,
              void (*write)(const MonthData&, const QString&)) {
  const MonthData data = loadMonthData(month, unit);
  write(data, path);
  return data.presence->Count();
}

int writeWorkbook(const AttendanceMonth& month, const QString& unit, const QString& path) {
  return writeData(month, unit, path, writeMonthWorkbook);
}

int writeCsv(const AttendanceMonth& month, const QString& unit, const QString& path) {
  return writeData(month, unit, path, writeMonthCsv);
}

struct Kind {
  QLatin1String ending;
  Writer write;
};

constexpr std::array kinds = {Kind{QLatin1String("pdf"), writeReport},
                              Kind{QLatin1String("xlsx"), writeWorkbook},
                              Kind{QLatin1String("csv"), writeCsv}};

/// The kind of file that the path's ending asks for; null for any other ending.
const Kind* kindOf(const QString& path) {
  const QString ending = QFileInfo(path).suffix();
  const auto* found = std::find_if(kinds.begin(), kinds.end(), [&ending](const Kind& kind) {
    return ending.compare(kind.ending, Qt::CaseInsensitive) == 0;
  });
  return found == kinds.end() ? nullptr : found;
}

}  // namespace

QString MonthCommand::summary() const {
  return QStringLiteral("把一个月的考勤写成 PDF、Excel 或 CSV 文件");
}

std::vector<Option> MonthCommand::options() {
  return {{.name = QStringLiteral("MONTH"),
           .valueName = QStringLiteral("YYYY-MM"),
           .help = QStringLiteral("月份，例如 2026-11"),
           .target = &m_month,
           .required = true},
          {.name = QStringLiteral("--out"),
           .valueName = QStringLiteral("FILE.pdf|FILE.xlsx|FILE.csv"),
           .help = QStringLiteral("写到这个文件；已有的文件只会被完整的新文件取代"),
           .target = &m_out,
           .required = true}};
}

QString MonthCommand::usageFault() const {
  if (!AttendanceMonth::parse(m_month)) {
    return QStringLiteral("“%1”不是 2026-11 这样的月份（%2 到 %3 年）")
        .arg(m_month)
        .arg(AttendanceMonth::firstYear)
        .arg(AttendanceMonth::lastYear);
  }
  if (kindOf(m_out) == nullptr) return QStringLiteral("“%1”的扩展名不是 pdf、xlsx 或 csv").arg(m_out);
  return {};
}

bool MonthCommand::drawsPictures() const {
  return kindOf(m_out)->write == writeReport;
}

int MonthCommand::run(const Streams& streams) {
  const auto connection = openDatabase();
  runtime::requireFreeForOutput(m_out);
  const AttendanceMonth month = *AttendanceMonth::parse(m_month);
  const int employees = kindOf(m_out)->write(month, clsSchoolArea().SNAME(), m_out);
  streams.out << QStringLiteral("已写入 %1 的考勤（有记录的员工 %2 名）：%3\n")
                     .arg(month.text())
                     .arg(employees)
                     .arg(m_out);
  return Done;
}

}  // namespace cli
