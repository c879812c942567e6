#include <QFileInfo>

#include "FakeSpooler.h"
#include "PreviewWindowFixture.h"
#include "SampleReport.h"
#include "support/Files.h"
#include "support/PdfText.h"
#include "support/PrintDialogDriver.h"

TEST_F(PreviewWindowTest, OpensOnTheFirstPageWithWhatCanBeDoneThere) {
  open(sampleDocument(12));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("样本: 页/数"));
  EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_EQ(pageBox->text(), QStringLiteral("1 / 12"));
  EXPECT_EQ(zoomBox->currentText(), QStringLiteral("页宽"));
  EXPECT_EQ(enabledPlaces(), (QList<int>{0, 2, 4, 6, 8, 9, 11, 12, 13, 16, 17, 21}));
  use(PreviewToolbar::Next);
  EXPECT_EQ(enabledPlaces(), (QList<int>{0, 2, 4, 6, 8, 9, 11, 12, 13, 15, 16, 17, 19, 21}));
}

TEST_F(PreviewWindowTest, NothingCanBeDoneWithoutPages) {
  open(report::Document());
  EXPECT_TRUE(enabledPlaces().isEmpty());
  EXPECT_EQ(pageBox->text(), QStringLiteral("0 / 0"));
  press(Qt::Key_End, Qt::ControlModifier);
  press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(PreviewWindowTest, KeysTurnThePages) {
  open(sampleDocument(4));
  press(Qt::Key_PageDown);
  press(Qt::Key_PageDown);
  EXPECT_EQ(pageBox->text(), QStringLiteral("3 / 4"));
  press(Qt::Key_PageUp);
  EXPECT_EQ(view->currentPage(), 1);
  press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(view->currentPage(), 3);
  EXPECT_FALSE(toolbar->tool(PreviewToolbar::Next)->isEnabled());
  press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(view->currentPage(), 0);
  press(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(PreviewWindowTest, PageBoxGoesToThePageAndForgetsNonsense) {
  open(sampleDocument(12));
  const auto enter = [this](const QString& text) {
    pageBox->setText(text);
    QTest::keyClick(pageBox, Qt::Key_Return);
  };
  enter(QStringLiteral("5"));
  EXPECT_EQ(view->currentPage(), 4);
  EXPECT_EQ(pageBox->text(), QStringLiteral("5 / 12"));
  enter(QStringLiteral("第一页"));
  EXPECT_EQ(pageBox->text(), QStringLiteral("5 / 12"));
  enter(QStringLiteral("100"));
  EXPECT_EQ(pageBox->text(), QStringLiteral("12 / 12"));
  EXPECT_TRUE(window->isVisible());
}

TEST_F(PreviewWindowTest, PdfIsStoredWhereTheUserSays) {
  open(sampleDocument(2));
  const QString file = directory.filePath(QStringLiteral("卡.pdf"));
  boxes.expectFile({file});
  boxes.expectMessage(file);
  use(PreviewToolbar::SavePdf);
  EXPECT_TRUE(QFileInfo(file).size() > 0);
  ASSERT_EQ(boxes.files().size(), 1u);
  EXPECT_TRUE(boxes.files()[0].save);
  EXPECT_EQ(boxes.files()[0].filter, QStringLiteral("PDF文件|*.pdf"));
  EXPECT_EQ(boxes.files()[0].fileName, QStringLiteral("样本_ 页_数.pdf"));
  EXPECT_EQ(boxes.messages()[0].style, dialogs::Information);
  boxes.expectFile({});
  use(PreviewToolbar::SavePdf);
}

TEST_F(PreviewWindowTest, PdfThatCannotBeWrittenIsTold) {
  open(sampleDocument(1));
  boxes.expectFile({directory.filePath(QStringLiteral("missing/x.pdf"))});
  boxes.expectMessage(QStringLiteral("x.pdf"));
  use(PreviewToolbar::SavePdf);
  EXPECT_EQ(boxes.messages()[0].style, dialogs::Exclamation);
  EXPECT_EQ(boxes.messages()[0].title, QStringLiteral("错误"));
}

TEST_F(PreviewWindowTest, WithoutAPrinterPrintingOffersAPdf) {
  open(sampleDocument(1));
  const QString file = directory.filePath(QStringLiteral("x.pdf"));
  boxes.expectMessage(QStringLiteral("没有可用的打印机"), dialogs::Answer::No);
  press(Qt::Key_P, Qt::ControlModifier);
  EXPECT_FALSE(QFileInfo::exists(file));
  boxes.expectMessage(QStringLiteral("没有可用的打印机"), dialogs::Answer::Yes);
  boxes.expectFile({file});
  boxes.expectMessage(file);
  use(PreviewToolbar::Print);
  EXPECT_TRUE(QFileInfo::exists(file));
}

TEST_F(PreviewWindowTest, PrintingKnowsThePageThatIsSeen) {
  FakeSpooler spooler;
  open(sampleDocument(4));
  press(Qt::Key_End, Qt::ControlModifier);
  const support::PrintDialogDriver user([](const preview::PrintDialog& dialog) {
    dialog.findChild<QRadioButton*>(QStringLiteral("optCurrent"))->setChecked(true);
  });
  press(Qt::Key_P, Qt::ControlModifier);
  const QString file = directory.filePath(QStringLiteral("x.pdf"));
  support::writeFile(file, spooler.received);
  EXPECT_EQ(support::textOfPages(file), QStringList{QStringLiteral("4")});
}
