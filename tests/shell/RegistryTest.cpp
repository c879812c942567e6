#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include "shell/DesktopShell.h"
#include "shell/Registry.h"
#include "support/Files.h"

namespace {

class Registry : public ::testing::Test {
 protected:
  Registry() { shell::installHost(&m_desktop); }
  void TearDown() override { shell::installHost(nullptr); }

  void write(const QByteArray& bytes) const { support::writeFile(file, bytes); }
  /// The value as text, "number N" for a number and "<none>" when it cannot be read.
  static QString value(const QString& name, const QString& key = QStringLiteral("SOFTWARE\\A B")) {
    const auto found = shell::registryValue(shell::RootKey::LocalMachine, key, name);
    if (!found) return QStringLiteral("<none>");
    const auto* number = std::get_if<std::uint32_t>(&*found);
    return number ? QStringLiteral("number %1").arg(*number) : std::get<QString>(*found);
  }

  QTemporaryDir directory;
  const QString file = directory.filePath(QStringLiteral("machine.ini"));
  const QString none = QStringLiteral("<none>");

 private:
  shell::DesktopShell m_desktop{file};
};

}  // namespace

TEST_F(Registry, FindsTextsByTheFullNameOfTheirKey) {
  write(
      "\xef\xbb\xbf; machine\r\nPath=outside\r\n[SOFTWARE]\nPath=above\n[software\\a b]\r\n;Path=old\n"
      " path = /opt/\xe5\xb7\xa5\xe5\x85\xb7=1 \r\nEmpty=\n[SOFTWARE\\A B\\C]\nOther=x\n");
  EXPECT_EQ(value(QStringLiteral("PATH")), QStringLiteral("/opt/工具=1"));
  EXPECT_EQ(value(QStringLiteral("Empty")), QString());
  EXPECT_EQ(value(QStringLiteral("Other")), none);
  EXPECT_EQ(value(QStringLiteral("Path"), QStringLiteral("SOFTWARE\\B")), none);
}

TEST_F(Registry, ReadsNumbersOf32Bits) {
  write("[SOFTWARE\\A B]\na=dword:0000002a\nb=DWORD:FFFFFFFF\nc=dword:1ffffffff\nd=dword:\ne=dword:x1\n");
  EXPECT_EQ(value(QStringLiteral("a")), QStringLiteral("number 42"));
  EXPECT_EQ(value(QStringLiteral("b")), QStringLiteral("number 4294967295"));
  for (const char16_t* broken : {u"c", u"d", u"e"}) EXPECT_EQ(value(QString::fromUtf16(broken)), none);
}

TEST_F(Registry, AFileThatCannotBeReadHoldsNothing) {
  const QByteArray entry = "[SOFTWARE\\A B]\nPath=/x\n";
  EXPECT_EQ(value(QStringLiteral("Path")), none);
  write(entry + "Note=\xb1\xb8\xd7\xa2\n");
  EXPECT_EQ(value(QStringLiteral("Path")), none) << "not UTF-8";
  write(entry + QByteArray(64 * 1024, ' '));
  EXPECT_EQ(value(QStringLiteral("Path")), none) << "too large";
  QFile::remove(file);
  ASSERT_EQ(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
  EXPECT_EQ(value(QStringLiteral("Path")), none) << "a pipe, which nobody writes to";
  shell::installHost(nullptr);
  EXPECT_EQ(value(QStringLiteral("Path")), none);
}

TEST_F(Registry, TheFileThatIsInstalledNamesATool) {
  write(support::contentOf(QStringLiteral(TEST_DATA_DIR "/../../packaging/machine.ini")));
  EXPECT_EQ(value(QStringLiteral("PATH"), QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO")),
            QStringLiteral("/usr/bin/hardinfo"));
}
