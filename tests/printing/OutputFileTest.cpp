#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>

#include "printing/OutputFile.h"
#include "printing/clsLogo.h"
#include "runtime/RuntimeError.h"
#include "support/Files.h"
#include "support/TestHome.h"

namespace {

class OutputFile : public ::testing::Test {
 protected:
  static bool refused(const QString& path) {
    try {
      refuseOwnFile(path);
    } catch (const runtime::RuntimeError& error) {
      EXPECT_TRUE(error.description().contains(path)) << error.what();
      return true;
    }
    return false;
  }

  support::TestHome home;
};

TEST_F(OutputFile, NothingThatTheProgramLivesOnIsOverwritten) {
  const QString logo = home.file(QStringLiteral("logo.png"));
  support::writeFile(logo, "x");
  EXPECT_TRUE(clsLogo().SetPath(logo));
  for (const char* name : {"vorlent.dat", "./vorlent.dat", "VORLENT.DAT", "vorlent.dat-journal",
                           "vorlent.dat-wal", "vorlent.dat-shm", "attendance.ini", "HELP.CHM",
                           "help/index.html", "logo.png", "temp.jpg", "A0001.jpg", "a0001.JPG"}) {
    EXPECT_TRUE(refused(home.file(QString::fromUtf8(name)))) << name;
  }
  for (const char* name : {"out.pdf", "A0001.pdf", "vorlent.dat.pdf", "copy.dat"}) {
    EXPECT_FALSE(refused(home.file(QString::fromUtf8(name)))) << name;
  }
}

TEST_F(OutputFile, LinksCountAsWhatTheyLeadTo) {
  const QTemporaryDir elsewhere;
  const QString link = elsewhere.filePath(QStringLiteral("month.pdf"));
  const QString hardLink = home.file(QStringLiteral("hard.pdf"));
  const QString dangling = elsewhere.filePath(QStringLiteral("journal.pdf"));
  ASSERT_TRUE(QFile::link(home.databaseFile(), link));
  ASSERT_TRUE(QFile::link(home.file(QStringLiteral("vorlent.dat-journal")), dangling));
  ASSERT_EQ(::link(QFile::encodeName(home.databaseFile()), QFile::encodeName(hardLink)), 0);
  EXPECT_TRUE(refused(link));
  EXPECT_TRUE(refused(hardLink));
  EXPECT_TRUE(refused(dangling)) << "nothing is there yet, and the engine would take it for its own";
  const QString byFolder = elsewhere.filePath(QStringLiteral("folder"));
  ASSERT_TRUE(QFile::link(home.path(), byFolder));
  EXPECT_TRUE(refused(byFolder + QStringLiteral("/attendance.ini")));
  EXPECT_TRUE(refused(byFolder + QStringLiteral("/vorlent.dat-wal")));
}

}  // namespace
