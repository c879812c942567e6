#pragma once

#include <list>
#include <memory>

#include <QString>
#include <QStringList>

#include "store/Statement.h"

namespace store {

/// An open database file, used by one thread. Closed when the object goes; a transaction that is still open
/// is rolled back then. Every failure throws StoreError.
class Database {
 public:
  Database() = default;
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  virtual ~Database() = default;

  /// Prepares one statement in the engine's dialect, ready to be bound and stepped. A statement of the same
  /// text that nobody holds any more is used again. Must not outlive the database.
  [[nodiscard]] std::shared_ptr<Statement> statement(const QString& sql);
  /// Runs a statement to its end and gives the number of rows that it inserted, changed or deleted.
  int run(const QString& sql);
  /// As run, with `values` bound to the parameters in order.
  int run(const QString& sql, const QVariantList& values);

  /// The row key that the last INSERT was given.
  [[nodiscard]] virtual qint64 lastInsertedKey() const = 0;
  /// The number of rows that all statements together inserted, changed or deleted since the opening.
  [[nodiscard]] virtual qint64 totalChanges() const = 0;
  [[nodiscard]] virtual bool inTransaction() const = 0;

  /// Writes what is committed to a new file with the same password. The copy is synced; an existing file is
  /// never replaced, and after a failure no file is left.
  virtual void copyTo(const QString& path) = 0;
  /// Reads every page in use afresh from the disk. Empty when all is well, else one line a finding.
  [[nodiscard]] virtual QStringList checkPages() = 0;

 protected:
  [[nodiscard]] virtual std::shared_ptr<Statement> prepare(const QString& sql) = 0;
  /// Engines call it in their destructor, before they close.
  void forgetStatements() { m_cache.clear(); }

 private:
  struct Prepared {
    QString sql;
    std::shared_ptr<Statement> statement;
  };
  std::list<Prepared> m_cache;
};

/// Resets a statement when the scope ends, so that no path out of it keeps a lock.
class StatementScope {
 public:
  explicit StatementScope(Statement& statement) : m_statement(statement) {}
  StatementScope(const StatementScope&) = delete;
  StatementScope& operator=(const StatementScope&) = delete;
  ~StatementScope() { m_statement.reset(); }

 private:
  Statement& m_statement;
};

}  // namespace store
