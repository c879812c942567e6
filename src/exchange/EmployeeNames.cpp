#include "exchange/EmployeeNames.h"

#include "ado/Recordset.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"

std::vector<EmployeeName> loadEmployeeNames() {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT Employee.ENUMBER, Employee.ENAME FROM Employee, Dept "
                           "WHERE Employee.DID = Dept.ID ORDER BY Employee.ID"),
            clsDbConn().GetDbConn());
  std::vector<EmployeeName> names;
  for (; !rows.IsEOF(); rows.MoveNext()) {
    names.push_back(
        {runtime::toTextOrEmpty(rows.Fields(0).Value()), runtime::toTextOrEmpty(rows.Fields(1).Value())});
  }
  return names;
}
