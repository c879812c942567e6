#include <gtest/gtest.h>

#include <QDir>

#include "shell/DesktopShell.h"

TEST(Shell, TellsAddressesFromFiles) {
  EXPECT_EQ(shell::targetUrl(QStringLiteral("http://example.org/x?y=1")),
            QUrl(QStringLiteral("http://example.org/x?y=1")));
  const QString file = QStringLiteral("/tmp/帮助#1?%20.chm");
  EXPECT_EQ(shell::targetUrl(file).toLocalFile(), file);
  EXPECT_EQ(shell::targetUrl(QStringLiteral("HELP.CHM")).toLocalFile(),
            QDir::current().absoluteFilePath(QStringLiteral("HELP.CHM")));
}
