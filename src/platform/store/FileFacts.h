#pragma once

#include <QString>

/// What can be told of a database file without opening it: opening and closing it by another handle would
/// drop the locks that the engine holds on it in this process.
namespace store {

/// Whether the name is taken, by a link that leads nowhere too.
[[nodiscard]] bool fileExists(const QString& path);
/// Whether nothing may be made beside the file by the permission bits of its directory.
[[nodiscard]] bool directoryIsReadOnly(const QString& path);
/// Throws StoreError when `path` names nothing, a directory or other special file, or an empty file.
void requireDatabaseFile(const QString& path);

}  // namespace store
