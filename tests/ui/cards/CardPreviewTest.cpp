#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTimer>

#include "preview/PreviewWindow.h"
#include "printing/clsLogo.h"
#include "support/Files.h"
#include "support/ScriptedBoxes.h"
#include "support/TestHome.h"
#include "ui/cards/CardPreview.h"

namespace {

class CardPreviewTest : public ::testing::Test {
 protected:
  /// Employees as a list loads them: each owns its photo file.
  std::shared_ptr<clsEmployeeSet> employees(int count,
                                            const QByteArray& photo = support::TestHome::tinyJpeg()) {
    auto set = std::make_shared<clsEmployeeSet>();
    for (int i = 1; i <= count; ++i) {
      const auto employee = std::make_shared<clsEmployee>();
      employee->setENUMBER(QString::number(i));
      employee->setENAME(QStringLiteral("张三"));
      employee->setEBARCODE(QStringLiteral("123456789012345"));
      employee->setHeadImg(photoFile(i));
      support::writeFile(photoFile(i), photo);
      set->Add(employee);
    }
    return set;
  }

  [[nodiscard]] QString photoFile(int number) const {
    return home.file(QString::number(number) + QStringLiteral(".jpg"));
  }

  /// Shows the preview, reads its page box and closes it.
  QString shownPages(std::shared_ptr<clsEmployeeSet> set) {
    QString pages = QStringLiteral("no preview");
    QTimer::singleShot(0, [&pages, this] {
      auto* window = qobject_cast<preview::PreviewWindow*>(QApplication::activeModalWidget());
      if (!window) return;
      pages = window->findChild<QLineEdit*>(QStringLiteral("txtPage"))->text();
      filesWhileShown = QFile::exists(photoFile(1));
      window->reject();
    });
    showCardPreview(report, std::move(set));
    return pages;
  }

  support::TestHome home;
  support::ScriptedBoxes boxes;
  SingleEmployeeInfoReport report;
  bool filesWhileShown = false;
};

}  // namespace

TEST_F(CardPreviewTest, EmployeesAreLetGoWhenThePreviewCloses) {
  EXPECT_EQ(shownPages(employees(5)), QStringLiteral("1 / 2"));
  EXPECT_TRUE(filesWhileShown);
  EXPECT_FALSE(QFile::exists(photoFile(1)));
  EXPECT_FALSE(QFile::exists(photoFile(5)));
}

TEST_F(CardPreviewTest, UnreadablePicturesAreToldInOneMessage) {
  support::writeFile(home.file(QStringLiteral("logo.gif")), "no picture");
  ASSERT_TRUE(clsLogo().SetPath(home.file(QStringLiteral("logo.gif"))));
  boxes.expectMessage(QStringLiteral("以下图片无法读取，签到卡上照片留空，标志用默认的："));
  EXPECT_EQ(shownPages(employees(25, "no picture")), QStringLiteral("1 / 7"));
  ASSERT_EQ(boxes.messages().size(), 1u);
  const dialogs::MessageBox& box = boxes.messages()[0];
  EXPECT_EQ(box.style, dialogs::Exclamation);
  EXPECT_EQ(box.title, QStringLiteral("警告"));
  const QStringList lines = box.text.split(u'\n');
  ASSERT_EQ(lines.size(), 22);
  EXPECT_TRUE(lines[1].contains(QStringLiteral("logo.gif")));
  EXPECT_TRUE(lines[20].contains(QStringLiteral("19")));
  EXPECT_EQ(lines[21], QStringLiteral("……共 26 处"));
}

TEST_F(CardPreviewTest, ARunThatFailsLetsGoAsWell) {
  report.Detail.Controls.clear();
  EXPECT_ANY_THROW(showCardPreview(report, employees(1)));
  EXPECT_FALSE(QFile::exists(photoFile(1)));
}
