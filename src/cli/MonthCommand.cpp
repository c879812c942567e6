#include "cli/MonthCommand.h"

#include <array>

#include <QFileInfo>

#include "attendance/MonthData.h"
#include "cli/Cell.h"
#include "cli/Database.h"
#include "exchange/MonthCsv.h"
#include "exchange/MonthWorkbook.h"
#include "foundation/clsSchoolArea.h"
#include "printing/EmployeeMonthReport.h"
#include "report/Pdf.h"
#include "runtime/OutputGuard.h"

namespace cli {

namespace {

using Writer = void (*)(const MonthData& data, const QString& path);

void writeReport(const MonthData& data, const QString& path) {
  EmployeeMonthReport report;
  report.setMonth(data);
  report::writePdf(report.run(), path);
}

struct Kind {
  QLatin1String ending;
  Writer write;
};

constexpr std::array kinds = {Kind{QLatin1String("pdf"), writeReport},
                              Kind{QLatin1String("xlsx"), writeMonthWorkbook},
                              Kind{QLatin1String("csv"), writeMonthCsv}};

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
  const MonthData data = loadMonth(*AttendanceMonth::parse(m_month), clsSchoolArea().SNAME());
  kindOf(m_out)->write(data, m_out);
  streams.out << QStringLiteral("已写入 %1 的考勤（有记录的员工 %2 名）：")
                     .arg(data.month.text())
                     .arg(data.presence->Count())
              << m_out << '\n';
  if (!data.nobodys.empty()) streams.err << cell(sentenceOn(data.nobodys)) << '\n';
  return Done;
}

}  // namespace cli
