#include "records/RecordsFixture.h"
#include "records/clsDept.h"

namespace {

class Dept : public RecordsTest {
 protected:
  void SetUp() override {
    addDepartment(QStringLiteral("Sales"));
    addDepartment(QStringLiteral("教务处"));
  }

  [[nodiscard]] QString names() const {
    return m_home.single(QStringLiteral("SELECT group_concat(ID || DNAME) FROM Dept"));
  }
};

TEST_F(Dept, AssigningTheNameFindsTheNumberWhateverItsCase) {
  clsDept department;
  department.setDNAME(QStringLiteral("sALES"));
  EXPECT_EQ(department.ID(), 1);
  department.setDNAME(QStringLiteral("unknown"));
  EXPECT_EQ(department.ID(), 1) << "a name that is not stored leaves the number";
}

TEST_F(Dept, AppendsANewNameOnceAndDoesNotReadTheNumberBack) {
  clsDept department;
  department.setDNAME(QStringLiteral("新部门"));
  EXPECT_TRUE(department.AppendToDb());
  EXPECT_EQ(department.ID(), 0);
  EXPECT_EQ(names(), QStringLiteral("1Sales,2教务处,3新部门"));

  clsDept again;
  again.setDNAME(QStringLiteral("新部门"));
  EXPECT_EQ(again.ID(), 3);
  EXPECT_FALSE(again.AppendToDb());
  EXPECT_EQ(names(), QStringLiteral("1Sales,2教务处,3新部门"));
}

TEST_F(Dept, RenamesAndKeepsBothRowsWhenTheNameIsTaken) {
  clsDept department;
  EXPECT_FALSE(department.UpdateToDb()) << "nothing is stored yet";
  department.setID(1);
  department.setDNAME(QStringLiteral("Market"));
  EXPECT_TRUE(department.UpdateToDb());
  EXPECT_EQ(names(), QStringLiteral("1Market,2教务处"));
  department.setDNAME(QStringLiteral("教务处"));
  EXPECT_TRUE(department.UpdateToDb());
  EXPECT_EQ(names(), QStringLiteral("1Market,2教务处"));
}

TEST_F(Dept, RemovesByNumberOnly) {
  clsDept department;
  for (const char* id : {"", "9", "1 OR 1=1", "1;", "x"}) {
    EXPECT_FALSE(department.Remove(QString::fromLatin1(id))) << id;
  }
  EXPECT_EQ(names(), QStringLiteral("1Sales,2教务处"));
  EXPECT_TRUE(department.Remove(QStringLiteral("1")));
  department.setID(2);
  EXPECT_TRUE(department.RemoveMe());
  EXPECT_EQ(names(), QStringLiteral("<null>"));
}

TEST_F(Dept, StoresNamesThatLookLikeStatements) {
  for (const char* text : {"a#2026-01-01#b", "[ID]", "x--y", "a;b", "/*c*/", "\"q\"", "50%_"}) {
    const QString name = QString::fromUtf8(text);
    clsDept added;
    added.setDNAME(name);
    EXPECT_TRUE(added.AppendToDb()) << text << ": " << added.lastFailure().toStdString();
    clsDept found;
    found.setDNAME(name);
    ASSERT_GT(found.ID(), 2) << text;
    clsDept read;
    read.setID(found.ID());
    EXPECT_EQ(read.DNAME(), name);
  }
}

TEST_F(Dept, FailsOnASingleQuoteAndKeepsTheReason) {
  clsDept department;
  department.setDNAME(QStringLiteral("x') --"));
  EXPECT_FALSE(department.LoadByName());
  EXPECT_FALSE(department.AppendToDb());
  EXPECT_TRUE(department.lastFailure().contains(QStringLiteral("x')")));
  department.setID(1);
  EXPECT_TRUE(department.lastFailure().isEmpty()) << "a success forgets the failure before";
}

}  // namespace
