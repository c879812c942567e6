#pragma once

#include <functional>
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "store/SqlCipherEngine.h"
#include "store/StoreError.h"
#include "support/Files.h"

/// A database of one table in a directory of its own. Waits for locks only shortly.
class StoreFile : public ::testing::Test {
 protected:
  static constexpr std::chrono::milliseconds shortWait{150};

  StoreFile() { create(path()); }

  void create(const QString& file) {
    engine.create(
        file, password,
        {QStringLiteral("CREATE TABLE Person(ID INTEGER PRIMARY KEY AUTOINCREMENT, NAME TEXT(50) COLLATE "
                        "JET, BORN DATETIME_TEXT COLLATE NOCASE, PHOTO BLOB)"),
         QStringLiteral("CREATE INDEX PersonBorn ON Person(BORN)"),
         QStringLiteral("CREATE INDEX PersonName ON Person(NAME)")});
  }

  [[nodiscard]] QString file(const char* name) const { return directory.filePath(QString::fromUtf8(name)); }
  [[nodiscard]] QString path() const { return file("data.dat"); }
  [[nodiscard]] std::shared_ptr<store::Database> open() { return engine.open(path(), password); }

  /// The values of the first column, as text.
  static QStringList column(store::Database& database, const QString& sql) {
    const auto statement = database.statement(sql);
    const store::StatementScope scope(*statement);
    QStringList values;
    while (statement->step()) values.append(statement->value(0).toString());
    return values;
  }

  /// The description of the StoreError that `work` throws, "" when it throws none.
  static QString failure(const std::function<void()>& work) {
    try {
      work();
    } catch (const store::StoreError& error) {
      return error.description();
    }
    return {};
  }

  QTemporaryDir directory;
  QString password = QStringLiteral("secret");
  store::SqlCipherEngine engine{shortWait};
};
