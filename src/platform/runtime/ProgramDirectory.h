#pragma once

#include <QString>

/// Where the program keeps its own files, and how paths are formed.
namespace runtime {

/// The program directory, without a trailing separator: the one set below, else the executable's.
[[nodiscard]] QString AppPath();
/// Makes `directory` the program directory; an empty one returns to the executable's.
void setAppPath(const QString& directory);
/// Chooses the program directory at start: `chosen` (from the command line) when not empty, else the
/// environment variable ATTENDANCE_HOME when not empty, else the executable's directory.
void chooseAppPath(const QString& chosen);

/// The path of the file `name` in the program directory.
[[nodiscard]] QString appFile(const QString& name);
/// `path` with the other system's separators replaced by this system's. Used where a file named by a stored
/// text is opened.
[[nodiscard]] QString nativePath(const QString& path);
/// Whether `name` can only name a file in the directory it is put into: not empty, no separator of either
/// system, no NUL, not `.` or `..`, and short enough with an ending for a file system (250 bytes).
[[nodiscard]] bool isPlainFileName(const QString& name);
/// Whether a plain file (not a directory) of that name exists.
[[nodiscard]] bool isNormalFile(const QString& path);

}  // namespace runtime
