#include <gtest/gtest.h>

#include <QDir>

#include "shell/DesktopShell.h"
#include "support/RecordingShell.h"

TEST(Shell, AsksTheInstalledHostAndOpensNothingWithoutOne) {
  EXPECT_FALSE(shell::openTarget(QStringLiteral("http://example.org")));
  {
    support::RecordingShell desktop;
    EXPECT_TRUE(shell::openTarget(QStringLiteral("a")));
    desktop.succeeds = false;
    EXPECT_FALSE(shell::openTarget(QStringLiteral("b")));
    EXPECT_EQ(desktop.opened, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
  }
  EXPECT_FALSE(shell::openTarget(QStringLiteral("c")));
}

TEST(Shell, TellsAddressesFromFiles) {
  EXPECT_EQ(shell::targetUrl(QStringLiteral("http://example.org/x?y=1")),
            QUrl(QStringLiteral("http://example.org/x?y=1")));
  const QString file = QStringLiteral("/tmp/帮助#1?%20.chm");
  EXPECT_EQ(shell::targetUrl(file).toLocalFile(), file);
  EXPECT_EQ(shell::targetUrl(QStringLiteral("HELP.CHM")).toLocalFile(),
            QDir::current().absoluteFilePath(QStringLiteral("HELP.CHM")));
}
