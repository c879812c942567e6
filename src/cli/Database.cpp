#include "cli/Database.h"

#include "ado/Recordset.h"
#include "foundation/GlobalDefine.h"
#include "foundation/clsConfiguration.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"
#include "runtime/RuntimeError.h"

namespace cli {

std::shared_ptr<ado::Connection> openDatabase() {
  auto connection = clsDbConn().GetDbConn();
  try {
    std::ignore = ado::required(connection).State();
  } catch (const runtime::RuntimeError& error) {
    if (!GetDataPath().isEmpty()) throw;
    throw error.reworded(
        QStringLiteral("%1（设置文件“%2”没有指明数据库的目录）").arg(error.description(), settingsFile()));
  }
  return connection;
}

int countOf(const std::shared_ptr<ado::Connection>& connection, const QString& query) {
  ado::Recordset rows;
  rows.Open(query, connection);
  return runtime::toInt32(rows.Fields(0).Value());
}

}  // namespace cli
