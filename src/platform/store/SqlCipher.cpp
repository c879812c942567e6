#include "store/SqlCipher.h"

#include "store/StoreError.h"

namespace store {

namespace {

QString meaning(int code) {
  switch (code) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return QStringLiteral("数据库正被其他程序占用");
    case SQLITE_READONLY:
      return QStringLiteral("数据库是只读的");
    case SQLITE_FULL:
      return QStringLiteral("磁盘已满");
    case SQLITE_CANTOPEN:
      return QStringLiteral("无法打开数据库的文件");
    case SQLITE_IOERR:
      return QStringLiteral("读写数据库文件时出错");
    case SQLITE_CORRUPT:
      return QStringLiteral("数据库文件已损坏");
    case SQLITE_NOTADB:
      return QStringLiteral("密码不正确，或者文件已损坏、不是数据库");
    default:
      return QStringLiteral("数据库操作失败");
  }
}

}  // namespace

runtime::FailureKind failureKind(int code) {
  using runtime::FailureKind;
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return FailureKind::Busy;
    case SQLITE_READONLY:
      return FailureKind::ReadOnly;
    case SQLITE_FULL:
      return FailureKind::Full;
    case SQLITE_CORRUPT:
      return FailureKind::Damaged;
    case SQLITE_NOTADB:
      return FailureKind::WrongPassword;
    case SQLITE_CONSTRAINT:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return FailureKind::Refused;
    default:
      return FailureKind::Other;
  }
}

void throwEngineError(int code, const QString& words) {
  const int primary = code & 0xFF;
  throw StoreError(failureKind(code), QStringLiteral("%1（%2）").arg(meaning(primary), words), primary);
}

void throwEngineError(sqlite3* handle) {
  throwEngineError(sqlite3_errcode(handle), QString::fromUtf8(sqlite3_errmsg(handle)));
}

void throwDamage() {
  throwEngineError(SQLITE_CORRUPT, QString::fromUtf8(sqlite3_errstr(SQLITE_CORRUPT)));
}

void runPlain(sqlite3* handle, const char* sql) {
  if (sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK) throwEngineError(handle);
}

}  // namespace store
