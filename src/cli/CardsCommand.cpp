#include "cli/CardsCommand.h"

#include "ado/Recordset.h"
#include "cli/Database.h"
#include "foundation/SqlText.h"
#include "printing/OutputFile.h"
#include "printing/SingleEmployeeInfoReport.h"
#include "report/Pdf.h"
#include "runtime/Conversions.h"
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
           .required = true}};
}

QString CardsCommand::usageFault() const {
  if (m_all == m_numbers.isEmpty()) return {};
  return QStringLiteral("请给出 --all 或 --number 其中之一");
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
  refuseOwnFile(m_out);
  const auto employees = load(connection);
  if (employees->Count() == 0) {
    streams.err << QStringLiteral("没有可打印的员工\n");
    return Failed;
  }
  SingleEmployeeInfoReport report;
  report.SetEmployeeSet(employees);
  report::writePdf(report.run(), m_out);
  streams.out << QStringLiteral("已写入 %1 张签到卡：%2\n").arg(employees->Count()).arg(m_out);
  if (report.photoFailures().isEmpty()) return Done;
  streams.err << QStringLiteral("下列员工的照片无法读取，卡上照片留空：\n");
  for (const QString& failure : report.photoFailures()) streams.err << failure << '\n';
  return Failed;
}

}  // namespace cli
