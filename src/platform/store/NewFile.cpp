#include "store/NewFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include "runtime/SystemWords.h"
#include "store/FileFacts.h"
#include "store/StoreError.h"

namespace store {

namespace {

constexpr mode_t newFileMode = 0666;

using runtime::FailureKind;

[[noreturn]] void refuse(const QString& target, const QString& why, FailureKind kind) {
  throw StoreError(kind, QStringLiteral("无法创建文件“%1”：%2").arg(target, why));
}

[[noreturn]] void refuse(const QString& target, int systemCode) {
  refuse(target, runtime::systemWords(systemCode), runtime::systemFailureKind(systemCode));
}

[[noreturn]] void refuseExisting(const QString& target) {
  refuse(target, QStringLiteral("文件已经存在"), FailureKind::Duplicate);
}

bool synced(const QString& path, int flags) {
  const int handle = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
  if (handle < 0) return false;
  const bool done = ::fsync(handle) == 0;
  ::close(handle);
  return done;
}

/// Not every file system knows a rename that refuses to replace.
bool renameToFreeName(const QByteArray& from, const QByteArray& to) {
  if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
  if (::access(to.constData(), F_OK) == 0) {
    errno = EEXIST;
    return false;
  }
  return ::rename(from.constData(), to.constData()) == 0;
}

}  // namespace

NewFile::NewFile(const QString& target) : m_target(QFileInfo(target).absoluteFilePath()) {
  if (fileExists(m_target)) refuseExisting(m_target);
  if (directoryIsReadOnly(m_target)) {
    refuse(m_target, QStringLiteral("目录是只读的"), FailureKind::ReadOnly);
  }
  for (int attempt = 0;; ++attempt) {
    m_aside =
        QStringLiteral("%1.%2-%3.part").arg(m_target).arg(QCoreApplication::applicationPid()).arg(attempt);
    const int handle =
        ::open(QFile::encodeName(m_aside).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, newFileMode);
    if (handle >= 0) {
      ::close(handle);
      return;
    }
    if (errno != EEXIST) refuse(m_target, errno);
  }
}

NewFile::~NewFile() {
  if (m_committed) return;
  QFile::remove(m_aside);
  QFile::remove(m_aside + QStringLiteral("-journal"));
}

void NewFile::commit() {
  if (!synced(m_aside, O_RDWR)) refuse(m_target, errno);
  if (!renameToFreeName(QFile::encodeName(m_aside), QFile::encodeName(m_target))) {
    if (errno == EEXIST) refuseExisting(m_target);
    refuse(m_target, errno);
  }
  m_committed = true;
  // The new name is durable only when the directory that holds it is synced too. Some file systems cannot
  // sync a directory; the file is whole there all the same.
  synced(QFileInfo(m_target).absolutePath(), O_RDONLY | O_DIRECTORY);
}

}  // namespace store
