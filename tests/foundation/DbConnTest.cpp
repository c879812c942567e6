#include <gtest/gtest.h>

#include <QFile>

#include "foundation/GlobalDefine.h"
#include "foundation/clsDbConn.h"
#include "support/ScriptedBoxes.h"
#include "support/TestHome.h"
#include "support/Thrown.h"

namespace {

class DbConn : public ::testing::Test {
 protected:
  void moveDatabaseAway() const { ASSERT_TRUE(QFile::rename(m_home.databaseFile(), away())); }
  void moveDatabaseBack() const { ASSERT_TRUE(QFile::rename(away(), m_home.databaseFile())); }
  [[nodiscard]] QString away() const { return m_home.file(QStringLiteral("away")); }

  support::TestHome m_home;
  support::ScriptedBoxes m_noBoxes;
};

TEST_F(DbConn, BuildsTheTextThatOpensTheDatabase) {
  EXPECT_EQ(BuildConnectionString(), QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=") +
                                         m_home.path() +
                                         QStringLiteral("\\vorlent.dat;Jet OLEDB:Database password=polnax"));
}

TEST_F(DbConn, TestingReopensAndOtherHoldersNotice) {
  clsDbConn holder;
  const auto before = holder.GetDbConn();
  ASSERT_NE(before, nullptr);
  EXPECT_TRUE(clsDbConn().TestConn());
  EXPECT_EQ(before->State(), ado::ObjectState::Closed);
  EXPECT_NE(gConnection, before);
  const auto after = holder.GetDbConn();
  ASSERT_NE(after, nullptr);
  EXPECT_NE(after, before);
  EXPECT_EQ(after->State(), ado::ObjectState::Open);
}

TEST_F(DbConn, FailureGivesNothingAndKeepsTheReason) {
  moveDatabaseAway();
  clsDbConn holder;
  EXPECT_EQ(holder.GetDbConn(), nullptr);
  EXPECT_EQ(gConnection, nullptr);
  const auto error = support::thrown([&] { std::ignore = ado::required(holder.GetDbConn()); });
  EXPECT_TRUE(error.description().contains(m_home.databaseFile())) << error.what();
  EXPECT_FALSE(QFile::exists(m_home.databaseFile())) << "opening never creates a file";

  moveDatabaseBack();
  EXPECT_NE(holder.GetDbConn(), nullptr) << "the next operation tries again";
}

}  // namespace
