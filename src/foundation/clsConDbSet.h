#pragma once

#include <QString>

/// Settings of a connection to a database server, kept beside those of the file that the program works with.
class clsConDbSet {
 public:
  /// Reads the settings; missing ones are empty.
  clsConDbSet();

  [[nodiscard]] const QString& Server() const { return m_server; }
  void setServer(const QString& server) { m_server = server; }
  [[nodiscard]] const QString& LoginName() const { return m_loginName; }
  void setLoginName(const QString& name) { m_loginName = name; }
  [[nodiscard]] const QString& LoginPwd() const { return m_loginPwd; }
  void setLoginPwd(const QString& password) { m_loginPwd = password; }
  [[nodiscard]] const QString& dbName() const { return m_dbName; }
  void setdbName(const QString& name) { m_dbName = name; }

  /// Writes all four settings, whatever becomes of each; whether all were written.
  [[nodiscard]] bool Save() const;

 private:
  QString m_server;
  QString m_loginName;
  QString m_loginPwd;
  QString m_dbName;
};
