#include "cli/ExportCommand.h"

#include <array>

#include "cli/Database.h"
#include "records/RecordExport.h"
#include "runtime/OutputGuard.h"

namespace cli {

namespace {

struct Kind {
  QLatin1String what;
  /// Gives the number of rows.
  int (*write)(const QString& path);
  QStringView counted;
};

constexpr std::array kinds = {Kind{QLatin1String("employees"), exportAllEmployees, u"名员工"},
                              Kind{QLatin1String("departments"), exportDepartments, u"个部门"}};

const Kind* kindOf(const QString& what) {
  const auto* found =
      std::find_if(kinds.begin(), kinds.end(), [&what](const Kind& kind) { return kind.what == what; });
  return found == kinds.end() ? nullptr : found;
}

}  // namespace

QString ExportCommand::summary() const {
  return QStringLiteral("把全部员工或部门写成 XML 文件");
}

std::vector<Option> ExportCommand::options() {
  return {{.name = QStringLiteral("WHAT"),
           .valueName = QStringLiteral("employees|departments"),
           .help = QStringLiteral("导出员工（连同照片和条码），或导出部门"),
           .target = &m_what,
           .required = true},
          {.name = QStringLiteral("--out"),
           .valueName = QStringLiteral("FILE.xml"),
           .help = QStringLiteral("写到这个文件；已有的文件只会被完整的新文件取代"),
           .target = &m_out,
           .required = true}};
}

QString ExportCommand::usageFault() const {
  if (kindOf(m_what) != nullptr) return {};
  return QStringLiteral("“%1”不是 employees 或 departments").arg(m_what);
}

int ExportCommand::run(const Streams& streams) {
  const auto connection = openDatabase();
  runtime::requireFreeForOutput(m_out);
  const Kind* kind = kindOf(m_what);
  const int rows = kind->write(m_out);
  streams.out << QStringLiteral("已导出 %1 %2：%3\n").arg(rows).arg(kind->counted).arg(m_out);
  return Done;
}

}  // namespace cli
