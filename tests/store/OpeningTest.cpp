#include <sqlcipher/sqlite3.h>

#include <QDir>

#include "store/StoreFile.h"

namespace {

using support::contentOf;
using support::writeFile;

class Opening : public StoreFile {
 protected:
  QString openingFailure(const QString& name, const QString& key) {
    return failure([&] { std::ignore = engine.open(name, key); });
  }

  void expectRefused(const QString& name, const QString& part) {
    const QString words = openingFailure(name, password);
    EXPECT_TRUE(words.contains(part)) << "said: " << words.toStdString();
  }
};

}  // namespace

TEST_F(Opening, WhatIsNoDatabaseIsToldApart) {
  writeFile(file("empty.dat"), {});
  writeFile(file("text.dat"), QByteArray(9000, 'x'));
  writeFile(file("short.dat"), "x");
  writeFile(file("access.dat"), QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(8192, '\0'));
  writeFile(file("plain.dat"), QByteArray("SQLite format 3\0", 16) + QByteArray(8192, '\0'));
  expectRefused(file("missing.dat"), QStringLiteral("找不到"));
  expectRefused(directory.path(), QStringLiteral("目录"));
  expectRefused(file("empty.dat"), QStringLiteral("空的"));
  expectRefused(file("text.dat"), QStringLiteral("密码不正确"));
  expectRefused(file("short.dat"), QStringLiteral("没有任何表"));
  expectRefused(file("access.dat"), QStringLiteral("转换"));
  expectRefused(file("plain.dat"), QStringLiteral("没有加密"));
  EXPECT_TRUE(openingFailure(path(), QStringLiteral("Secret")).contains(QStringLiteral("密码不正确")));
  EXPECT_FALSE(openingFailure(path(), {}).isEmpty());
  EXPECT_EQ(openingFailure(path(), password), QString());
}

TEST_F(Opening, ChangesNothingOnTheDisk) {
  writeFile(file("empty.dat"), {});
  const QByteArray before = contentOf(path());
  std::ignore = openingFailure(file("missing.dat"), password);
  std::ignore = openingFailure(file("empty.dat"), password);
  std::ignore = openingFailure(path(), QStringLiteral("wrong"));
  ASSERT_EQ(openingFailure(path(), password), QString());
  EXPECT_EQ(contentOf(path()), before);
  EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files),
            (QStringList{QStringLiteral("data.dat"), QStringLiteral("empty.dat")}));
}

TEST_F(Opening, DamageIsAnErrorAndFoundByTheCheck) {
  open()->run(QStringLiteral("INSERT INTO Person(NAME, PHOTO) VALUES('a', randomblob(100000))"));
  const QByteArray whole = contentOf(path());
  ASSERT_TRUE(open()->checkPages().isEmpty());

  EXPECT_FALSE(whole.contains("Person")) << "nothing can be read without the password";
  support::damageFile(path(), whole.size() / 2);
  EXPECT_FALSE(open()->checkPages().isEmpty());
  EXPECT_NE(failure([this] { column(*open(), QStringLiteral("SELECT PHOTO FROM Person")); }), QString());

  writeFile(path(), whole);
  support::damageFile(path(), 2000);
  expectRefused(path(), QStringLiteral("密码不正确，或者文件已损坏"));

  writeFile(path(), whole.left(whole.size() / 2 / 4096 * 4096));
  expectRefused(path(), QStringLiteral("损坏"));
  writeFile(path(), whole.left(whole.size() - 100));
  EXPECT_FALSE(open()->checkPages().isEmpty());
}

TEST_F(Opening, ADamagedPageNeverPassesForAnotherValue) {
  open()->run(QStringLiteral("INSERT INTO Person(PHOTO) VALUES(randomblob(12000))"));
  const QByteArray whole = contentOf(path());
  const auto photo = [](store::Database& database) {
    const auto statement = database.statement(QStringLiteral("SELECT PHOTO FROM Person"));
    const store::StatementScope scope(*statement);
    return statement->step() ? statement->value(0).toByteArray() : QByteArray();
  };
  const QByteArray before = photo(*open());
  int failures = 0;
  for (qint64 page = 4096; page < whole.size(); page += 4096) {
    writeFile(path(), whole);
    support::damageFile(path(), page + 500);
    QByteArray read = before;
    if (!failure([&] { read = photo(*open()); }).isEmpty()) ++failures;
    EXPECT_EQ(read, before) << "page " << page / 4096;
    EXPECT_EQ(open()->checkPages().size(), 1) << "page " << page / 4096;
  }
  EXPECT_GE(failures, 3);
}

TEST_F(Opening, EveryConnectionSyncsItsJournal) {
  const auto database = open();
  EXPECT_EQ(column(*database, QStringLiteral("PRAGMA journal_mode")), QStringList(QStringLiteral("delete")));
  EXPECT_EQ(column(*database, QStringLiteral("PRAGMA synchronous")), QStringList(QStringLiteral("3")));
}

// Another library that exports the same symbols would take its place silently.
TEST_F(Opening, TheLinkedLibraryIsSqlCipher) {
  const QString version = store::SqlCipherEngine::version();
  EXPECT_TRUE(version.contains(QString::fromLatin1(sqlite3_sourceid())));
  EXPECT_FALSE(version.contains(QStringLiteral("SQLCipher ,"))) << version.toStdString();
}

TEST_F(Opening, ReadOnlyFileStaysReadOnly) {
  QFile::setPermissions(path(), QFileDevice::ReadOwner);
  const auto database = open();
  EXPECT_EQ(column(*database, QStringLiteral("SELECT count(*) FROM Person")),
            QStringList{QStringLiteral("0")});
  EXPECT_TRUE(
      failure([&] { database->run(QStringLiteral("DELETE FROM Person")); }).contains(QStringLiteral("只读")));
}
