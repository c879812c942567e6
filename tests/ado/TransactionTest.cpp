#include <gtest/gtest.h>

#include "AdoFile.h"
#include "ado/TextOrder.h"
#include "ado/Transaction.h"

namespace {

class AdoTransaction : public AdoFile {};

}  // namespace

TEST_F(AdoTransaction, IsRolledBackUnlessItIsCommitted) {
  {
    const ado::Transaction transaction(*connection);
    execute("INSERT INTO Dept(DNAME) VALUES('a')");
  }
  {
    ado::Transaction transaction(*connection);
    execute("INSERT INTO Dept(DNAME) VALUES('b')");
    transaction.commit();
  }
  EXPECT_EQ(column("SELECT DNAME FROM Dept"), QStringLiteral("b"));
}

TEST_F(AdoTransaction, WhoseEndTheEngineForgotClosesTheConnection) {
  {
    const ado::Transaction transaction(*connection);
    connection->RollbackTrans();
  }
  EXPECT_EQ(connection->State(), ado::ObjectState::Closed);
}

TEST(AdoTextOrder, FindsWhatTheDatabaseFinds) {
  const ado::TextOrder before;
  const auto same = [&before](const QString& a, const QString& b) { return !before(a, b) && !before(b, a); };
  EXPECT_TRUE(same(QStringLiteral("a1"), QStringLiteral("Ａ1")));
  EXPECT_FALSE(same(QStringLiteral("a1"), QStringLiteral("a2")));
  EXPECT_TRUE(before(QStringLiteral("B"), QStringLiteral("c")));
}
