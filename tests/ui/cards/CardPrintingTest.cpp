#include <functional>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include "ui/MainWindowTest.h"
#include "ui/cards/frmCardSheet.h"

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

  /// What the user meets on the way to the sheets.
  struct Sheets {
    CardSheet proposed;
    QString count;
    QString pages;
    QString names;
    QStringList photosMeanwhile;
  };
  /// Chooses the sheets, which proposes `proposed`, changes it by `change`, and closes the preview again.
  Sheets printSheets(const std::function<void(QDialog&)>& change) const {
    Sheets met;
    QTimer::singleShot(0, qApp, [&] {
      auto* dialog = qobject_cast<frmCardSheet*>(QApplication::activeModalWidget());
      if (!dialog) return;
      met.proposed = dialog->Sheet();
      met.count = dialog->findChild<QLabel*>(QStringLiteral("lblSheets"))->text();
      change(*dialog);
      if (dialog->result() != QDialog::Accepted) return;
      QTimer::singleShot(0, qApp, [&] {
        QWidget* preview = QApplication::activeModalWidget();
        if (!preview) return;
        met.pages = preview->findChild<QLineEdit*>(QStringLiteral("txtPage"))->text();
        const auto* contents = preview->findChild<QListView*>(QStringLiteral("contents"));
        met.names = contents->model()->index(0, 0).data(Qt::ToolTipRole).toString();
        met.photosMeanwhile = photoFiles();
        preview->close();
      });
    });
    choose("mnuCardSheet");
    return met;
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

TEST_F(PrintingCards, SheetsTakeTheSelectionFromTheTopAndRememberWhatWasChosen) {
  window.Form_Load();
  select({0, 2, 4});
  const Sheets first = printSheets([](QDialog& dialog) {
    dialog.findChild<QSpinBox*>(QStringLiteral("txtStart"))->setValue(7);
    dialog.findChild<QCheckBox*>(QStringLiteral("chkCutMarks"))->setChecked(false);
    dialog.accept();
  });
  EXPECT_EQ(first.proposed.start, 1);
  EXPECT_EQ(first.count, QStringLiteral("3 张签到卡，用 1 张 A4 纸"));
  EXPECT_EQ(first.pages, QStringLiteral("1 / 2"));
  EXPECT_EQ(first.names, QStringLiteral("员工A001、员工A003"));
  EXPECT_EQ(first.photosMeanwhile.size(), 3);
  EXPECT_EQ(photoFiles(), QStringList());
  EXPECT_EQ(note(), QStringLiteral("打印 3 张"));

  const Sheets second = printSheets([](QDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(second.proposed.start, 7);
  EXPECT_FALSE(second.proposed.cutMarks);
  EXPECT_EQ(second.pages, QString()) << "nothing is shown when the dialog is left";
}

TEST_F(PrintingCards, SheetsLeaveOutWhoIsGoneAndSaySo) {
  window.Form_Load();
  execute(QStringLiteral("DELETE FROM Employee WHERE ENUMBER = 'A002'"));
  select({0, 1});
  const Sheets met = printSheets([](QDialog& dialog) { dialog.accept(); });
  EXPECT_EQ(met.names, QStringLiteral("员工A001"));
  EXPECT_EQ(note(), QStringLiteral("打印 1 张，跳过 1 名：A002（数据库中已没有该员工）"));
}

TEST_F(PrintingCards, SheetsWithoutASelectionAreLikePlainCards) {
  window.Form_Load();
  QString title;
  QTimer::singleShot(0, qApp, [&] {
    title = QApplication::activeModalWidget()->windowTitle();
    QApplication::activeModalWidget()->close();
  });
  choose("mnuCardSheet");
  EXPECT_EQ(title, QStringLiteral("签到卡"));
  EXPECT_EQ(note(), QStringLiteral("没有选中员工，没有可打印的签到卡"));
}
