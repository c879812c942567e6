#include <QApplication>
#include <QDir>
#include <QTimer>

#include "MainWindowTest.h"

namespace {

class PrintingCards : public MainWindow {
 protected:
  [[nodiscard]] QStringList photoFiles() const {
    return QDir(home.path()).entryList({QStringLiteral("*.jpg")});
  }
  /// Prints, closing the preview as soon as it is up; the photo files that were there then.
  QStringList print() const {
    QStringList files;
    bool shown = false;
    QTimer::singleShot(0, qApp, [&] {
      QWidget* preview = QApplication::activeModalWidget();
      shown = preview != nullptr;
      files = photoFiles();
      if (shown) preview->close();
    });
    choose("mnuEmpPrint");
    EXPECT_TRUE(shown);
    return files;
  }
};

}  // namespace

TEST_F(PrintingCards, SaysWhichEmployeesAreSkippedAndWhy) {
  window.Form_Load();
  execute(QStringLiteral("DELETE FROM Employee WHERE ENUMBER = 'A002'"));
  execute(QStringLiteral("UPDATE Employee SET HEADIMG = NULL WHERE ENUMBER = 'A004'"));
  select({0, 1, 3});
  EXPECT_EQ(print(), QStringList(QStringLiteral("A001.jpg")));
  EXPECT_TRUE(note().startsWith(QStringLiteral("打印 1 张，跳过 2 名：A004（"))) << note().toStdString();
  EXPECT_TRUE(note().endsWith(QStringLiteral("、A002（数据库中已没有该员工）"))) << note().toStdString();
}

TEST_F(PrintingCards, LetsGoOfThePhotosWhenThePreviewCloses) {
  window.Form_Load();
  select({0, 1});
  EXPECT_EQ(print().size(), 2);
  EXPECT_EQ(photoFiles(), QStringList());
  EXPECT_EQ(print().size(), 2) << "a second print has its photos again";
  EXPECT_EQ(note(), QStringLiteral("打印 2 张"));
}

TEST_F(PrintingCards, ShowsAnEmptyReportWithoutASelection) {
  window.Form_Load();
  EXPECT_EQ(print(), QStringList());
  EXPECT_TRUE(note().contains(QStringLiteral("没有选中员工")));
}
