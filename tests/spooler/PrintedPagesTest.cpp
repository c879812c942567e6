#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProgressDialog>
#include <QTest>

#include "CupsServer.h"
#include "preview/DocumentOutput.h"
#include "preview/SampleReport.h"
#include "report/Pdf.h"
#include "spooler/CupsHost.h"
#include "support/PdfText.h"
#include "support/PrintDialogDriver.h"
#include "support/ScriptedBoxes.h"

namespace {

const QString queue = QStringLiteral("office");

/// What a user gets on paper who prints from the preview on a queue of a print service.
class PrintedPagesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!CupsServer::isInstalled()) GTEST_SKIP() << "cups is not installed";
    server.emplace();
    host.emplace(server->socket());
    spooler::installHost(&*host);
  }
  void TearDown() override { spooler::installHost(nullptr); }

  void print(int pages, const support::PrintDialogDriver::Settings& settings = {}) {
    const support::PrintDialogDriver user(settings);
    preview::DocumentOutput(sampleDocument(pages), &window).print(0);
    EXPECT_TRUE(user.wasOpen());
    dialogStayed = user.stayed();
  }
  /// What the first page would be on a perfect printer.
  support::FirstPage expected() const {
    const QString file = directory.filePath(QStringLiteral("expected.pdf"));
    report::writePdf(sampleDocument(1), file);
    return support::firstPageOf(file);
  }
  [[nodiscard]] bool hasPrinted() const { return QFileInfo::exists(server->printed(queue)); }

  std::optional<CupsServer> server;
  std::optional<spooler::CupsHost> host;
  support::ScriptedBoxes boxes;
  QTemporaryDir directory;
  QWidget window;
  bool dialogStayed = false;
};

constexpr double rounding = 0.1;

}  // namespace

TEST_F(PrintedPagesTest, ThePagesPaperAndSizeAreKeptOnAQueueThatPrefersOthers) {
  server->addQueue(queue, {QStringLiteral("Letter"), QStringLiteral("A5"), QStringLiteral("A4")});
  server->run(QStringLiteral("lpadmin"), {QStringLiteral("-p"), queue, QStringLiteral("-o"),
                                          QStringLiteral("print-scaling-default=fit")});
  print(2);
  ASSERT_TRUE(server->isDone(queue));
  const support::FirstPage page = support::firstPageOf(server->printed(queue));
  EXPECT_EQ(page.paper.toSize(), QSize(595, 842));
  EXPECT_NEAR(page.word.width(), expected().word.width(), rounding);
  EXPECT_NEAR(page.word.height(), expected().word.height(), rounding);
}

TEST_F(PrintedPagesTest, PaperThatIsTooSmallIsAskedAboutAndNothingShrinks) {
  server->addQueue(queue, {QStringLiteral("A5")});
  boxes.expectMessage(QStringLiteral("超出的部分印不出来"), dialogs::Answer::No);
  print(1);
  EXPECT_TRUE(dialogStayed);
  EXPECT_FALSE(hasPrinted());
  boxes.expectMessage(QStringLiteral("超出的部分印不出来"), dialogs::Answer::Yes);
  print(1);
  ASSERT_TRUE(server->isDone(queue));
  const support::FirstPage page = support::firstPageOf(server->printed(queue));
  EXPECT_EQ(page.paper.toSize(), QSize(420, 595));
  EXPECT_NEAR(page.word.height(), expected().word.height(), rounding);
}

TEST_F(PrintedPagesTest, RangeOrderAndCopiesComeOut) {
  server->addQueue(queue, {QStringLiteral("A4")});
  print(12, [](const preview::PrintDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("txtRange")), QStringLiteral(",2"));
    dialog.findChild<QLineEdit*>(QStringLiteral("txtRange"))->setText(QStringLiteral("3-4,12"));
    dialog.findChild<QCheckBox*>(QStringLiteral("chkReverse"))->setChecked(true);
    dialog.findChild<QSpinBox*>(QStringLiteral("spnCopies"))->setValue(2);
  });
  ASSERT_TRUE(server->isDone(queue));
  const QStringList once{QStringLiteral("12"), QStringLiteral("4"), QStringLiteral("3")};
  EXPECT_EQ(support::textOfPages(server->printed(queue)), once + once);
}

TEST_F(PrintedPagesTest, ACancelledJobLeavesTheQueueEmpty) {
  server->addQueue(queue, {QStringLiteral("A4")});
  QTimer cancel;
  cancel.callOnTimeout([this] {
    auto* progress = window.findChild<QProgressDialog*>();
    if (progress != nullptr && progress->value() > 100) progress->cancel();
  });
  cancel.start(0);
  boxes.expectMessage(QStringLiteral("什么也没有打印"));
  print(1000);
  EXPECT_TRUE(server->isDone(queue));
  EXPECT_FALSE(hasPrinted());
}

TEST_F(PrintedPagesTest, WhatHappensWhileTheDialogIsOpenIsTold) {
  server->addQueue(queue, {QStringLiteral("A4")});
  boxes.expectMessage(QStringLiteral("现在不接受打印任务"));
  print(1, [this](const preview::PrintDialog&) { server->run(QStringLiteral("cupsreject"), {queue}); });
  boxes.expectMessage(QStringLiteral("已经不存在"));
  print(1, [this](const preview::PrintDialog&) {
    server->run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), queue});
  });
  server->addQueue(queue, {QStringLiteral("A4")});
  boxes.expectMessage(QStringLiteral("连接不上打印服务"));
  print(1, [this](const preview::PrintDialog&) { server->kill(); });
  EXPECT_FALSE(hasPrinted());
  for (const dialogs::MessageBox& box : boxes.messages())
    EXPECT_TRUE(box.text.startsWith(QStringLiteral("打印失败：")));
}

TEST_F(PrintedPagesTest, APrinterThatStandsStillIsToldBeforeAndAfter) {
  server->addQueue(queue, {QStringLiteral("A4")});
  print(1, [this](const preview::PrintDialog&) { server->run(QStringLiteral("cupsdisable"), {queue}); });
  boxes.expectMessage(QStringLiteral("停下了"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !boxes.messages().empty(); }, 10'000));
  boxes.expectMessage(QStringLiteral("已停止，恢复后才会打印"), dialogs::Answer::No);
  print(1);
  EXPECT_TRUE(dialogStayed);
  server->run(QStringLiteral("cupsenable"), {queue});
  EXPECT_TRUE(server->isDone(queue));
  EXPECT_TRUE(hasPrinted());
}
