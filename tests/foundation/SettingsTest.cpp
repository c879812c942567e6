#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include "foundation/GlobalDefine.h"
#include "foundation/clsConDbSet.h"
#include "foundation/clsConfiguration.h"
#include "foundation/clsSchoolArea.h"
#include "runtime/DefaultText.h"
#include "runtime/ProgramDirectory.h"
#include "support/Files.h"

namespace {

/// A program directory without a settings file.
class Settings : public ::testing::Test {
 protected:
  void SetUp() override { runtime::setAppPath(m_directory.path()); }
  void TearDown() override { runtime::setAppPath({}); }

  static clsConfiguration group(const QString& name) {
    clsConfiguration settings;
    settings.setFileName(settingsFile());
    settings.setGroup(name);
    return settings;
  }

  static QByteArray content() { return support::contentOf(settingsFile()); }

  QTemporaryDir m_directory;
};

TEST_F(Settings, AreEmptyWithoutAFileAndReadingMakesNone) {
  EXPECT_EQ(group(QStringLiteral("UNIT")).GetItem(QStringLiteral("UNITNAME")), QString());
  EXPECT_EQ(GetDataPath(), QString());
  EXPECT_EQ(clsSchoolArea().SNAME(), QString());
  EXPECT_EQ(clsConDbSet().Server(), QString());
  EXPECT_FALSE(QFile::exists(settingsFile()));
}

TEST_F(Settings, KeepTextInTheCodePage) {
  const QString text = QStringLiteral("第一中学 喆");
  ASSERT_TRUE(group(QStringLiteral("单位")).SetItem(QStringLiteral("名称"), text));
  EXPECT_EQ(group(QStringLiteral("单位")).GetItem(QStringLiteral("名称")), text);
  EXPECT_TRUE(content().contains("\xb5\xda\xd2\xbb"));
}

TEST_F(Settings, RefuseTextThatTheCodePageLacks) {
  ASSERT_TRUE(group(QStringLiteral("UNIT")).SetItem(QStringLiteral("UNITNAME"), QStringLiteral("旧")));
  const QByteArray before = content();
  const QString foreign = QStringLiteral("한");
  EXPECT_FALSE(group(QStringLiteral("UNIT")).SetItem(QStringLiteral("UNITNAME"), foreign));
  EXPECT_FALSE(group(QStringLiteral("UNIT")).SetItem(foreign, QStringLiteral("x")));
  EXPECT_FALSE(group(foreign).SetItem(QStringLiteral("UNITNAME"), QStringLiteral("x")));
  EXPECT_FALSE(group(QStringLiteral("UNIT")).SetItem(QStringLiteral("UNITNAME"), QStringLiteral("a\r\nb=c")));
  EXPECT_EQ(content(), before);
}

TEST_F(Settings, CutValuesAt254BytesBetweenCharacters) {
  const clsConfiguration settings = group(QStringLiteral("UNIT"));
  ASSERT_TRUE(settings.SetItem(QStringLiteral("K"), QString(300, u'x')));
  EXPECT_EQ(settings.GetItem(QStringLiteral("K")), QString(254, u'x'));
  ASSERT_TRUE(settings.SetItem(QStringLiteral("K"), u'x' + QString(200, u'中')));
  EXPECT_EQ(settings.GetItem(QStringLiteral("K")), u'x' + QString(126, u'中'));
}

TEST_F(Settings, ServerSettingsTryAllFourWrites) {
  clsConDbSet server;
  server.setServer(QStringLiteral("s"));
  server.setLoginName(QStringLiteral("한"));  // cannot be written
  server.setLoginPwd(QStringLiteral("p"));
  server.setdbName(QStringLiteral("d"));
  EXPECT_FALSE(server.Save());
  EXPECT_EQ(content(), "[ATTENDANCE]\r\nDBSERVER=s\r\nDBLOGINPWD=p\r\nDBNAME=d\r\n");
  server.setLoginName(QStringLiteral("l"));
  EXPECT_TRUE(server.Save());
  EXPECT_EQ(clsConDbSet().LoginName(), QStringLiteral("l"));

  ASSERT_EQ(::chmod(QFile::encodeName(settingsFile()).constData(), 0444), 0);
  EXPECT_FALSE(server.Save());
}

TEST(ShortTime, IsEmptyForTheZeroMomentOnly) {
  EXPECT_EQ(FormatShortTime(runtime::zeroDateTime()), QString());
  EXPECT_EQ(FormatShortTime(QDateTime(QDate(2026, 11, 15), QTime(8, 5, 40))), QStringLiteral("08:05"));
  EXPECT_EQ(FormatShortTime(QDateTime(QDate(2026, 11, 15), QTime(0, 0))), QStringLiteral("00:00"));
}

}  // namespace
