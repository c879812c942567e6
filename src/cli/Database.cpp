#include "cli/Database.h"

#include "ado/Recordset.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"

namespace cli {

std::shared_ptr<ado::Connection> openDatabase() {
  auto connection = clsDbConn().GetDbConn();
  std::ignore = ado::required(connection).State();
  return connection;
}

int countOf(const std::shared_ptr<ado::Connection>& connection, const QString& query) {
  ado::Recordset rows;
  rows.Open(query, connection);
  return runtime::toInt32(rows.Fields(0).Value());
}

}  // namespace cli
