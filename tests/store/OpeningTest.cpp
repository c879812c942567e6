#include <sqlcipher/sqlite3.h>

#include <QDir>

#include "store/StoreFile.h"

namespace {

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
  write(file("empty.dat"), {});
  write(file("text.dat"), QByteArray(9000, 'x'));
  write(file("short.dat"), "x");
  write(file("access.dat"), QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(8192, '\0'));
  write(file("plain.dat"), QByteArray("SQLite format 3\0", 16) + QByteArray(8192, '\0'));
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
  write(file("empty.dat"), {});
  const QByteArray before = read(path());
  std::ignore = openingFailure(file("missing.dat"), password);
  std::ignore = openingFailure(file("empty.dat"), password);
  std::ignore = openingFailure(path(), QStringLiteral("wrong"));
  ASSERT_EQ(openingFailure(path(), password), QString());
  EXPECT_EQ(read(path()), before);
  EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files),
            (QStringList{QStringLiteral("data.dat"), QStringLiteral("empty.dat")}));
}

TEST_F(Opening, PlainDatabaseWithTablesIsRefusedWithoutAPasswordToo) {
  sqlite3* plain = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(file("plain.dat")).constData(), &plain), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(plain, "CREATE TABLE t(a)", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(plain);
  EXPECT_TRUE(openingFailure(file("plain.dat"), {}).contains(QStringLiteral("没有加密")));
}

TEST_F(Opening, DamageIsAnErrorAndFoundByTheCheck) {
  open()->run(QStringLiteral("INSERT INTO Person(NAME, PHOTO) VALUES('a', randomblob(100000))"));
  const QByteArray whole = read(path());
  ASSERT_TRUE(open()->checkPages().isEmpty());

  QByteArray flipped = whole;
  flipped[flipped.size() / 2] = static_cast<char>(~flipped.at(flipped.size() / 2));
  write(path(), flipped);
  EXPECT_FALSE(open()->checkPages().isEmpty());
  EXPECT_NE(failure([this] { column(*open(), QStringLiteral("SELECT PHOTO FROM Person")); }), QString());

  flipped = whole;
  flipped[2000] = static_cast<char>(~flipped.at(2000));
  write(path(), flipped);
  expectRefused(path(), QStringLiteral("密码不正确，或者文件已损坏"));

  write(path(), whole.left(whole.size() / 2 / 4096 * 4096));
  expectRefused(path(), QStringLiteral("损坏"));
  write(path(), whole.left(whole.size() - 100));
  EXPECT_FALSE(open()->checkPages().isEmpty());
}

TEST_F(Opening, SettingsOfEveryConnection) {
  const auto database = open();
  const auto pragma = [&](const char* name) {
    return column(*database, QStringLiteral("PRAGMA ") + QString::fromUtf8(name)).join(u',');
  };
  EXPECT_EQ(pragma("journal_mode"), QStringLiteral("delete"));
  EXPECT_EQ(pragma("synchronous"), QStringLiteral("3"));
  EXPECT_EQ(pragma("page_size"), QStringLiteral("4096"));
  EXPECT_EQ(pragma("cache_size"), QStringLiteral("-16000"));
  EXPECT_EQ(pragma("temp_store"), QStringLiteral("2"));
  EXPECT_FALSE(read(path()).contains("Person"));
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
