#pragma once

#include <QString>
#include <QStringList>

/// The statements that make the tables Dept, Employee and Presence and their indices in an empty database.
[[nodiscard]] QStringList schemaStatements();
/// Names of the tables that a database of ours must have.
[[nodiscard]] QStringList requiredTables();
