#include "runtime/SystemWords.h"

#include <cerrno>
#include <cstring>

namespace runtime {

QString systemWords(int code) {
  switch (code) {
    case EACCES:
    case EPERM:
      return QStringLiteral("没有权限");
    case ENOENT:
      return QStringLiteral("文件或目录不存在");
    case ENOTDIR:
      return QStringLiteral("路径中有一段不是目录");
    case EISDIR:
      return QStringLiteral("是一个目录");
    case EEXIST:
      return QStringLiteral("文件已经存在");
    case ENOSPC:
      return QStringLiteral("磁盘已满");
    case EDQUOT:
      return QStringLiteral("磁盘配额已用完");
    case EROFS:
      return QStringLiteral("磁盘是只读的");
    case ENAMETOOLONG:
      return QStringLiteral("文件名太长");
    case EIO:
      return QStringLiteral("读写磁盘时出错");
    default:
      return QString::fromLocal8Bit(std::strerror(code));
  }
}

QString systemWords(const QString& errorString) {
  for (const int code :
       {EACCES, EPERM, ENOENT, ENOTDIR, EISDIR, EEXIST, ENOSPC, EDQUOT, EROFS, ENAMETOOLONG, EIO}) {
    if (qt_error_string(code) == errorString) return systemWords(code);
  }
  return errorString;
}

FailureKind systemFailureKind(int code) {
  switch (code) {
    case EACCES:
    case EPERM:
      return FailureKind::Refused;
    case ENOENT:
    case ENOTDIR:
      return FailureKind::Missing;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FailureKind::Full;
    case EROFS:
      return FailureKind::ReadOnly;
    default:
      return FailureKind::Other;
  }
}

}  // namespace runtime
