#pragma once

#include <QString>
#include <QStringList>

/// Records as persisted recordsets in XML files. Each writes all columns, gives the number of rows and throws
/// runtime::RuntimeError when the file could not be written or the records not be read. A file of that name
/// stays as it was until the new one is complete.

/// The employees with these numbers, in the order in which they are stored; a number that no employee has is
/// passed over, no number at all is an error.
int exportEmployees(const QStringList& numbers, const QString& path);
int exportAllEmployees(const QString& path);
int exportDepartments(const QString& path);
