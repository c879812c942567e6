#include <gtest/gtest.h>

#include "store/Dialect.h"
#include "store/StoreError.h"

namespace {

using store::StatementUse;

QString query(const char* sql) {
  return store::translated(QString::fromUtf8(sql), StatementUse::Query);
}

void expectRefused(const QString& sql, StatementUse use = StatementUse::Query) {
  EXPECT_THROW(std::ignore = store::translated(sql, use), store::StoreError) << sql.toStdString();
}

}  // namespace

TEST(Dialect, DatesBecomeTheTextThatIsStored) {
  const std::pair<const char*, const char*> cases[] = {
      {"SELECT #2026-11-15#", "SELECT '2026-11-15'"},
      {"SELECT #2026-2-3#,#2026/2/3 8:05#", "SELECT '2026-02-03','2026-02-03 08:05:00'"},
      {"SELECT #2026年2月3日 8:05:09# AS A", "SELECT '2026-02-03 08:05:09' AS A"},
      {"SELECT #2026-11-15 00:00:00#;\n ", "SELECT '2026-11-15'"},
      {"select * from Presence where ENTERTIME >= #2026-11-01# AND  ENTERTIME < #2026-11-2#",
       "select * from Presence where ENTERTIME >= '2026-11-01' AND  ENTERTIME < '2026-11-02'"},
  };
  for (const auto& [sql, expected] : cases) EXPECT_EQ(query(sql), QString::fromUtf8(expected)) << sql;
}

TEST(Dialect, WhatStandsInQuotesIsData) {
  const char* const unchanged[] = {
      "SELECT * FROM Dept WHERE DNAME='#2026-11-15#'",
      "SELECT * FROM Dept WHERE DNAME='a;b--c/*d*/[e #f ?:@$'",
      "SELECT * FROM Dept WHERE DNAME='it''s #1'",
      "SELECT * FROM Dept WHERE [ID]= 7",
      "SELECT [a#b;--'c] FROM \"x#y\"\"--\", `z;#`",
      "SELECT 部门 FROM \xF0\xA0\xAE\xB7 WHERE a<>-1.5e3",
      "EXPLAIN QUERY PLAN SELECT 1",
  };
  for (const char* sql : unchanged) EXPECT_EQ(query(sql), QString::fromUtf8(sql));
}

TEST(Dialect, RefusesWhatIsNotOneCompleteStatement) {
  for (const char* sql : {"", "  ", ";", "SELECT 1; SELECT 2", "SELECT 1;;", "SELECT 1 -- x",
                          "SELECT /* x */ 1", "SELECT 'open", "SELECT 'it''", "SELECT \"open", "SELECT [open",
                          "SELECT #2026-11-15", "SELECT #2026-02-30#", "SELECT ##", "SELECT #today#",
                          "SELECT ?", "SELECT :a", "SELECT @a", "SELECT $a"}) {
    expectRefused(QString::fromUtf8(sql));
  }
  expectRefused(QStringLiteral("SELECT 'a") + QChar(u'\0') + QStringLiteral("'"));
}

TEST(Dialect, RefusesAStatementOfAnotherUse) {
  for (const char* sql :
       {"DELETE FROM Dept", "PRAGMA journal_mode=WAL", "ATTACH 'x' AS y", "'SELECT'", "BEGIN"}) {
    expectRefused(QString::fromUtf8(sql));
  }
  for (const char* sql : {"SELECT 1", "PRAGMA synchronous=OFF", "ATTACH 'x' AS y", "COMMIT", "VACUUM"}) {
    expectRefused(QString::fromUtf8(sql), StatementUse::Change);
  }
  EXPECT_EQ(store::translated(QStringLiteral("delete from employee;"), StatementUse::Change),
            QStringLiteral("delete from employee"));
}
