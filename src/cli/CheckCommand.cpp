#include "cli/CheckCommand.h"

#include "cli/Database.h"
#include "cli/DatabaseCheck.h"
#include "runtime/RuntimeError.h"

namespace cli {

QString CheckCommand::summary() const {
  return QStringLiteral("检查数据库：每一页，以及员工和部门的数据");
}

int CheckCommand::run(const Streams& streams) {
  int findings = 0;
  DatabaseCheck check(openDatabase(), [&](const QString& finding) {
    ++findings;
    streams.out << finding << '\n';
  });
  try {
    check.run();
  } catch (const runtime::RuntimeError& error) {
    // Where a page is damaged the rows behind it cannot be read: a finding like the others.
    ++findings;
    streams.out << QStringLiteral("数据无法读取：%1\n").arg(error.description());
  }
  if (findings > 0) {
    streams.err << QStringLiteral("共有 %1 个问题\n").arg(findings);
    return Failed;
  }
  streams.out << QStringLiteral("数据库完好：%1\n").arg(check.summary());
  return Done;
}

}  // namespace cli
