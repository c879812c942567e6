#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "shell/DesktopHelpViewer.h"
#include "shell/HelpDocument.h"
#include "support/Files.h"

namespace {

/// Sets an environment variable, or removes it, as long as it lives.
class Environment {
 public:
  Environment(const char* name, const QString& value) : m_name(name), m_before(qgetenv(name)) {
    value.isNull() ? qunsetenv(name) : qputenv(name, value.toUtf8());
  }
  ~Environment() { m_before.isNull() ? qunsetenv(m_name) : qputenv(m_name, m_before); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  const char* m_name;
  QByteArray m_before;
};

TEST(HelpDocument, OpensThePagesWhereNothingOpensTheCompiledHelp) {
  const QTemporaryDir home;
  const QString compiled = home.filePath(QStringLiteral("HELP.CHM"));
  const QString pages = home.filePath(QStringLiteral("help/index.html"));
  const auto program = [] { return true; };
  const auto noProgram = [] { return false; };

  EXPECT_EQ(shell::readableHelp(compiled, noProgram), compiled) << "there is nothing else to try";
  QDir(home.path()).mkdir(QStringLiteral("help"));
  support::writeFile(pages, "pages");
  EXPECT_EQ(shell::readableHelp(compiled, program), pages) << "the compiled help was not built";
  support::writeFile(compiled, "compiled");
  EXPECT_EQ(shell::readableHelp(compiled, noProgram), pages);
  EXPECT_EQ(shell::readableHelp(compiled, program), compiled);
  const QString other = home.filePath(QStringLiteral("卡.pdf"));
  EXPECT_EQ(shell::readableHelp(other, noProgram), other);
}

TEST(HelpDocument, AsksTheDesktopForAViewer) {
  const QTemporaryDir data;
  const Environment variables[] = {{"XDG_DATA_HOME", data.path()},     {"XDG_CONFIG_HOME", data.path()},
                                   {"XDG_DATA_DIRS", data.path()},     {"XDG_CONFIG_DIRS", data.path()},
                                   {"XDG_CURRENT_DESKTOP", QString()}, {"DESKTOP_SESSION", QString()},
                                   {"KDE_FULL_SESSION", QString()}};
  EXPECT_FALSE(shell::desktopHasHelpViewer());

  QDir(data.path()).mkdir(QStringLiteral("applications"));
  support::writeFile(data.filePath(QStringLiteral("applications/viewer.desktop")),
                     "[Desktop Entry]\nType=Application\nName=Viewer\nExec=true %f\n");
  support::writeFile(data.filePath(QStringLiteral("mimeapps.list")),
                     "[Default Applications]\napplication/x-chm=viewer.desktop\n");
  EXPECT_TRUE(shell::desktopHasHelpViewer());
}

}  // namespace
