#include <QDir>

#include "store/StoreFile.h"

namespace {

class StoreDatabase : public StoreFile {
 protected:
  void insert(store::Database& database, const char* name) {
    database.run(QStringLiteral("INSERT INTO Person(NAME) VALUES(?)"), {QString::fromUtf8(name)});
  }
  QStringList people(const QString& name) {
    return column(*engine.open(name, password), QStringLiteral("SELECT NAME FROM Person ORDER BY ID"));
  }
  [[nodiscard]] QStringList files() const { return QDir(directory.path()).entryList(QDir::Files); }
};

}  // namespace

TEST_F(StoreDatabase, CreationIsAllOrNothingAndReplacesNothing) {
  const QByteArray before = support::contentOf(path());
  EXPECT_TRUE(failure([this] { create(path()); }).contains(QStringLiteral("已经存在")));
  EXPECT_EQ(support::contentOf(path()), before);
  const auto failing = [this](const QStringList& statements, const QString& key) {
    return failure([&] { engine.create(file("new.dat"), key, statements); });
  };
  const QString good = QStringLiteral("CREATE TABLE a(b)");
  EXPECT_NE(failing({good, QStringLiteral("CREATE TABLE a(b)")}, password), QString());
  EXPECT_NE(failing({}, password), QString());
  EXPECT_NE(failing({good}, {}), QString());
  EXPECT_NE(failure([&] { engine.create(file("none/new.dat"), password, {good}); }), QString());
  EXPECT_EQ(files(), QStringList{QStringLiteral("data.dat")});
}

TEST_F(StoreDatabase, CopyHoldsWhatIsCommitted) {
  const auto database = open();
  insert(*database, "one");
  insert(*database, "two");
  database->run(QStringLiteral("DELETE FROM Person WHERE NAME='two'"));
  database->run(QStringLiteral("BEGIN IMMEDIATE"));
  insert(*database, "uncommitted");
  database->copyTo(file("copy.dat"));
  database->run(QStringLiteral("COMMIT"));

  EXPECT_EQ(people(file("copy.dat")), QStringList{QStringLiteral("one")});
  const auto copy = engine.open(file("copy.dat"), password);
  EXPECT_TRUE(copy->checkPages().isEmpty());
  EXPECT_EQ(copy->statement(QStringLiteral("SELECT BORN FROM Person"))->column(0).declaredType,
            QStringLiteral("DATETIME_TEXT"));
  insert(*copy, "next");
  EXPECT_EQ(copy->lastInsertedKey(), 3) << "the numbers of deleted rows must not be given again";
  EXPECT_NE(failure([this] { std::ignore = engine.open(file("copy.dat"), QStringLiteral("wrong")); }),
            QString());
}

TEST_F(StoreDatabase, FailedCopyLeavesTheTargetAsItWas) {
  support::writeFile(file("kept.dat"), "kept");
  EXPECT_TRUE(failure([this] { open()->copyTo(file("kept.dat")); }).contains(QStringLiteral("已经存在")));
  EXPECT_EQ(support::contentOf(file("kept.dat")), QByteArray("kept"));
  open()->run(QStringLiteral("INSERT INTO Person(PHOTO) VALUES(randomblob(100000))"));
  support::damageFile(path(), 50'000);
  EXPECT_NE(failure([this] { open()->copyTo(file("copy.dat")); }), QString());
  EXPECT_EQ(files(), (QStringList{QStringLiteral("data.dat"), QStringLiteral("kept.dat")}));
}

TEST_F(StoreDatabase, BusyFileIsAnErrorInTheEnd) {
  const auto holder = open();
  const auto other = open();
  holder->run(QStringLiteral("BEGIN IMMEDIATE"));
  EXPECT_TRUE(failure([&] { insert(*other, "x"); }).contains(QStringLiteral("占用")));
  holder->run(QStringLiteral("ROLLBACK"));
  insert(*other, "y");
  EXPECT_EQ(people(path()), QStringList{QStringLiteral("y")});
}
