#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include "preview/PreviewWindow.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/ScriptedBoxes.h"
#include "support/TestHome.h"
#include "ui/months/frmMonthReport.h"

namespace {

class MonthReportDialog : public ::testing::Test {
 protected:
  MonthReportDialog() {
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    home.insertEmployee(QStringLiteral("A1"), QStringLiteral("张三"), 1, {});
    home.execute(
        QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('A1', '2026-10-31 08:05:09')"));
    clsSchoolArea area;
    area.setSNAME(QStringLiteral("青禾"));
    EXPECT_TRUE(area.SaveInfo());
  }

  template <typename Control>
  static Control& child(const QWidget& dialog, const char* name) {
    return *dialog.findChild<Control*>(QLatin1String(name));
  }

  static void click(const QWidget& dialog, const char* button) { child<QPushButton>(dialog, button).click(); }

  /// The title of the preview that `button` opens, which is closed at once; empty when none opens.
  static QString previewTitle(frmMonthReport& dialog) {
    QString title;
    QTimer::singleShot(0, [&title] {
      auto* window = qobject_cast<preview::PreviewWindow*>(QApplication::activeModalWidget());
      if (!window) return;
      title = window->windowTitle();
      window->reject();
    });
    click(dialog, "btnPreview");
    QApplication::processEvents();
    return title;
  }

  support::TestHome home;
  support::ScriptedBoxes boxes;
  support::FixedClock clock{QDateTime(QDate(2026, 11, 5), QTime(9, 0))};
  const QString workbook = home.file(QStringLiteral("m.xlsx"));
};

}  // namespace

TEST_F(MonthReportDialog, OpensOnTheMonthBeforeAndNamesTheMonthChosen) {
  frmMonthReport dialog;
  EXPECT_EQ(child<QSpinBox>(dialog, "txtYear").value(), 2026);
  EXPECT_EQ(child<QComboBox>(dialog, "cbMonth").currentText(), QStringLiteral("10"));
  EXPECT_EQ(child<QLineEdit>(dialog, "txtSchoolName").text(), QStringLiteral("青禾"));
  EXPECT_TRUE(dialog.windowTitle().contains(QStringLiteral("2026年10月")));
  child<QComboBox>(dialog, "cbMonth").setCurrentIndex(1);
  child<QSpinBox>(dialog, "txtYear").setValue(2028);
  EXPECT_TRUE(dialog.windowTitle().contains(QStringLiteral("2028年2月")));
}

TEST_F(MonthReportDialog, ThePreviewIsMadeAnewEachTime) {
  frmMonthReport dialog;
  EXPECT_EQ(previewTitle(dialog), QStringLiteral("青禾2026年10月员工考勤报表"));
  child<QComboBox>(dialog, "cbMonth").setCurrentIndex(10);
  EXPECT_EQ(previewTitle(dialog), QStringLiteral("青禾2026年11月员工考勤报表"));
}

TEST_F(MonthReportDialog, TheExportProposesANameThatFileSystemsTake) {
  frmMonthReport dialog;
  child<QLineEdit>(dialog, "txtSchoolName").setText(QStringLiteral(" 一/二 "));
  boxes.expectFile({workbook});
  boxes.expectMessage(QStringLiteral("已导出2026年10月的考勤"));
  click(dialog, "btnExport");
  ASSERT_EQ(boxes.files().size(), 1u);
  EXPECT_EQ(boxes.files()[0].fileName, QStringLiteral("一_二2026年10月员工考勤报表.xlsx"));
  EXPECT_TRUE(boxes.files()[0].save);
  EXPECT_TRUE(support::contentOf(workbook).startsWith("PK"));
  boxes.expectFile({});
  click(dialog, "btnExport");
}

TEST_F(MonthReportDialog, RecordsOfNobodyAreMentionedForTheMonthThatHasThem) {
  home.execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('Z9', '2026-10-30 08:00:00')"));
  frmMonthReport dialog;
  EXPECT_EQ(child<QLabel>(dialog, "lblNobodys").text(), QString());
  EXPECT_FALSE(previewTitle(dialog).isEmpty());
  EXPECT_TRUE(child<QLabel>(dialog, "lblNobodys").text().contains(QStringLiteral("Z9（1 条）")));
  child<QComboBox>(dialog, "cbMonth").setCurrentIndex(10);
  EXPECT_EQ(child<QLabel>(dialog, "lblNobodys").text(), QString());
}

TEST_F(MonthReportDialog, OnlyAWorkbookIsReplaced) {
  frmMonthReport dialog;
  const QByteArray before = support::contentOf(home.databaseFile());
  boxes.expectFile({home.databaseFile()});
  boxes.expectMessage(QStringLiteral("必须以“.xlsx”结尾"));
  click(dialog, "btnExport");
  EXPECT_EQ(support::contentOf(home.databaseFile()), before);
}

TEST_F(MonthReportDialog, AChangedUnitIsStoredWhenTheDialogRunsOrCloses) {
  {
    frmMonthReport dialog;
    child<QLineEdit>(dialog, "txtSchoolName").setText(QStringLiteral(" 新单位 "));
    EXPECT_EQ(clsSchoolArea().SNAME(), QStringLiteral("青禾"));
    EXPECT_EQ(previewTitle(dialog), QStringLiteral("新单位2026年10月员工考勤报表"));
    EXPECT_EQ(clsSchoolArea().SNAME(), QStringLiteral("新单位"));
    child<QLineEdit>(dialog, "txtSchoolName").setText(QStringLiteral("又改"));
    click(dialog, "btnClose");
  }
  EXPECT_EQ(clsSchoolArea().SNAME(), QStringLiteral("又改"));
}

TEST_F(MonthReportDialog, AUnitThatCannotBeStoredIsToldAndTheReportStillShown) {
  frmMonthReport dialog;
  child<QLineEdit>(dialog, "txtSchoolName").setText(QStringLiteral("😀"));
  boxes.expectMessage(QStringLiteral("未能保存"));
  EXPECT_EQ(previewTitle(dialog), QStringLiteral("😀2026年10月员工考勤报表"));
}

TEST_F(MonthReportDialog, AFailingDatabaseIsToldAndNothingIsShownOrWritten) {
  home.execute(QStringLiteral("DROP TABLE Presence"));
  frmMonthReport dialog;
  boxes.expectMessage(QStringLiteral("Presence"));
  EXPECT_EQ(previewTitle(dialog), QString());
  EXPECT_EQ(boxes.messages()[0].style, dialogs::Exclamation);
  boxes.expectFile({workbook});
  boxes.expectMessage(QStringLiteral("Presence"));
  click(dialog, "btnExport");
  EXPECT_FALSE(QFile::exists(workbook));
}
