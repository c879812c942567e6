#include "store/SqlCipherOpening.h"

#include <array>
#include <string_view>

#include <QFile>

#include "runtime/ReplacingFile.h"
#include "store/FileFacts.h"
#include "store/JetCollation.h"
#include "store/StoreError.h"

namespace store {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view plainHeader = "SQLite format 3\0"sv;
constexpr std::string_view accessHeader = "\0\1\0\0Standard Jet DB"sv;

int compareTexts(void*, int leftSize, const void* left, int rightSize, const void* right) {
  return compareJet({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                    {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

Handle openHandle(const Opening& opening) {
  const bool readOnly = runtime::isReadOnly(opening.path) || directoryIsReadOnly(opening.path);
  const int access = readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(QFile::encodeName(opening.path).constData(), &opened,
                                   access | SQLITE_OPEN_NOMUTEX, nullptr);
  Handle handle(opened);
  if (code != SQLITE_OK) {
    throwEngineError(code,
                     QString::fromUtf8(opened == nullptr ? sqlite3_errstr(code) : sqlite3_errmsg(opened)));
  }
  sqlite3_busy_timeout(opened, static_cast<int>(opening.wait.count()));
  return handle;
}

/// Reads the file's beginning by the engine's own handle.
std::string firstBytes(sqlite3* handle, std::size_t count) {
  sqlite3_file* file = nullptr;
  std::string bytes(count, '\0');
  if (sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK) return bytes;
  // A file shorter than that is filled up with zeros, which is no header at all.
  file->pMethods->xRead(file, bytes.data(), static_cast<int>(count), 0);
  return bytes;
}

[[noreturn]] void refuse(const QString& description) {
  throw StoreError(runtime::FailureKind::Foreign, description);
}

void refuseOtherFormats(sqlite3* handle, const QString& path) {
  const std::string header = firstBytes(handle, accessHeader.size());
  if (header.starts_with(plainHeader)) {
    refuse(QStringLiteral("“%1”是没有加密的 SQLite 数据库，不能打开").arg(path));
  }
  if (header.starts_with(accessHeader)) {
    refuse(QStringLiteral("“%1”是 Access 数据库，必须先转换才能打开").arg(path));
  }
}

/// The page size must be set before the first page is read, by every program the same: a wrong one looks like
/// a wrong password. Later versions of the library use other parameters unless they are told the version.
void setKey(sqlite3* handle, const QString& password) {
  const QByteArray key = password.toUtf8();
  if (sqlite3_key(handle, key.constData(), static_cast<int>(key.size())) != SQLITE_OK)
    throwEngineError(handle);
  runPlain(handle, "PRAGMA cipher_compatibility=3");
  runPlain(handle, "PRAGMA cipher_page_size=4096");
}

void addCollation(sqlite3* handle) {
  if (sqlite3_create_collation(handle, jetCollationName, SQLITE_UTF8, nullptr, compareTexts) != SQLITE_OK) {
    throwEngineError(handle);
  }
}

/// Sorting must not leave names or photos in clear text in a temporary file.
void makeSettings(sqlite3* handle) {
  runPlain(handle, "PRAGMA journal_mode=DELETE");
  runPlain(handle, "PRAGMA synchronous=EXTRA");
  runPlain(handle, "PRAGMA cache_size=-16000");
  runPlain(handle, "PRAGMA temp_store=MEMORY");
}

int readTableCount(void* count, int, char** values, char**) {
  *static_cast<int*>(count) = std::atoi(values[0]);
  return 0;
}

void requireTables(sqlite3* handle, const QString& path) {
  int tables = 0;
  if (sqlite3_exec(handle, "SELECT count(*) FROM sqlite_master WHERE type='table'", readTableCount, &tables,
                   nullptr) != SQLITE_OK) {
    const int code = sqlite3_errcode(handle) & 0xFF;
    if (code != SQLITE_NOTADB && code != SQLITE_CORRUPT) throwEngineError(handle);
    const QString why = code == SQLITE_NOTADB ? QStringLiteral("密码不正确，或者文件已损坏、不是数据库")
                                              : QStringLiteral("文件已损坏");
    throw StoreError(failureKind(code),
                     QStringLiteral("无法打开数据库“%1”：%2（%3）")
                         .arg(path, why, QString::fromUtf8(sqlite3_errmsg(handle))),
                     code);
  }
  if (tables == 0) refuse(QStringLiteral("数据库“%1”中没有任何表").arg(path));
}

}  // namespace

Handle openExisting(const Opening& opening) {
  requireDatabaseFile(opening.path);
  Handle handle = openHandle(opening);
  refuseOtherFormats(handle.get(), opening.path);
  setKey(handle.get(), opening.password);
  addCollation(handle.get());
  requireTables(handle.get(), opening.path);
  makeSettings(handle.get());
  return handle;
}

Handle openEmpty(const Opening& opening) {
  if (opening.password.isEmpty()) {
    throw StoreError(runtime::FailureKind::Refused, QStringLiteral("数据库密码不能为空"));
  }
  Handle handle = openHandle(opening);
  setKey(handle.get(), opening.password);
  addCollation(handle.get());
  makeSettings(handle.get());
  return handle;
}

}  // namespace store
