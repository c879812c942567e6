#pragma once

#include <gtest/gtest.h>

#include <QDir>

#include "foundation/GlobalDefine.h"
#include "support/Files.h"
#include "support/ScriptedBoxes.h"
#include "support/TestHome.h"

/// A clean program; record classes show no box, so that any box fails the test.
class RecordsTest : public ::testing::Test {
 protected:
  void addDepartment(const QString& name) const {
    ASSERT_EQ(m_home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('%1')").arg(name)), 1);
  }

  /// An employee of department 1 with a photo.
  void addEmployee(const QString& number, const QString& barcode = QStringLiteral("1")) const {
    m_home.insertEmployee(number, QStringLiteral("张三"), 1, support::TestHome::tinyJpeg(), barcode);
  }

  [[nodiscard]] QByteArray content(const QString& name) const {
    return support::contentOf(m_home.file(name));
  }

  [[nodiscard]] QStringList photoFiles() const {
    return QDir(m_home.path()).entryList({QStringLiteral("*.jpg")}, QDir::Files | QDir::Hidden);
  }

  /// Breaks the connection for all that follows and gives the path that cannot be opened.
  QString loseDatabase() const {
    gConnection.reset();
    EXPECT_TRUE(QFile::remove(m_home.databaseFile()));
    return m_home.databaseFile();
  }

  support::TestHome m_home;
  support::ScriptedBoxes m_noBoxes;
};
