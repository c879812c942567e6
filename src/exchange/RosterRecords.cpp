#include "exchange/RosterRecords.h"

#include "ado/Recordset.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"

RosterRecords::RosterRecords() {
  readDepartments();
  readEmployees();
}

void RosterRecords::readDepartments() {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT ID, DNAME FROM Dept ORDER BY ID"), clsDbConn().GetDbConn());
  for (; !rows.IsEOF(); rows.MoveNext()) {
    m_departments.emplace(runtime::toTextOrEmpty(rows.Fields(1).Value()),
                          rows.Fields(0).Value().toLongLong());
  }
}

void RosterRecords::readEmployees() {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT ENUMBER, ENAME, EBARCODE, ENTERDATE FROM Employee ORDER BY ID"),
            clsDbConn().GetDbConn());
  for (; !rows.IsEOF(); rows.MoveNext()) {
    const QVariant entered = rows.Fields(3).Value();
    Employee employee{.number = runtime::toTextOrEmpty(rows.Fields(0).Value()),
                      .name = runtime::toTextOrEmpty(rows.Fields(1).Value()),
                      .barcode = runtime::toTextOrEmpty(rows.Fields(2).Value())};
    if (!runtime::isNull(entered)) employee.entered = runtime::toDateTime(entered);
    if (!employee.barcode.isEmpty()) m_holders[employee.barcode].push_back(employee.number);
    m_employees[employee.number].push_back(employee);
  }
}

std::optional<qint64> RosterRecords::department(const QString& name) const {
  const auto found = m_departments.find(name);
  return found == m_departments.end() ? std::nullopt : std::optional(found->second);
}

const std::vector<RosterRecords::Employee>& RosterRecords::employees(const QString& number) const {
  static const std::vector<Employee> none;
  const auto found = m_employees.find(number);
  return found == m_employees.end() ? none : found->second;
}

std::optional<QString> RosterRecords::otherHolder(const QString& barcode, const QString& number) const {
  const auto found = m_holders.find(barcode);
  if (found == m_holders.end()) return std::nullopt;
  const ado::TextOrder before;
  for (const QString& holder : found->second) {
    if (before(holder, number) || before(number, holder)) return holder;
  }
  return std::nullopt;
}
