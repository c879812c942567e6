#include "records/clsDept.h"

#include <tuple>

#include "ado/Recordset.h"
#include "foundation/Attempt.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"

namespace {

/// Runs a statement on the shared connection; whether it affected a record.
bool affects(const QString& statement) {
  return ado::required(clsDbConn().GetDbConn()).Execute(statement) >= 1;
}

}  // namespace

void clsDept::setID(std::int16_t id) {
  m_id = id;
  std::ignore = LoadByID();
}

void clsDept::setDNAME(const QString& name) {
  m_name = name;
  std::ignore = LoadByName();
}

bool clsDept::LoadByID() {
  m_lastFailure.clear();
  if (m_id == 0) return false;
  const bool loaded = attempt(m_lastFailure, false, [this] {
    ado::Recordset rows;
    rows.Open(QStringLiteral("SELECT * FROM Dept WHERE [ID]= ") + sql::number(m_id), clsDbConn().GetDbConn());
    if (!rows.IsEOF()) m_name = runtime::toText(rows.Fields(QStringLiteral("DNAME")).Value());
    rows.Close();
    return true;
  });
  if (loaded) CountEmployees();
  return loaded;
}

bool clsDept::LoadByName() {
  m_lastFailure.clear();
  if (m_name.isEmpty()) return false;
  const bool loaded = attempt(m_lastFailure, false, [this] {
    ado::Recordset rows;
    rows.Open(QStringLiteral("SELECT * FROM Dept WHERE DNAME=") + sql::quoted(m_name),
              clsDbConn().GetDbConn());
    if (!rows.IsEOF()) m_id = runtime::toInt16(rows.Fields(QStringLiteral("ID")).Value());
    rows.Close();
    return true;
  });
  if (loaded) CountEmployees();
  return loaded;
}

bool clsDept::Remove(const QString& id) {
  m_lastFailure.clear();
  if (id.isEmpty()) return false;
  return attempt(m_lastFailure, false,
                 [&id] { return affects(QStringLiteral("delete from Dept where ID = ") + sql::number(id)); });
}

bool clsDept::RemoveMe() {
  return Remove(QString::number(m_id));
}

bool clsDept::AppendToDb() {
  m_lastFailure.clear();
  if (m_id >= 1) return false;
  return attempt(m_lastFailure, false, [this] {
    return affects(QStringLiteral("INSERT INTO Dept(DNAME) VALUES(") + sql::quoted(m_name) + u')');
  });
}

bool clsDept::UpdateToDb() {
  m_lastFailure.clear();
  if (m_id <= 0) return false;
  return attempt(m_lastFailure, false, [this] {
    return affects(QStringLiteral("UPDATE Dept SET DNAME = ") + sql::quoted(m_name) +
                   QStringLiteral(" WHERE [ID] = ") + sql::number(m_id));
  });
}

void clsDept::CountEmployees() {
  m_employeeCount = attempt(m_lastFailure, std::int16_t{-1}, [this] {
    ado::Recordset rows;
    rows.Open(QStringLiteral("SELECT COUNT(*) FROM employee WHERE DID = ") + sql::number(m_id),
              clsDbConn().GetDbConn());
    const std::int16_t count = rows.IsEOF() ? std::int16_t{-1} : runtime::toInt16(rows.Fields(0).Value());
    rows.Close();
    return count;
  });
}
