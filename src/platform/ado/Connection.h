#pragma once

#include <memory>

#include <QString>

namespace store {
class Database;
}

namespace ado {

enum class ObjectState { Closed = 0, Open = 1 };

/// A connection to a database file. Every failure is an AdoError.
class Connection {
 public:
  Connection();
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// Opens the file that the `Data Source` of the connection string names (separators of the other system are
  /// mapped here) with its `Jet OLEDB:Database password`. Never creates a file. The description of a failure
  /// tells a missing file, a directory, an empty file, an unencrypted database, an Access file and a wrong
  /// password or damaged file apart. `user` and `password` are not used by the engine.
  void Open(const QString& connectionString, const QString& user = {}, const QString& password = {});
  /// Does nothing on a closed connection. A transaction that is still open is rolled back.
  void Close();
  [[nodiscard]] ObjectState State() const;

  /// Runs one statement that returns no rows and gives the number of records it affected. Waits up to
  /// 5 seconds for a busy file.
  [[nodiscard]] int Execute(const QString& sql);

  /// Begins a transaction that holds the write lock from the start.
  void BeginTrans();
  void CommitTrans();
  void RollbackTrans();

  /// Writes a consistent copy of what is committed, with the same password, to `fileName`, which must not
  /// exist, while other processes may go on working with the file. The copy is synced; after a failure no
  /// file is left.
  void CopyTo(const QString& fileName);
  /// Reads every page in use from the disk and checks the file's structure. Empty when all is well, else one
  /// line a finding, in the engine's words.
  [[nodiscard]] QStringList CheckPages();

  /// The engine underneath, for the classes of this room. Throws AdoError when the connection is not open.
  [[nodiscard]] const std::shared_ptr<store::Database>& database() const;

 private:
  std::shared_ptr<store::Database> m_database;
};

/// The connection behind the pointer; an empty pointer or a closed connection is an AdoError that carries why
/// the last opening in this process failed.
[[nodiscard]] Connection& required(const std::shared_ptr<Connection>& connection);

/// Creates a new encrypted database at `fileName`, which must not exist, and runs `statements` in it, all or
/// nothing: after a failure no file is left.
void createDatabase(const QString& fileName, const QString& password, const QStringList& statements);

}  // namespace ado
