#include <QDir>
#include <QElapsedTimer>

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
  const QByteArray before = read(path());
  EXPECT_TRUE(failure([this] { create(path()); }).contains(QStringLiteral("已经存在")));
  EXPECT_EQ(read(path()), before);
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
  write(file("kept.dat"), "kept");
  EXPECT_TRUE(failure([this] { open()->copyTo(file("kept.dat")); }).contains(QStringLiteral("已经存在")));
  EXPECT_EQ(read(file("kept.dat")), QByteArray("kept"));
  open()->run(QStringLiteral("INSERT INTO Person(PHOTO) VALUES(randomblob(100000))"));
  QByteArray damaged = read(path());
  damaged[damaged.size() / 2] = static_cast<char>(~damaged.at(damaged.size() / 2));
  write(path(), damaged);
  EXPECT_NE(failure([this] { open()->copyTo(file("copy.dat")); }), QString());
  EXPECT_EQ(files(), (QStringList{QStringLiteral("data.dat"), QStringLiteral("kept.dat")}));
}

TEST_F(StoreDatabase, BusyFileIsWaitedForAndThenAnError) {
  const auto holder = open();
  const auto other = open();
  holder->run(QStringLiteral("BEGIN IMMEDIATE"));
  QElapsedTimer timer;
  timer.start();
  EXPECT_TRUE(failure([&] { insert(*other, "x"); }).contains(QStringLiteral("占用")));
  EXPECT_GE(timer.elapsed(), shortWait.count() - 20);
  EXPECT_LT(timer.elapsed(), 3000);
  holder->run(QStringLiteral("ROLLBACK"));
  insert(*other, "y");
  EXPECT_EQ(people(path()), QStringList{QStringLiteral("y")});
  EXPECT_EQ(store::SqlCipherEngine::usualWait, std::chrono::seconds(5));
}

// Dates at midnight are stored without a time: so the order of the texts is the order of the moments.
TEST_F(StoreDatabase, DayRangesAndPrefixesFindTheDayByIndex) {
  const auto database = open();
  for (const char* moment :
       {"2026-11-14 23:59:59", "2026-11-15", "2026-11-15 00:00:01", "2026-11-15 23:59:59", "2026-11-16"}) {
    database->run(QStringLiteral("INSERT INTO Person(BORN) VALUES(?)"), {QString::fromUtf8(moment)});
  }
  const QString wheres[] = {QStringLiteral("BORN >= '2026-11-15' AND BORN < '2026-11-16'"),
                            QStringLiteral("BORN LIKE '2026-11-15%'")};
  for (const QString& where : wheres) {
    const QString sql = QStringLiteral("SELECT ID FROM Person WHERE ") + where;
    EXPECT_EQ(column(*database, sql).join(u','), QStringLiteral("2,3,4"));
    const auto plan = database->statement(QStringLiteral("EXPLAIN QUERY PLAN ") + sql);
    ASSERT_TRUE(plan->step());
    EXPECT_TRUE(plan->value(3).toString().contains(QStringLiteral("PersonBorn (BORN>? AND BORN<?)")));
    plan->reset();
  }
}

TEST_F(StoreDatabase, ValuesComeBackAsTheyWent) {
  const auto database = open();
  const QByteArray bytes("\0\xFF\0", 3);
  database->run(QStringLiteral("INSERT INTO Person(NAME, PHOTO) VALUES(?,?)"),
                {QStringLiteral("张\U00020BB7"), bytes});
  database->run(QStringLiteral("INSERT INTO Person(NAME, PHOTO) VALUES(?,?)"),
                {QString::fromUtf8(""), QByteArray("", 0)});
  database->run(QStringLiteral("INSERT INTO Person(NAME, PHOTO) VALUES(?,?)"), {QVariant(), QVariant()});
  const auto rows = database->statement(QStringLiteral("SELECT NAME, PHOTO, 5000000000, 1.5 FROM Person"));
  ASSERT_TRUE(rows->step());
  EXPECT_EQ(rows->value(0), QVariant(QStringLiteral("张\U00020BB7")));
  EXPECT_EQ(rows->value(1), QVariant(bytes));
  EXPECT_EQ(rows->value(2), QVariant(5000000000LL));
  EXPECT_EQ(rows->value(3), QVariant(1.5));
  ASSERT_TRUE(rows->step());
  EXPECT_EQ(rows->value(0), QVariant(QString::fromUtf8("")));
  EXPECT_EQ(rows->value(1), QVariant(QByteArray("", 0)));
  ASSERT_TRUE(rows->step());
  EXPECT_FALSE(rows->value(0).isValid());
  EXPECT_FALSE(rows->value(1).isValid());
  rows->reset();
}
