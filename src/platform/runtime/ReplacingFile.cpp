#include "runtime/ReplacingFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace runtime {

namespace {

[[noreturn]] void refuse(ErrorNumber number, const QString& path, const QString& why,
                         FailureKind kind = FailureKind::Refused) {
  throw RuntimeError(number, QStringLiteral("无法写入文件“%1”：%2").arg(path, why), kind);
}

/// The directory that holds the file, behind a symbolic link the one that holds its target.
QString directoryOf(const QString& path) {
  const QFileInfo file(path);
  return file.exists() ? QFileInfo(file.canonicalFilePath()).path() : file.absolutePath();
}

/// Renaming over a device would put a file in its place.
void refuseOtherThanFile(const QString& path) {
  struct stat facts {};
  if (::stat(QFile::encodeName(path).constData(), &facts) != 0) return;
  if (S_ISDIR(facts.st_mode)) refuse(ErrorNumber::FileAccess, path, QStringLiteral("是一个目录"));
  if (!S_ISREG(facts.st_mode)) refuse(ErrorNumber::FileAccess, path, QStringLiteral("不是普通文件"));
}

/// The new name is durable only when the directory that holds it is synced too.
void syncDirectoryOf(const QString& path) {
  const int directory = ::open(QFile::encodeName(directoryOf(path)).constData(), O_RDONLY | O_DIRECTORY);
  if (directory < 0) return;
  ::fsync(directory);
  ::close(directory);
}

}  // namespace

ReplacingFile::ReplacingFile(const QString& path) : m_file(path) {
  refuseOtherThanFile(path);
  if (isReadOnly(path))
    refuse(ErrorNumber::FileAccess, path, QStringLiteral("文件是只读的"), FailureKind::ReadOnly);
  const QString directory = directoryOf(path);
  if (isReadOnly(directory)) {
    refuse(ErrorNumber::FileAccess, path, QStringLiteral("目录是只读的"), FailureKind::ReadOnly);
  }
  if (::access(QFile::encodeName(directory).constData(), W_OK) != 0) {
    refuse(ErrorNumber::FileAccess, path, systemWords(errno), systemFailureKind(errno));
  }
  if (!m_file.open(QIODevice::WriteOnly)) {
    refuse(ErrorNumber::FileAccess, path, systemWords(m_file.errorString()));
  }
}

void ReplacingFile::write(const QByteArray& bytes) {
  errno = 0;
  if (m_file.write(bytes) != bytes.size()) refuseWriting();
}

void ReplacingFile::refuseWriting() {
  // The file forgets the system's reason when it gives up.
  const QString why = errno == 0 ? systemWords(m_file.errorString()) : systemWords(errno);
  refuse(ErrorNumber::FileIo, m_file.fileName(), why, systemFailureKind(errno));
}

void ReplacingFile::commit() {
  // The rename must not come before the content is on the disk; QSaveFile syncs too, but takes a failure for
  // success.
  errno = 0;
  if (!m_file.flush() || ::fsync(m_file.handle()) != 0 || !m_file.commit()) refuseWriting();
  syncDirectoryOf(m_file.fileName());
}

bool isReadOnly(const QString& path) {
  struct stat facts {};
  return ::stat(QFile::encodeName(path).constData(), &facts) == 0 &&
         (facts.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
}

void replaceFile(const QString& path, const QByteArray& bytes) {
  ReplacingFile file(path);
  file.write(bytes);
  file.commit();
}

}  // namespace runtime
