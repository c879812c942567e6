#include "records/clsEmployeeSet.h"

#include "ado/Recordset.h"
#include "foundation/clsDbConn.h"
#include "records/PhotoFile.h"
#include "runtime/Conversions.h"
#include "runtime/Progress.h"
#include "runtime/RuntimeError.h"

namespace {

/// The columns of the list's query, looked up once for all rows.
struct Columns {
  explicit Columns(ado::Recordset& rows)
      : did(rows.Fields(QStringLiteral("DID"))),
        dname(rows.Fields(QStringLiteral("DNAME"))),
        ebarcode(rows.Fields(QStringLiteral("EBARCODE"))),
        enumber(rows.Fields(QStringLiteral("ENUMBER"))),
        ename(rows.Fields(QStringLiteral("ENAME"))),
        enterDate(rows.Fields(QStringLiteral("ENTERDATE"))),
        id(rows.Fields(QStringLiteral("ID"))),
        headImg(rows.Fields(QStringLiteral("HEADIMG"))) {}

  const ado::Field& did;
  const ado::Field& dname;
  const ado::Field& ebarcode;
  const ado::Field& enumber;
  const ado::Field& ename;
  const ado::Field& enterDate;
  const ado::Field& id;
  const ado::Field& headImg;
};

void fill(clsEmployee& employee, const Columns& row) {
  employee.setdid(runtime::toInt16(row.did.Value()));
  employee.setDNAME(runtime::toText(row.dname.Value()));
  employee.setEBARCODE(runtime::toTextOrEmpty(row.ebarcode.Value()));
  employee.setENUMBER(runtime::toText(row.enumber.Value()));
  employee.setENAME(runtime::toText(row.ename.Value()));
  employee.setENTERDATE(runtime::toDateTime(row.enterDate.Value()));
  employee.setID(runtime::toInt32(row.id.Value()));
}

/// As fill; an error names the employee.
void fillOrName(clsEmployee& employee, const Columns& row) {
  try {
    fill(employee, row);
  } catch (const runtime::RuntimeError& error) {
    throw error.reworded(QStringLiteral("编号为[%1]的员工无法载入：%2")
                             .arg(row.enumber.Value().toString(), error.description()));
  }
}

/// The photo; an error names the employee.
QVariant photoOrName(const Columns& row) {
  try {
    return row.headImg.Value();
  } catch (const runtime::RuntimeError& error) {
    throw error.reworded(QStringLiteral("编号为[%1]的员工的照片无法读取：%2")
                             .arg(row.enumber.Value().toString(), error.description()));
  }
}

}  // namespace

bool clsEmployeeSet::LoadSet() {
  ado::Recordset rows;
  rows.Open(QStringLiteral(
                "SELECT Employee.*, Dept.DNAME as DNAME from Employee, Dept where Employee.DID = Dept.ID"),
            clsDbConn().GetDbConn());
  const Columns row(rows);
  for (int done = 1; !rows.IsEOF(); rows.MoveNext(), ++done) {
    const auto employee = std::make_shared<clsEmployee>();
    fillOrName(*employee, row);
    employee->setHeadImg(writePhotoFile(employee->ENUMBER(), photoOrName(row)));
    Add(employee);
    runtime::reportProgress(done, rows.RecordCount());
  }
  rows.Close();
  return true;
}

std::shared_ptr<clsEmployee> clsEmployeeSet::Add(const std::shared_ptr<clsEmployee>& employee) {
  m_members.Add(employee, employee->ENUMBER());
  return employee;
}
