#pragma once

#include <gtest/gtest.h>

#include <QFile>

#include "store/SqlCipherEngine.h"
#include "support/FixedClock.h"
#include "support/TestHome.h"

/// A home with the department 财务部 and the employees A001 钱进 and A002 孙敏 in it, on a Monday morning. A
/// held database is waited for no longer than a test likes.
class StationHome : public ::testing::Test {
 protected:
  StationHome() {
    store::installEngine(&m_engine);
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('财务部')"));
    home.insertEmployee(QStringLiteral("A001"), QStringLiteral("钱进"), 1, support::TestHome::tinyJpeg(),
                        first);
    home.insertEmployee(QStringLiteral("A002"), QStringLiteral("孙敏"), 1, QByteArray(), second);
  }
  void TearDown() override { store::installEngine(nullptr); }

  static QDateTime monday(int hour, int minute = 0, int seconds = 0) {
    return {QDate(2026, 11, 16), QTime(hour, minute, seconds)};
  }
  [[nodiscard]] QString stored(const QString& what) const {
    return home.single(QStringLiteral("SELECT %1 FROM Presence").arg(what));
  }
  [[nodiscard]] QString storedRows() const { return stored(QStringLiteral("COUNT(*)")); }
  void takeDatabaseAway() const { EXPECT_TRUE(QFile::rename(home.databaseFile(), awayFile())); }
  void bringDatabaseBack() const { EXPECT_TRUE(QFile::rename(awayFile(), home.databaseFile())); }
  [[nodiscard]] QString awayFile() const { return home.file(QStringLiteral("away.dat")); }

  const QString first = QStringLiteral("100000000000001");
  const QString second = QStringLiteral("200000000000002");
  support::TestHome home;
  support::FixedClock clock{monday(8)};

 private:
  store::SqlCipherEngine m_engine{std::chrono::milliseconds(60)};
};
