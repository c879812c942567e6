#include <gtest/gtest.h>

#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "FakeSpooler.h"
#include "SampleReport.h"
#include "preview/DocumentOutput.h"
#include "runtime/OutputGuard.h"
#include "runtime/RuntimeError.h"
#include "support/Files.h"
#include "support/PdfText.h"
#include "support/PrintDialogDriver.h"
#include "support/ScriptedBoxes.h"

using preview::DocumentOutput;

namespace {

class DocumentOutputTest : public ::testing::Test {
 protected:
  /// Prints as the user who sets up the print dialog by `settings`.
  void print(int pages, const support::PrintDialogDriver::Settings& settings = {}) {
    const support::PrintDialogDriver user(settings);
    output = std::make_unique<DocumentOutput>(sampleDocument(pages), &window);
    output->print(0);
    EXPECT_TRUE(user.wasOpen());
  }
  [[nodiscard]] QStringList printedPages() const {
    support::writeFile(file, spooler.received);
    return support::textOfPages(file);
  }

  FakeSpooler spooler;
  support::ScriptedBoxes boxes;
  QTemporaryDir directory;
  QString file = directory.filePath(QStringLiteral("printed.pdf"));
  QWidget window;
  std::unique_ptr<DocumentOutput> output;
};

/// Presses cancel once the job shows its progress.
class CancelSoon : public QTimer {
 public:
  explicit CancelSoon(QWidget& window) {
    callOnTimeout([this, &window] {
      auto* progress = window.findChild<QProgressDialog*>();
      if (progress == nullptr || !progress->isVisible()) return;
      shown = progress->labelText();
      progress->cancel();
      stop();
    });
    start(0);
  }

  QString shown;
};

}  // namespace

TEST_F(DocumentOutputTest, ALongJobShowsItsProgressAndEndsQuietly) {
  print(DocumentOutput::quietPages + 1);
  EXPECT_EQ(printedPages().size(), DocumentOutput::quietPages + 1);
  EXPECT_TRUE(boxes.messages().empty());
}

TEST_F(DocumentOutputTest, ACancelledJobPrintsNothingAndSaysSo) {
  boxes.expectMessage(QStringLiteral("什么也没有打印"));
  const CancelSoon cancel(window);
  print(2000);
  EXPECT_TRUE(cancel.shown.contains(QStringLiteral("2000"))) << cancel.shown.toStdString();
  EXPECT_TRUE(spooler.jobs.empty());
}

TEST_F(DocumentOutputTest, RangeAndCopiesOfTheDialogAreTaken) {
  print(12, [](const preview::PrintDialog& dialog) {
    dialog.findChild<QRadioButton*>(QStringLiteral("optRange"))->setChecked(true);
    dialog.findChild<QLineEdit*>(QStringLiteral("txtRange"))->setText(QStringLiteral("2-3,9"));
    dialog.findChild<QSpinBox*>(QStringLiteral("spnCopies"))->setValue(3);
  });
  EXPECT_EQ(printedPages(), (QStringList{QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("9")}));
  EXPECT_EQ(spooler.jobs.at(0).copies, 3);
}

TEST_F(DocumentOutputTest, ACancelledDialogPrintsNothing) {
  const support::PrintDialogDriver user({}, "btnCancel");
  DocumentOutput(sampleDocument(1), &window).print(0);
  EXPECT_TRUE(user.wasOpen());
  EXPECT_TRUE(spooler.jobs.empty());
}

TEST_F(DocumentOutputTest, AQueueThatRefusesIsTold) {
  spooler.refusal = QStringLiteral("打印机“pr1”现在不接受打印任务。");
  boxes.expectMessage(spooler.refusal);
  print(3);
  EXPECT_EQ(boxes.messages()[0].style, dialogs::Exclamation);
}

TEST_F(DocumentOutputTest, AJobThatFailsAfterItWasTakenIsToldOnce) {
  spooler.reported = {spooler::JobState::Failed, QStringLiteral("被打印服务中止")};
  boxes.expectMessage(QStringLiteral("被打印服务中止"));
  print(1);
  EXPECT_TRUE(boxes.messages().empty()) << "not before the queue has said so";
  EXPECT_TRUE(QTest::qWaitFor([this] { return !boxes.messages().empty(); }));
  EXPECT_TRUE(QTest::qWaitFor([this] { return window.children().isEmpty(); })) << "still watched";
}

TEST_F(DocumentOutputTest, APrinterThatStopsIsToldAndTheJobWatchedOn) {
  spooler.reported = {spooler::JobState::Stopped, QStringLiteral("卡纸")};
  boxes.expectMessage(QStringLiteral("卡纸"));
  print(1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return spooler.asked >= 2; })) << "no longer watched";
  EXPECT_EQ(boxes.messages().size(), 1U);
  spooler.reported = {spooler::JobState::Done, {}};
  EXPECT_TRUE(QTest::qWaitFor([this] { return window.children().isEmpty(); })) << "still watched";
}

TEST_F(DocumentOutputTest, AFileThatMustNotBeOverwrittenIsNot) {
  support::writeFile(file, "kept");
  const runtime::OutputGuard before = runtime::installOutputGuard([](const QString& path) {
    throw runtime::RuntimeError(runtime::ErrorNumber::FileAccess, QStringLiteral("不可覆盖") + path);
  });
  boxes.expectFile({file});
  boxes.expectMessage(QStringLiteral("不可覆盖") + file);
  DocumentOutput(sampleDocument(1), &window).saveAsPdf();
  runtime::installOutputGuard(before);
  EXPECT_EQ(support::contentOf(file), "kept");
}
