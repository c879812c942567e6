#include <functional>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "dialogs/QtDialogHost.h"

namespace {

/// Runs `act` on the modal window as soon as it is up.
template <typename Window>
void whenShown(std::function<void(Window&)> act) {
  QTimer::singleShot(0, qApp, [act = std::move(act)] {
    auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
    ASSERT_NE(window, nullptr);
    act(*window);
    if (window->isVisible()) window->reject();
  });
}

QStringList buttonTexts(const QMessageBox& window) {
  QStringList texts;
  for (const QAbstractButton* button : window.buttons()) texts.append(button->text());
  return texts;
}

class Dialogs : public ::testing::Test {
 public:
  ~Dialogs() override { dialogs::installHost(m_before); }

 protected:
  Dialogs() : m_before(dialogs::installHost(&m_host)) {}

 private:
  dialogs::QtDialogHost m_host;
  dialogs::Host* m_before;
};

}  // namespace

TEST(DialogsWithoutHost, AgreeToNothingAndSayItOnStandardError) {
  dialogs::Host* before = dialogs::installHost(nullptr);
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(dialogs::MsgBox(QStringLiteral("删除？"), 36, QStringLiteral("询问")), dialogs::Answer::No);
  EXPECT_EQ(dialogs::MsgBox(QStringLiteral("完"), 64, {}), dialogs::Answer::Ok);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "询问：删除？\n完\n");
  EXPECT_EQ(dialogs::InputBoxText({}), std::nullopt);
  EXPECT_TRUE(dialogs::chooseFile({}).isEmpty());
  EXPECT_EQ(dialogs::chooseFolder({}), std::nullopt);
  dialogs::installHost(before);
}

TEST_F(Dialogs, QuestionShowsYesAndNoAndItsTextAsItIs) {
  whenShown<QMessageBox>([](QMessageBox& window) {
    EXPECT_EQ(window.icon(), QMessageBox::Question);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("询问"));
    EXPECT_EQ(window.text(), QStringLiteral("<b>\n第二行"));
    EXPECT_EQ(window.textFormat(), Qt::PlainText);
    EXPECT_EQ(buttonTexts(window), QStringList({QStringLiteral("是(&Y)"), QStringLiteral("否(&N)")}));
    window.button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(dialogs::MsgBox(QStringLiteral("<b>\r\n第二行"), 36, QStringLiteral("询问")),
            dialogs::Answer::Yes);
}

TEST_F(Dialogs, EachStyleHasItsIcon) {
  const std::vector<std::pair<int, QMessageBox::Icon>> cases = {{0, QMessageBox::NoIcon},
                                                                {16, QMessageBox::Critical},
                                                                {48, QMessageBox::Warning},
                                                                {64, QMessageBox::Information}};
  for (const auto& [style, icon] : cases) {
    whenShown<QMessageBox>([icon = icon](QMessageBox& window) {
      EXPECT_EQ(window.icon(), icon);
      EXPECT_EQ(buttonTexts(window), QStringList(QStringLiteral("确定")));
      window.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(dialogs::MsgBox(QStringLiteral("x"), style, {}), dialogs::Answer::Ok);
  }
}

TEST(DialogFilters, BecomeFiltersOfQt) {
  EXPECT_EQ(dialogs::qtNameFilters(QStringLiteral("XML文件|*.xml")),
            QStringList(QStringLiteral("XML文件 (*.xml)")));
  EXPECT_EQ(dialogs::qtNameFilters(QStringLiteral("图片(*.bmp;*.gif)|*.bmp;*.gif|所有文件|*.*")),
            QStringList({QStringLiteral("图片 (*.bmp *.gif)"), QStringLiteral("所有文件 (*.*)")}));
  EXPECT_TRUE(dialogs::qtNameFilters({}).isEmpty());
}

TEST_F(Dialogs, SavedFileGetsTheFiltersSuffix) {
  const QTemporaryDir directory;
  dialogs::FileBox box;
  box.save = true;
  box.filter = QStringLiteral("XML文件|*.xml");
  box.fileName = directory.filePath(QStringLiteral("部门信息"));
  whenShown<QFileDialog>([](QFileDialog& window) { window.QDialog::done(QDialog::Accepted); });
  EXPECT_EQ(dialogs::chooseFile(box), QStringList(directory.filePath(QStringLiteral("部门信息.xml"))));
}

TEST_F(Dialogs, FolderBoxOpensOnTheFolderAndGivesItsFullPath) {
  const QTemporaryDir directory;
  whenShown<QFileDialog>([&directory](QFileDialog& window) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("照片"));
    EXPECT_EQ(window.directory().path(), directory.path());
    window.QDialog::done(QDialog::Accepted);
  });
  EXPECT_EQ(dialogs::chooseFolder({QStringLiteral("照片"), directory.path()}), directory.path());
  whenShown<QFileDialog>([](QFileDialog& window) { window.reject(); });
  EXPECT_EQ(dialogs::chooseFolder({}), std::nullopt);
}

TEST_F(Dialogs, ColourKeepsRedInTheLowByte) {
  whenShown<QColorDialog>([](QColorDialog& window) {
    EXPECT_EQ(window.currentColor(), QColor(0x11, 0x22, 0x33));
    window.setCurrentColor(QColor(0xff, 0x80, 0x01));
    window.accept();
  });
  const auto chosen = dialogs::chooseColor({0x332211});
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->color, 0x0180ff);
}

TEST_F(Dialogs, FontBoxKeepsHalfPoints) {
  const QString family = QStringLiteral("Liberation Sans");
  whenShown<QFontDialog>([&family](QFontDialog& window) {
    EXPECT_TRUE(window.currentFont().bold());
    window.setCurrentFont(QFont(family, window.currentFont().pointSize()));
    window.accept();
  });
  const auto chosen = dialogs::chooseFont({family, 26.5, true, false});
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, family);
  EXPECT_EQ(chosen->size, 26.5);
  EXPECT_FALSE(chosen->bold);
}

TEST_F(Dialogs, FontBoxKeepsAFamilyThatTheSystemLacks) {
  whenShown<QFontDialog>([](QFontDialog& window) {
    QFont font = window.currentFont();
    EXPECT_NE(font.family(), QStringLiteral("没有的字体"));
    font.setPointSize(30);
    window.setCurrentFont(font);
    window.accept();
  });
  const auto chosen = dialogs::chooseFont({QStringLiteral("没有的字体"), 1e300, true, false});
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, QStringLiteral("没有的字体"));
  EXPECT_EQ(chosen->size, 30);
}
