#include <gtest/gtest.h>

#include "foundation/GlobalDefine.h"
#include "foundation/clsConfiguration.h"
#include "foundation/mdMain.h"
#include "support/Files.h"
#include "support/ScriptedBoxes.h"
#include "support/TestHome.h"

namespace {

class ShownForm : public MainForm {
 public:
  explicit ShownForm(int& shown) : m_shown(shown) {}
  void Show() override { ++m_shown; }

 private:
  int& m_shown;
};

class StartUp : public ::testing::Test {
 protected:
  bool start() {
    return Main([this] {
      ++m_made;
      return std::make_unique<ShownForm>(m_shown);
    });
  }

  /// Starts in vain and gives what went to standard error.
  std::string refusal() {
    m_boxes.expectMessage(QStringLiteral("数据库异常，程序不能正常运行！点击确定后将程序将退出！"));
    testing::internal::CaptureStderr();
    EXPECT_FALSE(start());
    EXPECT_EQ(m_made, 0);
    EXPECT_EQ(gMainForm, nullptr);
    return testing::internal::GetCapturedStderr();
  }

  support::TestHome m_home;
  support::ScriptedBoxes m_boxes;
  int m_made = 0;
  int m_shown = 0;
};

TEST_F(StartUp, ShowsTheMainFormAndOpensNoConnection) {
  EXPECT_TRUE(start());
  EXPECT_NE(gMainForm, nullptr);
  EXPECT_EQ(m_shown, 1);
  EXPECT_EQ(gConnection, nullptr);
  EXPECT_FALSE(gHomeAddress.isEmpty());
  EXPECT_FALSE(gHomeAddress.contains(QStringLiteral("://")));
}

TEST_F(StartUp, RefusesWithoutADatabaseFile) {
  ASSERT_TRUE(QFile::remove(m_home.databaseFile()));
  EXPECT_NE(refusal().find(m_home.databaseFile().toStdString()), std::string::npos);
  ASSERT_EQ(m_boxes.messages().size(), 1U);
  EXPECT_EQ(m_boxes.messages()[0].title, QStringLiteral("错误"));
  EXPECT_EQ(m_boxes.messages()[0].style, dialogs::Exclamation);
  EXPECT_FALSE(QFile::exists(m_home.databaseFile()));
}

TEST_F(StartUp, LooksInTheRootWithoutSettings) {
  ASSERT_TRUE(QFile::remove(settingsFile()));
  EXPECT_NE(refusal().find("：/vorlent.dat"), std::string::npos);
}

TEST_F(StartUp, LeavesADamagedDatabaseToTheFirstQuery) {
  support::writeFile(m_home.databaseFile(), {});
  EXPECT_TRUE(start());
}

}  // namespace
