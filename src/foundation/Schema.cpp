#include "foundation/Schema.h"

namespace {

/// A date-time column holds `yyyy-mm-dd` or `yyyy-mm-dd hh:mm:ss` and no day that does not exist: '+0 days'
/// makes the engine count 2026-02-30 on into March, so that it differs from what was written; IS (and not =)
/// keeps an answer of Null from passing for a yes.
QString dateTimeColumn(const QString& name) {
  return QStringLiteral(
             "%1 DATETIME_TEXT COLLATE NOCASE CHECK (%1 IS NULL"
             " OR %1 IS strftime('%Y-%m-%d %H:%M:%S', %1, '+0 days')"
             " OR %1 IS strftime('%Y-%m-%d', %1, '+0 days'))")
      .replace(QStringLiteral("%1"), name);
}

QString departmentTable() {
  return QStringLiteral(
      "CREATE TABLE Dept (ID INTEGER PRIMARY KEY AUTOINCREMENT, DNAME TEXT(50) COLLATE JET,"
      " PASSWORD TEXT(50) COLLATE JET)");
}

/// The photo stands last, so that reading the other columns touches none of its pages.
QString employeeTable() {
  return QStringLiteral(
             "CREATE TABLE Employee (ID INTEGER PRIMARY KEY AUTOINCREMENT, ENUMBER TEXT(50) COLLATE JET,"
             " ENAME TEXT(50) COLLATE JET, DID INTEGER, EBARCODE TEXT(50) COLLATE JET, ") +
         dateTimeColumn(QStringLiteral("ENTERDATE")) + QStringLiteral(", HEADIMG BLOB)");
}

QString presenceTable() {
  return QStringLiteral("CREATE TABLE Presence (ENUMBER TEXT(50) COLLATE JET, ") +
         dateTimeColumn(QStringLiteral("ENTERTIME")) + QStringLiteral(", ") +
         dateTimeColumn(QStringLiteral("EXITTIME")) + u')';
}

QStringList indices() {
  return {
      QStringLiteral("CREATE INDEX DeptName ON Dept (DNAME)"),
      // With the name in it, listing a month's records reads no row of the table.
      QStringLiteral("CREATE INDEX EmployeeNumber ON Employee (ENUMBER, ENAME)"),
      QStringLiteral("CREATE INDEX EmployeeBarcode ON Employee (EBARCODE)"),
      QStringLiteral("CREATE INDEX EmployeeDepartment ON Employee (DID)"),
      QStringLiteral("CREATE INDEX PresenceOfEmployee ON Presence (ENUMBER, ENTERTIME)"),
      QStringLiteral("CREATE INDEX PresenceTime ON Presence (ENTERTIME)"),
  };
}

}  // namespace

QStringList schemaStatements() {
  return QStringList{departmentTable(), employeeTable(), presenceTable()} + indices();
}

QStringList requiredTables() {
  return {QStringLiteral("Dept"), QStringLiteral("Employee"), QStringLiteral("Presence")};
}
