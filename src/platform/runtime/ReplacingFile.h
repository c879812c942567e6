#pragma once

#include <QSaveFile>
#include <QString>

namespace runtime {

/// A file that takes the place of `path` only when it is complete: it is written aside, synced and renamed by
/// commit(). Dropped without commit() it leaves the old file as it was. A directory, a device and a target
/// without write permission are refused, for the superuser too. All operations throw FileAccess or FileIo
/// naming the file.
class ReplacingFile {
 public:
  explicit ReplacingFile(const QString& path);

  /// The device to write to; owned here.
  [[nodiscard]] QIODevice& device() { return m_file; }
  void write(const QByteArray& bytes);
  /// Syncs and renames.
  void commit();

 private:
  [[noreturn]] void refuseWriting();

  QSaveFile m_file;
};

/// Whether `path` is there and its permission bits let nobody write: the superuser, whom the system would let
/// through, is bound by them too. Follows links and opens nothing.
[[nodiscard]] bool isReadOnly(const QString& path);

/// Writes a whole file by ReplacingFile.
void replaceFile(const QString& path, const QByteArray& bytes);

}  // namespace runtime
