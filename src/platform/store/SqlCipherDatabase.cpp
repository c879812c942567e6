#include "store/SqlCipherDatabase.h"

#include <algorithm>

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
  // A page that cannot be decrypted comes out as no more than "an error".
  if (code == SQLITE_ERROR) throwDamage();
  if (code != SQLITE_DONE) throwEngineError(code, QString::fromUtf8(sqlite3_errstr(code)));
}

/// After a page that cannot be decrypted the engine reads no other one: what it says of those is no finding.
QStringList withoutSequels(const QStringList& findings) {
  const bool stopped = std::any_of(findings.begin(), findings.end(), [](const QString& finding) {
    return finding.contains(QLatin1String("unable to get the page"));
  });
  QStringList own;
  for (const QString& finding : findings) {
    if (finding.startsWith(QLatin1String("***"))) continue;
    if (stopped && (finding.contains(QLatin1String("unable to get the page")) ||
                    finding.endsWith(QLatin1String("is never used")))) {
      continue;
    }
    own.append(finding);
  }
  // The page that stopped it may have been taken for a binary's end: then there are only sequels.
  return own.isEmpty() ? findings.mid(findings.size() > 1 ? 1 : 0, 1) : own;
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
    while (check.step()) findings += check.value(0).toString().split(u'\n', Qt::SkipEmptyParts);
  } catch (const StoreError& error) {
    if (error.kind() == runtime::FailureKind::Busy) throw;
    if (findings.isEmpty()) findings.append(error.description());
  }
  return findings == QStringList{QStringLiteral("ok")} ? QStringList() : withoutSequels(findings);
}

}  // namespace store
