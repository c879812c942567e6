#include "records/EmployeeNames.h"

#include "ado/Recordset.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"

namespace {

/// Reads indices alone: the rows themselves are spread over as many pages as there are photos. A sign in
/// front of ID keeps the engine from looking each of them up by it.
const QString& namesQuery() {
  static const QString query = QStringLiteral(
      "SELECT ENUMBER, ENAME FROM Employee WHERE +ID IN"
      " (SELECT Employee.ID FROM Employee, Dept WHERE Employee.DID = Dept.ID) ORDER BY +ID");
  return query;
}

}  // namespace

std::vector<EmployeeName> loadEmployeeNames() {
  ado::Recordset rows;
  rows.Open(namesQuery(), clsDbConn().GetDbConn());
  std::vector<EmployeeName> names;
  for (; !rows.IsEOF(); rows.MoveNext()) {
    names.push_back(
        {runtime::toTextOrEmpty(rows.Fields(0).Value()), runtime::toTextOrEmpty(rows.Fields(1).Value())});
  }
  return names;
}
