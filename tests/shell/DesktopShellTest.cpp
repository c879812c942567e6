#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QTemporaryDir>
#include <QThread>

#include "shell/DesktopShell.h"
#include "support/Files.h"

TEST(Shell, TellsAddressesFromFiles) {
  EXPECT_EQ(shell::targetUrl(QStringLiteral("http://example.org/x?y=1")),
            QUrl(QStringLiteral("http://example.org/x?y=1")));
  const QString file = QStringLiteral("/tmp/帮助#1?%20.chm");
  EXPECT_EQ(shell::targetUrl(file).toLocalFile(), file);
  EXPECT_EQ(shell::targetUrl(QStringLiteral("HELP.CHM")).toLocalFile(),
            QDir::current().absoluteFilePath(QStringLiteral("HELP.CHM")));
}

TEST(Shell, StartsAProgramAndDoesNotWaitForIt) {
  const QTemporaryDir directory;
  const QString gate = directory.filePath(QStringLiteral("gate"));
  const QString done = directory.filePath(QStringLiteral("done"));
  const QString program = directory.filePath(QStringLiteral("a tool"));
  support::writeFile(gate, {});
  support::writeFile(program,
                     QStringLiteral("#!/bin/sh\nwhile [ -e '%1' ]; do sleep 0.02; done\necho $# > '%2'\n")
                         .arg(gate, done)
                         .toUtf8());
  shell::DesktopShell desktop;
  EXPECT_FALSE(desktop.start(program)) << "it may not be executed yet";
  ASSERT_TRUE(QFile::setPermissions(program, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
  EXPECT_TRUE(desktop.start(program));
  EXPECT_FALSE(QFile::exists(done));
  QFile::remove(gate);
  for (const QDeadlineTimer patience(20000); support::contentOf(done) != "0\n" && !patience.hasExpired();) {
    QThread::msleep(20);
  }
  EXPECT_EQ(support::contentOf(done), "0\n") << "started without arguments";
}

TEST(Shell, StartsNothingButAFullPath) {
  shell::DesktopShell desktop;
  for (const char16_t* name : {u"true", u"", u"/nowhere/tool"}) {
    EXPECT_FALSE(desktop.start(QString::fromUtf16(name)));
  }
}
