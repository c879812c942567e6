#include <QDateTime>

#include "ado/AdoFile.h"

namespace {

using ado::AdoErrorNumber;

class AdoRecordset : public AdoFile {
 protected:
  AdoRecordset() {
    execute("INSERT INTO Dept(DNAME) VALUES('销售')");
    execute(
        "INSERT INTO Employee(ENUMBER, DID, ENTERDATE, HEADIMG) VALUES('A1', 1, '2026-11-15 08:05:09', "
        "X'00FF00')");
    execute("INSERT INTO Employee(ENUMBER, DID) VALUES('', 1)");
  }
};

constexpr char joined[] =
    "SELECT Employee.*, Dept.DNAME as DNAME from Employee, Dept where Employee.DID = Dept.ID";

}  // namespace

TEST_F(AdoRecordset, ReadsForward) {
  ado::Recordset rows;
  open(rows, joined);
  EXPECT_EQ(rows.FieldCount(), 6);
  EXPECT_EQ(field(rows, "enumber").Value(), QVariant(QStringLiteral("A1")));
  EXPECT_EQ(field(rows, "ID").Value(), QVariant(1));
  EXPECT_EQ(field(rows, "EnterDate").Value(), QVariant(QDateTime(QDate(2026, 11, 15), QTime(8, 5, 9))));
  EXPECT_EQ(field(rows, "HEADIMG").Value(), QVariant(QByteArray("\0\xFF\0", 3)));
  EXPECT_EQ(rows.Fields(5).Value(), QVariant(QStringLiteral("销售")));
  rows.MoveNext();
  EXPECT_EQ(field(rows, "ENUMBER").Value(), QVariant(QString::fromUtf8(""))) << "empty is not Null";
  EXPECT_FALSE(field(rows, "ENTERDATE").Value().isValid());
  EXPECT_FALSE(field(rows, "HEADIMG").Value().isValid());
  EXPECT_EQ(failure([&] { field(rows, "NOPE"); }), number(AdoErrorNumber::NotInCollection));
  EXPECT_TRUE(words.contains(QStringLiteral("NOPE")));
  EXPECT_EQ(failure([&] { std::ignore = rows.Fields(6).Name(); }), number(AdoErrorNumber::NotInCollection));
  EXPECT_EQ(failure([&] { rows.AddNew(); }), number(AdoErrorNumber::OperationNotAllowed));
  rows.MoveNext();
  EXPECT_TRUE(rows.IsEOF());
  EXPECT_EQ(failure([&] { std::ignore = field(rows, "ID").Value(); }),
            number(AdoErrorNumber::NoCurrentRecord));
  EXPECT_EQ(failure([&] { rows.MoveNext(); }), number(AdoErrorNumber::NoCurrentRecord));
  rows.Close();
  EXPECT_EQ(failure([&] { std::ignore = rows.IsEOF(); }), number(AdoErrorNumber::OperationNotAllowed));
}

TEST_F(AdoRecordset, KeepsTextsAndBinariesOfEveryLength) {
  QStringList texts;
  for (const int size : {0, 1, 1365, 1366, 50'000, 20'000, 20'001, 0, 3}) {
    texts.append(QStringLiteral("字").repeated(size) + u'x');
  }
  ado::Recordset rows;
  open(rows, QString(QStringLiteral("SELECT '") + texts.join(QStringLiteral("' UNION ALL SELECT '")) + u'\'')
                 .toUtf8());
  for (const QString& text : texts) {
    EXPECT_EQ(rows.Fields(0).Value(), QVariant(text));
    rows.MoveNext();
  }
  ado::Recordset binaries;
  open(binaries, "SELECT zeroblob(0), X'00', zeroblob(70000), X'01', 1.5, NULL");
  EXPECT_EQ(binaries.Fields(0).Value(), QVariant(QByteArray("")));
  EXPECT_EQ(binaries.Fields(2).Value(), QVariant(QByteArray(70'000, '\0')));
  EXPECT_EQ(binaries.Fields(3).Value(), QVariant(QByteArray("\1")));
  EXPECT_EQ(binaries.Fields(4).Value(), QVariant(1.5));
  EXPECT_FALSE(binaries.Fields(5).Value().isValid());
}

TEST_F(AdoRecordset, HoldsNoLockOnceItIsOpen) {
  ado::Recordset rows;
  open(rows, joined);
  std::ignore = field(rows, "HEADIMG").Value();
  EXPECT_EQ(connect()->Execute(QStringLiteral("UPDATE Employee SET HEADIMG = X'AA', DID = 5")), 2);
  EXPECT_EQ(field(rows, "HEADIMG").Value(), QVariant(QByteArray("\xAA"))) << "fetched when asked for";
  EXPECT_EQ(field(rows, "DID").Value(), QVariant(1)) << "copied when opened";
  execute("DELETE FROM Employee");
  EXPECT_EQ(failure([&] { std::ignore = field(rows, "HEADIMG").Value(); }),
            number(AdoErrorNumber::NoCurrentRecord));
  connection->Close();
  EXPECT_EQ(field(rows, "ENUMBER").Value(), QVariant(QStringLiteral("A1")));
  EXPECT_EQ(failure([&] { std::ignore = field(rows, "HEADIMG").Value(); }),
            number(AdoErrorNumber::ConnectionNotOpen));
}

// With two rows of one table in a result, its key does not tell which of them a photo belongs to.
TEST_F(AdoRecordset, LongBinariesAreCopiedWhenTheirRowIsNotKnown) {
  execute("UPDATE Employee SET HEADIMG = X'BB' WHERE ID = 2");
  for (const char* sql : {"SELECT b.HEADIMG, a.ID FROM Employee a, Employee b WHERE a.ID = 1 AND b.ID = 2",
                          "SELECT HEADIMG FROM Employee WHERE ID = 2",
                          "SELECT HEADIMG, ID + 0 AS ID FROM Employee WHERE ID = 2"}) {
    ado::Recordset rows;
    open(rows, sql);
    std::ignore = connect()->Execute(QStringLiteral("UPDATE Employee SET ENUMBER = ENUMBER"));
    EXPECT_EQ(rows.Fields(0).Value(), QVariant(QByteArray("\xBB"))) << sql;
  }
}

TEST_F(AdoRecordset, AddNewUpdateDelete) {
  ado::Recordset rows;
  openChangeable(rows, "select * from Employee where ENUMBER = 'B2'");
  EXPECT_TRUE(rows.IsEOF());
  rows.AddNew();
  EXPECT_FALSE(rows.IsEOF());
  EXPECT_FALSE(field(rows, "DID").Value().isValid());
  field(rows, "ENUMBER").setValue(QStringLiteral("B2"));
  field(rows, "DID").setValue(QStringLiteral(" 3 "));
  field(rows, "ENTERDATE").setValue(QDateTime(QDate(2026, 11, 2), QTime(0, 0)));
  field(rows, "HEADIMG").setValue(QByteArray("photo"));
  EXPECT_EQ(column("SELECT COUNT(*) FROM Employee"), QStringLiteral("2"))
      << "nothing is written before Update";
  rows.Update();
  EXPECT_EQ(field(rows, "ID").Value(), QVariant(3));
  EXPECT_EQ(field(rows, "HEADIMG").Value(), QVariant(QByteArray("photo")));
  EXPECT_EQ(column("SELECT ID FROM Employee WHERE ENTERDATE LIKE '2026-11-02'"), QStringLiteral("3"))
      << "midnight is stored as the date alone";

  field(rows, "ENTERDATE").setValue(QStringLiteral("2026/11/3 8:05"));
  field(rows, "HEADIMG").setValue(QVariant());
  std::ignore = connect()->Execute(QStringLiteral("UPDATE Employee SET DID = 9 WHERE ID = 3"));
  rows.Update();
  EXPECT_EQ(field(rows, "ENTERDATE").Value(), QVariant(QDateTime(QDate(2026, 11, 3), QTime(8, 5))));
  EXPECT_FALSE(field(rows, "HEADIMG").Value().isValid());
  EXPECT_EQ(column("SELECT DID FROM Employee WHERE ID = 3"), QStringLiteral("9"))
      << "only what was assigned is written";

  rows.Delete();
  EXPECT_EQ(failure([&] { std::ignore = field(rows, "ID").Value(); }),
            number(AdoErrorNumber::NoCurrentRecord));
  EXPECT_EQ(column("SELECT ID FROM Employee"), QStringLiteral("1,2"));
  rows.MoveNext();
  EXPECT_TRUE(rows.IsEOF());
}

TEST_F(AdoRecordset, AssignmentsAreChecked) {
  ado::Recordset rows;
  openChangeable(rows, "SELECT * FROM Employee");
  EXPECT_NE(failure([&] { field(rows, "ID").setValue(9); }), 0);
  EXPECT_NE(failure([&] { field(rows, "DID").setValue(QStringLiteral("x")); }), 0);
  EXPECT_NE(failure([&] { field(rows, "DID").setValue(3000000000LL); }), 0);
  EXPECT_NE(failure([&] { field(rows, "ENTERDATE").setValue(QStringLiteral("2026-02-30")); }), 0);
  EXPECT_NE(failure([&] { field(rows, "HEADIMG").setValue(QStringLiteral("text")); }), 0);
  EXPECT_NE(failure([&] { field(rows, "ENUMBER").setValue(QString(21, u'x')); }), 0);
  field(rows, "ENUMBER").setValue(QVariant());
  EXPECT_NE(failure([&] { rows.Update(); }), 0) << "the column takes no Null";
  field(rows, "ENUMBER").setValue(QStringLiteral("it's"));
  rows.MoveNext();
  EXPECT_EQ(column("SELECT ENUMBER FROM Employee"), QStringLiteral("it's,")) << "moving on writes the row";
  execute("DELETE FROM Employee");
  field(rows, "DID").setValue(1);
  EXPECT_EQ(failure([&] { rows.Update(); }), number(AdoErrorNumber::NoCurrentRecord));
}

TEST_F(AdoRecordset, OnlyRowsOfOneTableWithItsKeyCanBeChanged) {
  for (const char* sql : {joined, "SELECT ENUMBER FROM Employee", "SELECT a.* FROM Dept a, Dept b"}) {
    ado::Recordset rows;
    openChangeable(rows, sql);
    EXPECT_EQ(failure([&] { rows.AddNew(); }), number(AdoErrorNumber::OperationNotAllowed)) << sql;
    EXPECT_EQ(failure([&] { rows.Fields(0).setValue(1); }), number(AdoErrorNumber::OperationNotAllowed))
        << sql;
  }
}
