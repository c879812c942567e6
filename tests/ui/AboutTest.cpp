#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "foundation/GlobalDefine.h"
#include "support/Files.h"
#include "support/RecordingShell.h"
#include "support/ScriptedBoxes.h"
#include "ui/SystemInfo.h"
#include "ui/frmAbout.h"

namespace {

const QByteArray toolEntry = "[SOFTWARE\\Microsoft\\Shared Tools\\MSINFO]\nPATH=/opt/info\n";

class About : public ::testing::Test {
 protected:
  About() {
    gHomeAddress = QStringLiteral("site.example");
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0"));
    desktop.registry = directory.filePath(QStringLiteral("machine.ini"));
  }

  static QLabel& label(const frmAbout& box, const char* name) {
    return *box.findChild<QLabel*>(QLatin1String(name));
  }
  static QColor linkColor(const frmAbout& box) {
    return label(box, "lblHomepage").palette().color(QPalette::WindowText);
  }
  /// An entry that names the directory as the tool's folder, with the other system's separators.
  [[nodiscard]] QByteArray folderEntry() const {
    return "[SOFTWARE\\Microsoft\\Shared Tools Location]\nMSINFO=" +
           directory.path().replace(u'/', u'\\').toUtf8() + "\n";
  }

  QTemporaryDir directory;
  support::ScriptedBoxes boxes;
  support::RecordingShell desktop;
};

}  // namespace

TEST_F(About, NamesProgramVersionAndSite) {
  const frmAbout box;
  EXPECT_EQ(box.windowTitle(), QStringLiteral("关于 签到系统"));
  EXPECT_EQ(label(box, "lblTitle").text(), QStringLiteral("签到系统"));
  EXPECT_EQ(label(box, "lblVersion").text(), QStringLiteral("版本 1.2.0"));
  EXPECT_EQ(label(box, "lblHomepage").text(), QStringLiteral("http://site.example"));
}

TEST_F(About, TheLinkIsRedUnderThePointerAndOpensTheSite) {
  frmAbout box;
  box.show();
  QLabel& link = label(box, "lblHomepage");
  EXPECT_EQ(linkColor(box), QColor(0, 0, 255));
  QTest::mouseMove(&link, link.rect().center());
  QApplication::processEvents();
  EXPECT_EQ(linkColor(box), QColor(255, 0, 0));
  QTest::mouseMove(&box, label(box, "lblTitle").geometry().center());
  QApplication::processEvents();
  EXPECT_EQ(linkColor(box), QColor(0, 0, 255)) << "over another text the pointer is over the form";

  desktop.succeeds = false;
  QTest::mouseClick(&link, Qt::LeftButton);
  QTest::mouseClick(&link, Qt::RightButton);
  EXPECT_EQ(desktop.opened, QStringList(QStringLiteral("http://site.example")));
}

TEST_F(About, StartsTheToolThatTheRegistryNames) {
  support::writeFile(desktop.registry, folderEntry() + toolEntry);
  const frmAbout box;
  box.findChild<QPushButton*>(QStringLiteral("cmdSysInfo"))->click();
  EXPECT_EQ(desktop.started, QStringList(QStringLiteral("/opt/info")));
}

TEST_F(About, LooksForTheToolInItsFolderNext) {
  support::writeFile(desktop.registry, folderEntry());
  boxes.expectMessage(QStringLiteral("此时系统信息不可用"));
  StartSysInfo();
  EXPECT_EQ(desktop.started, QStringList());
  const QString tool = directory.filePath(QStringLiteral("MSINFO32.EXE"));
  support::writeFile(tool, {});
  StartSysInfo();
  EXPECT_EQ(desktop.started, QStringList(tool));
}

TEST_F(About, SaysWhenThereIsNoSystemInformation) {
  boxes.expectMessage(QStringLiteral("此时系统信息不可用"));
  StartSysInfo();
  EXPECT_EQ(boxes.messages()[0].style, 0);
  EXPECT_EQ(desktop.started, QStringList());
  support::writeFile(desktop.registry, toolEntry);
  desktop.succeeds = false;
  boxes.expectMessage(QStringLiteral("此时系统信息不可用"));
  StartSysInfo();
}

TEST_F(About, GivesNumbersAsDecimalText) {
  support::writeFile(desktop.registry, "[K]\na=dword:ffffffff\n");
  EXPECT_EQ(GetKeyValue(shell::RootKey::LocalMachine, QStringLiteral("K"), QStringLiteral("a")),
            QStringLiteral("4294967295"));
  EXPECT_EQ(GetKeyValue(shell::RootKey::LocalMachine, QStringLiteral("K"), QStringLiteral("b")),
            std::nullopt);
}
