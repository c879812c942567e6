#include "store/FileFacts.h"

#include <cerrno>
#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>

#include "runtime/ReplacingFile.h"
#include "store/StoreError.h"

namespace store {

namespace {

using runtime::FailureKind;

[[noreturn]] void refuse(const QString& sentence, const QString& path) {
  throw StoreError(FailureKind::Foreign, sentence.arg(path));
}

}  // namespace

bool fileExists(const QString& path) {
  struct stat facts {};
  return ::lstat(QFile::encodeName(path).constData(), &facts) == 0;
}

bool directoryIsReadOnly(const QString& path) {
  return runtime::isReadOnly(QFileInfo(path).absolutePath());
}

void requireDatabaseFile(const QString& path) {
  struct stat facts {};
  if (path.contains(QChar(u'\0')) || ::stat(QFile::encodeName(path).constData(), &facts) != 0) {
    if (errno == EACCES) {
      throw StoreError(FailureKind::Refused, QStringLiteral("没有权限访问数据库文件“%1”").arg(path));
    }
    throw StoreError(FailureKind::Missing, QStringLiteral("找不到数据库文件“%1”").arg(path));
  }
  if (S_ISDIR(facts.st_mode)) refuse(QStringLiteral("“%1”是一个目录，不是数据库文件"), path);
  if (!S_ISREG(facts.st_mode)) refuse(QStringLiteral("“%1”不是普通文件，不能作为数据库打开"), path);
  if (facts.st_size == 0) refuse(QStringLiteral("数据库文件“%1”是空的"), path);
}

}  // namespace store
