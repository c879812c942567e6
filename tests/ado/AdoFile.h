#pragma once

#include <functional>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "ado/AdoError.h"
#include "ado/Recordset.h"
#include "store/SqlCipherEngine.h"

/// A database with tables like the programs', in a directory of its own. Waits for locks only shortly.
class AdoFile : public ::testing::Test {
 public:
  ~AdoFile() override {
    connection.reset();
    store::installEngine(m_before);
  }

 protected:
  AdoFile() : m_before(store::installEngine(&engine)) {
    ado::createDatabase(
        path(), QStringLiteral("secret"),
        {QStringLiteral("CREATE TABLE Dept(ID INTEGER PRIMARY KEY AUTOINCREMENT, DNAME TEXT(50) "
                        "COLLATE JET, PASSWORD TEXT(20) COLLATE JET)"),
         QStringLiteral("CREATE TABLE Employee(ID INTEGER PRIMARY KEY AUTOINCREMENT, ENUMBER TEXT(20) "
                        "COLLATE JET NOT NULL, DID INTEGER, ENTERDATE DATETIME_TEXT COLLATE NOCASE "
                        "CHECK(ENTERDATE IS NULL OR ENTERDATE IS strftime('%Y-%m-%d %H:%M:%S',"
                        "ENTERDATE,'+0 days') OR ENTERDATE IS strftime('%Y-%m-%d',ENTERDATE,'+0 "
                        "days')), HEADIMG BLOB)")});
    connection->Open(connectionString());
  }
  [[nodiscard]] QString file(const char* name) const { return directory.filePath(QString::fromUtf8(name)); }
  [[nodiscard]] QString path() const { return file("vorlent.dat"); }
  [[nodiscard]] QString connectionString(const QString& password = QStringLiteral("secret")) const {
    return QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=") + directory.path() +
           QStringLiteral("\\vorlent.dat;Jet OLEDB:Database password=") + password;
  }
  [[nodiscard]] std::shared_ptr<ado::Connection> connect() const {
    auto other = std::make_shared<ado::Connection>();
    other->Open(connectionString());
    return other;
  }

  int execute(const char* sql) { return connection->Execute(QString::fromUtf8(sql)); }

  void open(ado::Recordset& rows, const char* sql) { rows.Open(QString::fromUtf8(sql), connection); }
  void openChangeable(ado::Recordset& rows, const char* sql) {
    rows.Open(QString::fromUtf8(sql), connection, ado::CursorType::Keyset, ado::LockType::Optimistic);
  }

  /// The first column of every row, Null as "<null>".
  QString column(const char* sql) {
    ado::Recordset rows;
    QStringList values;
    for (open(rows, sql); !rows.IsEOF(); rows.MoveNext()) {
      const QVariant value = rows.Fields(0).Value();
      values.append(value.isValid() ? value.toString() : QStringLiteral("<null>"));
    }
    return values.join(u',');
  }

  /// The number of the AdoError that `work` throws, 0 when it throws none; `words` gets the description,
  /// `kind` the kind.
  int failure(const std::function<void()>& work) {
    try {
      work();
    } catch (const ado::AdoError& error) {
      words = error.description();
      kind = error.kind();
      return error.number();
    }
    return 0;
  }

  static int number(ado::AdoErrorNumber error) { return static_cast<int>(error); }

  QTemporaryDir directory;
  store::SqlCipherEngine engine{std::chrono::milliseconds(150)};
  QString words;
  runtime::FailureKind kind = runtime::FailureKind::Other;

 private:
  store::Engine* m_before;

 protected:
  std::shared_ptr<ado::Connection> connection = std::make_shared<ado::Connection>();
};

inline ado::Field& field(ado::Recordset& rows, const char* name) {
  return rows.Fields(QString::fromUtf8(name));
}
