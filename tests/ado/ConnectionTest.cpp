#include "ado/AdoFile.h"
#include "ado/ConnectionString.h"
#include "support/FullDisk.h"

namespace {

using ado::AdoErrorNumber;

class AdoConnection : public AdoFile {};

}  // namespace

TEST(AdoConnectionString, ReadsPairsInAnyForm) {
  const auto read = [](const char* text) { return ado::parseConnectionString(QString::fromUtf8(text)); };
  const auto plain =
      read("PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=/家/a=b\\vorlent.dat;Jet OLEDB:Database password=x");
  EXPECT_EQ(plain.dataSource, QStringLiteral("/家/a=b\\vorlent.dat"));
  EXPECT_EQ(plain.password, QStringLiteral("x"));
  const auto quoted = read("provider = microsoft.jet.oledb.4.0; DATA SOURCE = \"/a;b/c\" ;");
  EXPECT_EQ(quoted.dataSource, QStringLiteral("/a;b/c"));
  EXPECT_EQ(quoted.password, QString());
  EXPECT_THROW(read("PROVIDER=SQLOLEDB;Data Source=x"), ado::AdoError);
  EXPECT_THROW(read("PROVIDER=Microsoft.Jet.OLEDB.4.0"), ado::AdoError);
  EXPECT_THROW(read(""), ado::AdoError);
}

TEST_F(AdoConnection, OpensMapsAndCloses) {
  EXPECT_EQ(connection->State(), ado::ObjectState::Open);
  EXPECT_EQ(failure([this] { connection->Open(connectionString()); }),
            number(AdoErrorNumber::OperationNotAllowed));
  connection->Close();
  connection->Close();
  EXPECT_EQ(connection->State(), ado::ObjectState::Closed);
  EXPECT_EQ(failure([this] { execute("DELETE FROM Dept"); }), number(AdoErrorNumber::ConnectionNotOpen));
  connection->Open(connectionString());
  EXPECT_EQ(column("SELECT COUNT(*) FROM dept"), QStringLiteral("0"));
}

TEST_F(AdoConnection, AMissingConnectionTellsWhyTheLastOpeningFailed) {
  const std::shared_ptr<ado::Connection> none;
  EXPECT_EQ(failure([&] { std::ignore = ado::required(none); }), number(AdoErrorNumber::ConnectionNotOpen));
  ado::Connection failing;
  EXPECT_NE(failure([&] { failing.Open(connectionString(QStringLiteral("wrong"))); }), 0);
  const QString reason = words;
  EXPECT_TRUE(reason.contains(QStringLiteral("密码不正确")));
  for (const auto& missing : {none, std::make_shared<ado::Connection>()}) {
    EXPECT_EQ(failure([&] { std::ignore = ado::required(missing); }),
              number(AdoErrorNumber::ConnectionNotOpen));
    EXPECT_TRUE(words.contains(reason)) << words.toStdString();
    EXPECT_EQ(kind, runtime::FailureKind::WrongPassword);
    ado::Recordset rows;
    EXPECT_EQ(failure([&] { rows.Open(QStringLiteral("SELECT 1"), missing); }),
              number(AdoErrorNumber::ConnectionNotOpen));
  }
  EXPECT_EQ(&ado::required(connection), connection.get());
}

TEST_F(AdoConnection, ExecuteCountsAndRefuses) {
  EXPECT_EQ(execute("INSERT INTO Dept(DNAME) VALUES('销售')"), 1);
  EXPECT_EQ(execute("INSERT INTO Dept(DNAME) VALUES('a;b--c#d[e')"), 1);
  EXPECT_EQ(execute("UPDATE Dept SET DNAME = 'X' WHERE [ID] = 7"), 0);
  EXPECT_EQ(execute("CREATE TABLE more(a)"), 0);
  EXPECT_NE(failure([this] { execute("INSERT INTO Dept(DNAME) VALUES('it's')"); }), 0);
  EXPECT_NE(failure([this] { execute("DELETE FROM Dept; DELETE FROM Employee"); }), 0);
  EXPECT_NE(failure([this] { execute("SELECT * FROM Dept"); }), 0);
  EXPECT_EQ(failure([this] { execute("DELETE FROM nothing"); }), 1);
  EXPECT_TRUE(words.contains(QStringLiteral("no such table: nothing"))) << "the engine's words are kept";
  EXPECT_EQ(column("SELECT DNAME FROM Dept"), QStringLiteral("销售,a;b--c#d[e"));
  EXPECT_EQ(execute("delete from dept where dname = '销售'"), 1);
  EXPECT_EQ(execute("DELETE FROM Dept"), 1);
}

TEST_F(AdoConnection, Transactions) {
  EXPECT_EQ(failure([this] { connection->CommitTrans(); }), number(AdoErrorNumber::OperationNotAllowed));
  EXPECT_EQ(failure([this] { connection->RollbackTrans(); }), number(AdoErrorNumber::OperationNotAllowed));
  connection->BeginTrans();
  EXPECT_EQ(failure([this] { connection->BeginTrans(); }), number(AdoErrorNumber::OperationNotAllowed));
  EXPECT_NE(failure([this] { connect()->BeginTrans(); }), 0) << "the write lock is held from the start";
  EXPECT_EQ(kind, runtime::FailureKind::Busy);
  execute("INSERT INTO Dept(DNAME) VALUES('a')");
  connection->RollbackTrans();
  connection->BeginTrans();
  execute("INSERT INTO Dept(DNAME) VALUES('b')");
  connection->CommitTrans();
  connection->BeginTrans();
  execute("INSERT INTO Dept(DNAME) VALUES('c')");
  connection->Close();
  connection->Open(connectionString());
  EXPECT_EQ(column("SELECT DNAME FROM Dept"), QStringLiteral("b"));
}

TEST_F(AdoConnection, AFullDiskIsAnErrorAndLosesNothing) {
  execute("INSERT INTO Dept(DNAME) VALUES('kept')");
  const QString large = QStringLiteral("UPDATE Dept SET PASSWORD = hex(zeroblob(100000))");
  {
    const support::FullDisk disk(8192);
    EXPECT_NE(failure([&] { std::ignore = connection->Execute(large); }), 0);
    EXPECT_NE(words, QString());
    EXPECT_NE(failure([&] { connection->CopyTo(file("copy.dat")); }), 0);
  }
  EXPECT_FALSE(QFile::exists(file("copy.dat")));
  EXPECT_EQ(column("SELECT DNAME || PASSWORD IS NULL FROM Dept"), QStringLiteral("1"));
  EXPECT_EQ(connection->CheckPages(), QStringList());
}

TEST_F(AdoConnection, DatesInStatements) {
  execute("INSERT INTO Employee(ENUMBER, ENTERDATE) VALUES('1', '2026-11-15 23:59:59')");
  execute("INSERT INTO Employee(ENUMBER, ENTERDATE) VALUES('2', #2026/11/15#)");
  execute("INSERT INTO Employee(ENUMBER, ENTERDATE) VALUES('3', #2026-11-16 0:00#)");
  EXPECT_EQ(
      column("SELECT ENUMBER FROM Employee WHERE ENTERDATE >= #2026-11-15# AND ENTERDATE < #2026-11-16#"),
      QStringLiteral("1,2"));
  EXPECT_EQ(column("SELECT ENUMBER FROM Employee WHERE ENTERDATE = #2026-11-15 00:00:00#"),
            QStringLiteral("2"));
  EXPECT_EQ(column("SELECT ENUMBER FROM Employee WHERE ENTERDATE LIKE '2026-11-16%'"), QStringLiteral("3"));
  EXPECT_NE(
      failure([this] { execute("INSERT INTO Employee(ENUMBER, ENTERDATE) VALUES('4', '2026-02-30')"); }), 0);
}
