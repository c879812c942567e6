#include "cli/InitCommand.h"

#include "cli/NewHome.h"
#include "runtime/ProgramDirectory.h"

namespace cli {

QString InitCommand::summary() const {
  return QStringLiteral("建立程序目录：空数据库、设置文件和帮助，从不覆盖已有文件");
}

int InitCommand::run(const Streams& streams) {
  NewHome home(runtime::AppPath());
  home.make();
  const QString missingHelp = home.putHelp();
  home.keep();
  streams.out << QStringLiteral("已建立：") << runtime::AppPath() << '\n';
  if (!missingHelp.isEmpty()) streams.err << missingHelp << '\n';
  return Done;
}

}  // namespace cli
