#include "ado/Connection.h"

#include <tuple>

#include "ado/ConnectionString.h"
#include "ado/Translation.h"
#include "runtime/ProgramDirectory.h"
#include "store/Dialect.h"
#include "store/Engine.h"

namespace ado {

namespace {

/// Why the last opening of a connection failed; empty when it did not.
runtime::Failure& lastFailure() {
  static runtime::Failure reason;
  return reason;
}

[[noreturn]] void refuseTransaction(const QString& why) {
  throw AdoError(AdoErrorNumber::OperationNotAllowed, why);
}

}  // namespace

Connection::Connection() = default;

Connection::~Connection() = default;

void Connection::Open(const QString& connectionString, const QString&, const QString&) {
  if (m_database != nullptr) {
    throw AdoError(AdoErrorNumber::OperationNotAllowed, QStringLiteral("连接已经打开"));
  }
  try {
    m_database = translatingErrors([&connectionString] {
      const ConnectionString target = parseConnectionString(connectionString);
      return store::engine().open(runtime::nativePath(target.dataSource), target.password);
    });
    lastFailure().clear();
  } catch (const AdoError& error) {
    lastFailure() = {error.description(), error.kind()};
    throw;
  }
}

void Connection::Close() {
  m_database.reset();
}

ObjectState Connection::State() const {
  return m_database == nullptr ? ObjectState::Closed : ObjectState::Open;
}

int Connection::Execute(const QString& sql) {
  return translatingErrors(
      [&] { return database()->run(store::translated(sql, store::StatementUse::Change)); });
}

void Connection::BeginTrans() {
  if (database()->inTransaction()) refuseTransaction(QStringLiteral("事务已经开始，不能嵌套"));
  translatingErrors([this] { m_database->run(QStringLiteral("BEGIN IMMEDIATE")); });
}

void Connection::CommitTrans() {
  if (!database()->inTransaction()) refuseTransaction(QStringLiteral("没有可提交的事务"));
  translatingErrors([this] { m_database->run(QStringLiteral("COMMIT")); });
}

void Connection::RollbackTrans() {
  if (!database()->inTransaction()) refuseTransaction(QStringLiteral("没有可撤消的事务"));
  translatingErrors([this] { m_database->run(QStringLiteral("ROLLBACK")); });
}

void Connection::CopyTo(const QString& fileName) {
  translatingErrors([&] { database()->copyTo(fileName); });
}

QStringList Connection::CheckPages() {
  return translatingErrors([this] { return database()->checkPages(); });
}

const std::shared_ptr<store::Database>& Connection::database() const {
  if (m_database == nullptr) {
    const runtime::Failure& reason = lastFailure();
    throw AdoError(AdoErrorNumber::ConnectionNotOpen,
                   reason.isEmpty() ? QStringLiteral("数据库连接没有打开")
                                    : QStringLiteral("数据库连接没有打开：%1").arg(reason.words),
                   reason.kind);
  }
  return m_database;
}

Connection& required(const std::shared_ptr<Connection>& connection) {
  static const Connection closed;
  const Connection& candidate = connection == nullptr ? closed : *connection;
  std::ignore = candidate.database();
  return *connection;
}

void createDatabase(const QString& fileName, const QString& password, const QStringList& statements) {
  translatingErrors([&] {
    QStringList engineStatements;
    for (const QString& statement : statements) {
      engineStatements.append(store::translated(statement, store::StatementUse::Change));
    }
    store::engine().create(fileName, password, engineStatements);
  });
}

}  // namespace ado
