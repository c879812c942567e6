#pragma once

#include <memory>

#include <QString>

#include "ado/Connection.h"

/// Hands out the shared, lazily opened connection.
class clsDbConn {
 public:
  /// Takes the shared connection as it is now.
  clsDbConn();

  /// The open connection, opened first when it is not; empty when that failed. Shows no message.
  [[nodiscard]] std::shared_ptr<ado::Connection> GetDbConn();
  /// Closes and opens again; whether that succeeded.
  [[nodiscard]] bool TestConn();

 private:
  [[nodiscard]] bool OpenConnection();

  std::shared_ptr<ado::Connection> m_Conn;
};

/// The text that opens the database.
[[nodiscard]] QString BuildConnectionString();
/// The password that the program gives its database files.
[[nodiscard]] QString databasePassword();
