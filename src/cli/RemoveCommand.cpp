#include "cli/RemoveCommand.h"

#include "cli/Database.h"
#include "records/clsEmployee.h"

namespace cli {

QString RemoveCommand::summary() const {
  return QStringLiteral("删除一名员工（考勤记录保留）");
}

std::vector<Option> RemoveCommand::options() {
  return {{.name = QStringLiteral("NUMBER"),
           .valueName = QStringLiteral("编号"),
           .help = QStringLiteral("员工编号；以“-”开头的编号写在“--”之后"),
           .target = &m_number,
           .required = true}};
}

int RemoveCommand::run(const Streams& streams) {
  const auto connection = openDatabase();
  clsEmployee employee;
  if (employee.Remove(m_number)) {
    streams.out << QStringLiteral("已删除员工“%1”\n").arg(m_number);
    return Done;
  }
  const QString why = employee.lastFailure();
  streams.err << (why.isEmpty() ? QStringLiteral("没有编号为“%1”的员工").arg(m_number)
                                : QStringLiteral("未能删除员工“%1”：%2").arg(m_number, why))
              << '\n';
  return Failed;
}

}  // namespace cli
