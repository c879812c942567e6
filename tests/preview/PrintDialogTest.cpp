#include <gtest/gtest.h>

#include <QTest>

#include "FakeSpooler.h"
#include "SampleReport.h"
#include "preview/PrintDialog.h"
#include "support/ScriptedBoxes.h"

namespace {

class PrintDialogTest : public ::testing::Test {
 protected:
  void open(int pages = 12, int currentPage = 0) {
    dialog =
        std::make_unique<preview::PrintDialog>(spooler.printers, sampleDocument(pages), currentPage, nullptr);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  template <typename Control>
  Control* find(const char* name) const {
    auto* control = dialog->findChild<Control*>(QLatin1String(name));
    EXPECT_NE(control, nullptr) << name;
    return control;
  }
  QString textOf(const char* label) const { return find<QLabel>(label)->text(); }
  /// Types over what stands in the box of the range.
  void typeRange(const QString& text) const {
    find<QLineEdit>("txtRange")->selectAll();
    QTest::keyClicks(find<QLineEdit>("txtRange"), text);
  }
  void press(Qt::Key key) const { QTest::keyClick(dialog.get(), key); }

  FakeSpooler spooler;
  support::ScriptedBoxes boxes;
  std::unique_ptr<preview::PrintDialog> dialog;
};

}  // namespace

TEST_F(PrintDialogTest, OpensOnTheDefaultPrinterWithThePaperOfThePage) {
  spooler.printers = {{QStringLiteral("a"), {}, false}, {QStringLiteral("b"), QStringLiteral("二楼"), true}};
  open();
  EXPECT_EQ(find<QComboBox>("cmbPrinter")->currentText(), QStringLiteral("b（二楼）"));
  EXPECT_EQ(textOf("lblState"), QStringLiteral("就绪"));
  EXPECT_EQ(textOf("lblPaper"), QString());
  press(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  const preview::PrintChoice choice = dialog->choice();
  EXPECT_EQ(choice.job.queue, QStringLiteral("b"));
  EXPECT_EQ(choice.job.title, QStringLiteral("样本: 页/数"));
  EXPECT_EQ(choice.job.media, QStringLiteral("iso_a4_210x297mm"));
  EXPECT_EQ(choice.job.copies, 1);
  EXPECT_FALSE(choice.job.color);
  EXPECT_EQ(choice.pages.size(), 12U);
}

TEST_F(PrintDialogTest, TheRangeStartsAsAllPagesAndTypingChoosesIt) {
  open();
  EXPECT_EQ(find<QLineEdit>("txtRange")->text(), QStringLiteral("1-12"));
  typeRange(QStringLiteral("2-4,9"));
  EXPECT_TRUE(find<QRadioButton>("optRange")->isChecked());
  find<QCheckBox>("chkReverse")->click();
  press(Qt::Key_Return);
  EXPECT_EQ(dialog->choice().pages, (std::vector<int>{8, 3, 2, 1}));
}

TEST_F(PrintDialogTest, TheCurrentPageIsTheOneThatIsSeen) {
  open(12, 6);
  find<QRadioButton>("optCurrent")->click();
  press(Qt::Key_Return);
  EXPECT_EQ(dialog->choice().pages, std::vector<int>{6});
}

TEST_F(PrintDialogTest, ARangeWithoutPagesIsToldAndCanBeCorrected) {
  open();
  typeRange(QStringLiteral("13-20"));
  boxes.expectMessage(QStringLiteral("所选范围内没有页"));
  press(Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible());
  find<QLineEdit>("txtRange")->setText(QStringLiteral("一"));
  boxes.expectMessage(QStringLiteral("看不懂页码"));
  press(Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(find<QLineEdit>("txtRange")->selectedText(), QStringLiteral("一"));
}

TEST_F(PrintDialogTest, APageThatIsCutIsAskedAboutBefore) {
  spooler.known.papers.erase(spooler.known.papers.begin());
  open();
  EXPECT_TRUE(textOf("lblPaper").contains(QStringLiteral("超出的部分印不出来")));
  boxes.expectMessage(QStringLiteral("A5（148 × 210 毫米）"), dialogs::Answer::No);
  press(Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible());
  boxes.expectMessage(QStringLiteral("仍要打印吗"), dialogs::Answer::Yes);
  press(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->choice().job.media, QStringLiteral("iso_a5_148x210mm"));
}

TEST_F(PrintDialogTest, APrinterThatDoesNotSayItsPapersIsLeftToItsOwn) {
  spooler.known.papers.clear();
  open();
  EXPECT_TRUE(textOf("lblPaper").contains(QStringLiteral("210 × 297 毫米")));
  press(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->choice().job.media, QString());
}

TEST_F(PrintDialogTest, StateOfThePrinterIsShownAndAStoppedOneAskedAbout) {
  spooler.known.stopped = true;
  spooler.known.accepting = false;
  spooler.known.complaint = QStringLiteral("缺纸");
  open();
  EXPECT_EQ(textOf("lblState"), QStringLiteral("不接受打印任务，已停止，缺纸"));
  boxes.expectMessage(QStringLiteral("已停止"), dialogs::Answer::Yes);
  press(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_TRUE(dialog->printerStopped());
}

TEST_F(PrintDialogTest, OnlyWhatThePrinterCanDoIsOffered) {
  spooler.printers.push_back({QStringLiteral("pr2"), {}, false});
  open();
  for (const auto* name : {"cmbSides", "cmbColor"}) EXPECT_FALSE(find<QComboBox>(name)->isEnabled()) << name;
  EXPECT_FALSE(find<QCheckBox>("chkCollate")->isEnabled());
  spooler.known.twoSided = true;
  spooler.known.sides = spooler::Sides::LongEdge;
  spooler.known.choosesColor = true;
  spooler.known.color = false;
  find<QComboBox>("cmbPrinter")->setCurrentIndex(1);
  find<QSpinBox>("spnCopies")->setValue(1000);
  find<QCheckBox>("chkCollate")->click();
  press(Qt::Key_Return);
  const spooler::Job job = dialog->choice().job;
  EXPECT_EQ(job.queue, QStringLiteral("pr2"));
  EXPECT_EQ(job.copies, 99);
  EXPECT_FALSE(job.collated);
  EXPECT_EQ(job.sides, spooler::Sides::LongEdge);
  EXPECT_EQ(job.color, false);
}

TEST_F(PrintDialogTest, APrinterThatIsGoneCannotBeUsedButAnotherCan) {
  spooler.printers.push_back({QStringLiteral("pr2"), {}, false});
  spooler.gone = QStringLiteral("pr1");
  open();
  EXPECT_EQ(textOf("lblState"), QStringLiteral("已经不存在"));
  EXPECT_FALSE(find<QPushButton>("btnPrint")->isEnabled());
  find<QComboBox>("cmbPrinter")->setCurrentIndex(1);
  EXPECT_TRUE(find<QPushButton>("btnPrint")->isEnabled());
}
