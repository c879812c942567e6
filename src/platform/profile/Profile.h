#pragma once

#include <QByteArray>
#include <QString>

/// The two calls that read and write profile (INI) files. All texts but the file's name are bytes in the
/// file's own code page.
namespace profile {

/// Copies the value of `key` in `section`, or `defaultValue` when there is none, into `buffer`, cut to
/// `size` - 1 bytes and ended by a zero. Returns the bytes copied without that zero. A file that is missing
/// or cannot be read has no sections.
int GetPrivateProfileStringA(const QByteArray& section, const QByteArray& key, const QByteArray& defaultValue,
                             char* buffer, int size, const QString& fileName);

/// Sets `key` in `section` to `value`, creating file, section and key as needed, and keeps every other byte
/// of the file. The file is replaced as a whole or stays as it was. Returns whether it was written.
[[nodiscard]] bool WritePrivateProfileStringA(const QByteArray& section, const QByteArray& key,
                                              const QByteArray& value, const QString& fileName);

}  // namespace profile
