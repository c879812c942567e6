
#include <QFileInfo>

#include "AdoFile.h"
#include "support/Files.h"

namespace {

/// A hundred employees with photos that differ, some without one: more than are read ahead at once.
class AdoLongBinaries : public AdoFile {
 protected:
  static constexpr int employees = 100;

  AdoLongBinaries() {
    connection->BeginTrans();
    ado::Recordset rows;
    openChangeable(rows, "SELECT * FROM Employee");
    for (int i = 0; i < employees; ++i) {
      rows.AddNew();
      rows.Fields(QStringLiteral("ENUMBER")).setValue(QString::number(i));
      if (!isWithout(i)) rows.Fields(QStringLiteral("HEADIMG")).setValue(photo(i));
      rows.Update();
    }
    rows.Close();
    connection->CommitTrans();
  }

  static bool isWithout(int i) { return i % 10 == 3; }
  static QByteArray photo(int i) { return QByteArray(40000 + i, static_cast<char>(i)); }
  static QVariant expected(int i) { return isWithout(i) ? QVariant() : photo(i); }
  static QVariant shown(ado::Recordset& rows) { return rows.Fields(QStringLiteral("HEADIMG")).Value(); }
};

TEST_F(AdoLongBinaries, AreFetchedInOrderWhileOthersWrite) {
  const auto other = connect();
  ado::Recordset rows;
  open(rows, "SELECT * FROM Employee");
  for (int i = 0; i < employees; ++i, rows.MoveNext()) {
    ASSERT_EQ(shown(rows), expected(i)) << i;
    ASSERT_EQ(other->Execute(QStringLiteral("UPDATE Employee SET DID=1 WHERE ENUMBER='7'")), 1);
  }
  EXPECT_TRUE(rows.IsEOF());
}

TEST_F(AdoLongBinaries, TellOfTheRowThatHasGoneAndGoOnBehindIt) {
  ado::Recordset rows;
  open(rows, "SELECT * FROM Employee");
  std::ignore = connect()->Execute(QStringLiteral("DELETE FROM Employee WHERE ENUMBER='50'"));
  for (int i = 0; i < employees; ++i, rows.MoveNext()) {
    if (i == 50) {
      EXPECT_THROW(std::ignore = shown(rows), ado::AdoError);
    } else {
      ASSERT_EQ(shown(rows), expected(i)) << i;
    }
  }
}

TEST_F(AdoLongBinaries, NeverShowAnotherValueForADamagedOne) {
  connection = connect();
  ado::Recordset rows;
  open(rows, "SELECT * FROM Employee");
  // Every page of a binary, its last one too.
  const qint64 middle = QFileInfo(path()).size() / 2 / 4096 * 4096;
  constexpr int damagedPages = 12;
  for (int page = 0; page < damagedPages; ++page) support::damageFile(path(), middle + page * 4096 + 500);
  int failures = 0;
  for (int i = 0; i < employees; ++i, rows.MoveNext()) {
    try {
      ASSERT_EQ(shown(rows), expected(i)) << i;
    } catch (const ado::AdoError&) {
      ++failures;
    }
  }
  EXPECT_GE(failures, 1);
  EXPECT_LE(failures, 3) << "the rows that were read ahead with them are whole";
}

TEST_F(AdoLongBinaries, ShowWhatWasWrittenToTheRowsAhead) {
  ado::Recordset rows;
  openChangeable(rows, "SELECT * FROM Employee");
  for (int i = 0; i < 20; ++i, rows.MoveNext()) ASSERT_EQ(shown(rows), expected(i)) << i;
  rows.Fields(QStringLiteral("HEADIMG")).setValue(QByteArray("new"));
  rows.Update();
  EXPECT_EQ(shown(rows), QVariant(QByteArray("new")));
  EXPECT_EQ(shown(rows), QVariant(QByteArray("new"))) << "asked for twice";
  rows.MoveNext();
  EXPECT_EQ(shown(rows), expected(21));
}

}  // namespace
