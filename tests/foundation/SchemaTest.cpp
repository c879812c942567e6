#include <gtest/gtest.h>

#include "ado/AdoError.h"
#include "ado/Recordset.h"
#include "foundation/Schema.h"
#include "runtime/Conversions.h"
#include "support/TestHome.h"

namespace {

class Schema : public ::testing::Test {
 protected:
  /// The engine's plan, a line a table.
  [[nodiscard]] QStringList plan(const QString& statement) const {
    ado::Recordset rows;
    rows.Open(QStringLiteral("EXPLAIN QUERY PLAN ") + statement, m_connection);
    QStringList lines;
    for (; !rows.IsEOF(); rows.MoveNext()) {
      lines += runtime::toText(rows.Fields(QStringLiteral("detail")).Value());
    }
    return lines;
  }

  [[nodiscard]] bool takesTime(const QString& text) const {
    try {
      return m_connection->Execute(
                 QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('1','%1')").arg(text)) == 1;
    } catch (const ado::AdoError&) {
      return false;
    }
  }

  support::TestHome m_home;
  std::shared_ptr<ado::Connection> m_connection = m_home.connect();
};

TEST_F(Schema, EveryConditionOnDataIsServedByAnIndex) {
  const QString joined =
      QStringLiteral("SELECT Employee.*, Dept.DNAME FROM Employee, Dept WHERE Employee.DID = Dept.ID AND ");
  const QStringList statements = {
      QStringLiteral("SELECT * FROM Dept WHERE DNAME='a'"),
      QStringLiteral("SELECT COUNT(*) FROM employee WHERE DID = 7"),
      joined + QStringLiteral("ENUMBER='a'"),
      joined + QStringLiteral("EBARCODE='1'"),
      QStringLiteral("SELECT * FROM Presence WHERE ENUMBER = 'a' AND ENTERTIME LIKE '2026-11-15%'"),
      QStringLiteral("UPDATE Presence SET EXITTIME = '2026-11-15 17:00:00' WHERE ENUMBER='a' AND "
                     "ENTERTIME LIKE '2026-11-15%'"),
      QStringLiteral("SELECT Employee.ENAME, Presence.* from Presence, Employee WHERE Employee.ENUMBER = "
                     "Presence.ENUMBER AND ENTERTIME >= #2026-11-01# AND  ENTERTIME < #2026-12-01#"),
  };
  for (const QString& statement : statements) {
    const QStringList lines = plan(statement);
    EXPECT_FALSE(lines.isEmpty()) << statement.toStdString();
    for (const QString& line : lines) {
      EXPECT_TRUE(line.startsWith(QStringLiteral("SEARCH"))) << statement.toStdString() << "\n"
                                                             << line.toStdString();
    }
  }
}

TEST_F(Schema, TakesOnlyMomentsThatExist) {
  for (const char* text : {"2026-02-28", "2028-02-29 23:59:59", "1899-12-30"}) {
    EXPECT_TRUE(takesTime(QString::fromUtf8(text))) << text;
  }
  for (const char* text : {"2026-02-29", "2026-02-28 24:00:00", "2026-2-3", "2026-02-03 8:05", "soon", "",
                           "2026-02-03T08:05:00", "2026-02-03 00:00"}) {
    EXPECT_FALSE(takesTime(QString::fromUtf8(text))) << text;
  }
  EXPECT_EQ(m_home.execute(QStringLiteral("INSERT INTO Presence(ENUMBER) VALUES('1')")), 1) << "Null is none";
}

TEST_F(Schema, NumbersAreNeverGivenTwice) {
  const auto insert = QStringLiteral("INSERT INTO Dept(DNAME) VALUES('a')");
  m_home.execute(insert);
  m_home.execute(insert);
  m_home.execute(QStringLiteral("delete from Dept where ID = 2"));
  m_home.execute(insert);
  EXPECT_EQ(m_home.single(QStringLiteral("SELECT MAX(ID) FROM Dept")), QStringLiteral("3"));
}

}  // namespace
