#include "cli/CardsCommand.h"

#include <optional>

#include <QRegularExpression>

#include "ado/Recordset.h"
#include "cli/Database.h"
#include "foundation/SqlText.h"
#include "printing/CardSheetReport.h"
#include "report/Pdf.h"
#include "runtime/Conversions.h"
#include "runtime/OutputGuard.h"
#include "runtime/RuntimeError.h"

namespace cli {

namespace {

/// The number as it is stored, which may differ from `number` in letter case; `number` where there is none.
QString storedNumber(const std::shared_ptr<ado::Connection>& connection, const QString& number) {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT ENUMBER FROM Employee WHERE ENUMBER=") + sql::quoted(number), connection);
  return rows.IsEOF() ? number : runtime::toTextOrEmpty(rows.Fields(0).Value());
}

std::shared_ptr<clsEmployee> loaded(const QString& number) {
  auto employee = std::make_shared<clsEmployee>();
  employee->setENUMBER(number);
  const int result = employee->LoadByENUMBER();
  if (result == clsEmployee::Found) return employee;
  throw runtime::RuntimeError(
      runtime::ErrorNumber::InvalidCall,
      result == clsEmployee::NotFound
          ? QStringLiteral("没有编号为“%1”的员工，或该员工没有部门").arg(number)
          : QStringLiteral("未能读取员工“%1”：%2").arg(number, employee->lastFailure()));
}

/// How far "1.5,-0.3" moves the cards, tenths of a millimetre; nothing for a text that does not say it or
/// goes too far.
std::optional<QPoint> parseOffset(const QString& text) {
  static const QRegularExpression form(
      QStringLiteral("^(-?)([0-9]{1,2})(?:\\.([0-9]))?,(-?)([0-9]{1,2})(?:\\.([0-9]))?$"));
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  const auto tenths = [&match](int group) {
    const int size = match.captured(group + 1).toInt() * 10 + match.captured(group + 2).toInt();
    return match.captured(group).isEmpty() ? size : -size;
  };
  const QPoint offset(tenths(1), tenths(4));
  const int most = std::max(std::abs(offset.x()), std::abs(offset.y()));
  return most <= CardSheet::farthest ? std::optional(offset) : std::nullopt;
}

}  // namespace

QString CardsCommand::summary() const {
  return QStringLiteral("把签到卡打印成 PDF 文件");
}

std::vector<Option> CardsCommand::options() {
  return {{.name = QStringLiteral("--all"), .help = QStringLiteral("所有员工"), .target = &m_all},
          {.name = QStringLiteral("--number"),
           .valueName = QStringLiteral("N"),
           .help = QStringLiteral("这些编号的员工，按给出的次序"),
           .target = &m_numbers},
          {.name = QStringLiteral("--out"),
           .valueName = QStringLiteral("FILE.pdf"),
           .help = QStringLiteral("写到这个文件；已有的文件只会被完整的新文件取代"),
           .target = &m_out,
           .required = true},
          {.name = QStringLiteral("--sheet"),
           .help = QStringLiteral("拼版：每张 A4 纸上 2 列 4 行，共 8 张卡"),
           .target = &m_asSheet},
          {.name = QStringLiteral("--start"),
           .valueName = QStringLiteral("N"),
           .help = QStringLiteral("拼版时第一张纸从第 N 个位置开始（1 到 8）"),
           .target = &m_start,
           .least = 1,
           .most = CardSheet::places},
          {.name = QStringLiteral("--cut-marks"),
           .help = QStringLiteral("拼版时打印裁切线"),
           .target = &m_cutMarks},
          {.name = QStringLiteral("--offset"),
           .valueName = QStringLiteral("X,Y"),
           .help = QStringLiteral("拼版时整体向右、向下偏移的毫米数，例如 1.5,-0.3"),
           .target = &m_offset}};
}

QString CardsCommand::usageFault() const {
  if (m_all != m_numbers.isEmpty()) return QStringLiteral("请给出 --all 或 --number 其中之一");
  if (!m_asSheet && (m_start != 1 || m_cutMarks || !m_offset.isEmpty())) {
    return QStringLiteral("--start、--cut-marks 和 --offset 要与 --sheet 一起使用");
  }
  if (!m_offset.isEmpty() && !parseOffset(m_offset)) {
    return QStringLiteral("“%1”不是 1.5,-0.3 这样的偏移（两个数，最多一位小数，-%2 到 %2 毫米）")
        .arg(m_offset)
        .arg(CardSheet::farthest / 10);
  }
  return {};
}

std::unique_ptr<SingleEmployeeInfoReport> CardsCommand::makeReport() const {
  if (!m_asSheet) return std::make_unique<SingleEmployeeInfoReport>();
  const QPoint offset = parseOffset(m_offset).value_or(QPoint());
  CardSheet sheet;
  sheet.start = m_start;
  sheet.cutMarks = m_cutMarks;
  sheet.right = offset.x();
  sheet.down = offset.y();
  return std::make_unique<CardSheetReport>(sheet);
}

std::shared_ptr<clsEmployeeSet> CardsCommand::load(const std::shared_ptr<ado::Connection>& connection) const {
  auto employees = std::make_shared<clsEmployeeSet>();
  if (m_all) {
    std::ignore = employees->LoadSet();
    return employees;
  }
  QStringList seen;
  for (const QString& typed : m_numbers) {
    const QString number = storedNumber(connection, typed);
    if (seen.contains(number, Qt::CaseInsensitive)) continue;
    seen.append(number);
    std::ignore = employees->Add(loaded(number));
  }
  return employees;
}

int CardsCommand::run(const Streams& streams) {
  const auto connection = openDatabase();
  runtime::requireFreeForOutput(m_out);
  const auto employees = load(connection);
  if (employees->Count() == 0) {
    streams.err << QStringLiteral("没有可打印的员工\n");
    return Failed;
  }
  const auto report = makeReport();
  report->SetEmployeeSet(employees);
  const report::Document document = report->run();
  report::writePdf(document, m_out);
  const QString sheets = m_asSheet ? QStringLiteral("（%1 张 A4 纸）").arg(document.pageCount()) : QString();
  streams.out << QStringLiteral("已写入 %1 张签到卡%2：%3\n").arg(employees->Count()).arg(sheets, m_out);
  if (report->photoFailures().isEmpty()) return Done;
  streams.err << QStringLiteral("下列图片无法读取，卡上照片留空，标志用默认的：\n");
  for (const QString& failure : report->photoFailures()) streams.err << failure << '\n';
  return Failed;
}

}  // namespace cli
