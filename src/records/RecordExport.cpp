#include "records/RecordExport.h"

#include "ado/Recordset.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "runtime/RuntimeError.h"

namespace {

int exportRows(const QString& query, const QString& path) {
  ado::Recordset rows;
  rows.Open(query, clsDbConn().GetDbConn());
  const int count = rows.RecordCount();
  // Nobody deletes the older file before: Save replaces it, and only by a complete one.
  rows.Save(path, ado::PersistFormat::Xml);
  rows.Close();
  return count;
}

}  // namespace

int exportEmployees(const QStringList& numbers, const QString& path) {
  // The database would take the empty list and find nobody.
  if (numbers.isEmpty()) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall, QStringLiteral("没有选中员工"));
  }
  QString list;
  for (const QString& number : numbers) {
    if (!list.isEmpty()) list += u',';
    list += sql::quoted(number);
  }
  return exportRows(QStringLiteral("SELECT * FROM Employee WHERE ENUMBER IN (") + list + u')', path);
}

int exportAllEmployees(const QString& path) {
  return exportRows(QStringLiteral("SELECT * FROM Employee"), path);
}

int exportDepartments(const QString& path) {
  return exportRows(QStringLiteral("SELECT * FROM Dept"), path);
}
