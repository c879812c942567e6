#include "store/SqlCipherEngine.h"

#include <tuple>

#include <QFileInfo>

#include "store/NewFile.h"
#include "store/SqlCipherDatabase.h"
#include "store/SqlCipherStatement.h"
#include "store/StoreError.h"

namespace store {

namespace {

void runAll(sqlite3* handle, const QStringList& statements) {
  runPlain(handle, "BEGIN IMMEDIATE");
  for (const QString& statement : statements) runPlain(handle, statement.toUtf8().constData());
  runPlain(handle, "COMMIT");
}

}  // namespace

std::shared_ptr<Database> SqlCipherEngine::open(const QString& path, const QString& password) {
  return std::make_shared<SqlCipherDatabase>(Opening{QFileInfo(path).absoluteFilePath(), password, m_wait});
}

void SqlCipherEngine::create(const QString& path, const QString& password, const QStringList& statements) {
  NewFile file(path);
  const Opening opening{file.asidePath(), password, m_wait};
  runAll(openEmpty(opening).get(), statements);
  // Whatever is given its name must open: a file without a table is refused here.
  std::ignore = openExisting(opening);
  file.commit();
}

QString SqlCipherEngine::version() {
  const Handle handle = [] {
    sqlite3* opened = nullptr;
    sqlite3_open(":memory:", &opened);
    return Handle(opened);
  }();
  SqlCipherStatement cipher(handle.get(), QStringLiteral("PRAGMA cipher_version"));
  const QString cipherVersion = cipher.step() ? cipher.value(0).toString() : QString();
  return QStringLiteral("SQLCipher %1, SQLite %2 (%3)")
      .arg(cipherVersion, QString::fromLatin1(sqlite3_libversion()), QString::fromLatin1(sqlite3_sourceid()));
}

}  // namespace store
