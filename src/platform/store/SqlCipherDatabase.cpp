#include "store/SqlCipherDatabase.h"

#include "store/NewFile.h"
#include "store/SqlCipherStatement.h"
#include "store/StoreError.h"

namespace store {

namespace {

struct BackupFinisher {
  void operator()(sqlite3_backup* backup) const noexcept { sqlite3_backup_finish(backup); }
};

/// In one step, so that nobody can change the source in between.
void copyPages(sqlite3* source, sqlite3* target) {
  const std::unique_ptr<sqlite3_backup, BackupFinisher> backup(
      sqlite3_backup_init(target, "main", source, "main"));
  if (backup == nullptr) throwEngineError(target);
  const int code = sqlite3_backup_step(backup.get(), -1);
  if (code != SQLITE_DONE) throwEngineError(code, QString::fromUtf8(sqlite3_errstr(code)));
}

}  // namespace

SqlCipherDatabase::SqlCipherDatabase(const Opening& opening)
    : m_opening(opening), m_handle(openExisting(opening)) {}

SqlCipherDatabase::~SqlCipherDatabase() {
  forgetStatements();
}

qint64 SqlCipherDatabase::lastInsertedKey() const {
  return sqlite3_last_insert_rowid(m_handle.get());
}

qint64 SqlCipherDatabase::totalChanges() const {
  return sqlite3_total_changes(m_handle.get());
}

bool SqlCipherDatabase::inTransaction() const {
  return sqlite3_get_autocommit(m_handle.get()) == 0;
}

std::shared_ptr<Statement> SqlCipherDatabase::prepare(const QString& sql) {
  return std::make_shared<SqlCipherStatement>(m_handle.get(), sql);
}

void SqlCipherDatabase::copyTo(const QString& path) {
  NewFile file(path);
  {
    // A handle of its own sees what is committed, not what this connection's transaction may still undo.
    const Handle source = openExisting(m_opening);
    const Handle target = openEmpty({file.asidePath(), m_opening.password, m_opening.wait});
    copyPages(source.get(), target.get());
  }
  file.commit();
}

QStringList SqlCipherDatabase::checkPages() {
  QStringList findings;
  try {
    // Pages in this connection's cache would hide damage on the disk.
    const Handle fresh = openExisting(m_opening);
    SqlCipherStatement check(fresh.get(), QStringLiteral("PRAGMA integrity_check"));
    while (check.step()) findings.append(check.value(0).toString());
  } catch (const StoreError& error) {
    if (error.number() == static_cast<int>(StoreCode::Busy)) throw;
    findings.append(error.description());
  }
  if (findings == QStringList{QStringLiteral("ok")}) findings.clear();
  return findings;
}

}  // namespace store
