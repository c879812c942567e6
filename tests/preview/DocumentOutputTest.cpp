#include <gtest/gtest.h>

#include <QFileInfo>
#include <QPageRanges>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTimer>

#include "FakePrinters.h"
#include "SampleReport.h"
#include "preview/DocumentOutput.h"
#include "runtime/OutputGuard.h"
#include "runtime/RuntimeError.h"
#include "support/Files.h"
#include "support/ScriptedBoxes.h"

using preview::DocumentOutput;

namespace {

class DocumentOutputTest : public ::testing::Test {
 protected:
  void print(int pages, const QString& target, const std::function<void(QPrinter&)>& settings = {}) {
    auto printers = std::make_unique<FakePrinters>(target);
    printers->settings = settings;
    DocumentOutput output(sampleDocument(pages), std::move(printers), &window);
    output.print(0);
  }

  [[nodiscard]] qsizetype printedPages() const {
    QFile printed(file);
    return printed.open(QIODevice::ReadOnly) ? printed.readAll().count("/Type /Page\n") : 0;
  }

  support::ScriptedBoxes boxes;
  QTemporaryDir directory;
  QString file = directory.filePath(QStringLiteral("printed.pdf"));
  QWidget window;
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
  print(DocumentOutput::quietSheets + 1, file);
  EXPECT_EQ(printedPages(), DocumentOutput::quietSheets + 1);
  EXPECT_TRUE(boxes.messages().empty());
}

TEST_F(DocumentOutputTest, ALongJobCanBeCancelled) {
  boxes.expectMessage(QStringLiteral("打印已取消"));
  const CancelSoon cancel(window);
  print(2000, file);
  EXPECT_TRUE(cancel.shown.contains(QStringLiteral("2000"))) << cancel.shown.toStdString();
  EXPECT_LT(printedPages(), 2000);
}

TEST_F(DocumentOutputTest, RangeAndCopiesOfTheBoxAreTaken) {
  print(12, file, [](QPrinter& printer) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setPageRanges(QPageRanges::fromString(QStringLiteral("2-4,9")));
    printer.setCopyCount(3);
  });
  EXPECT_EQ(printedPages(), 12);
}

TEST_F(DocumentOutputTest, PaperOfTheBoxIsTaken) {
  print(1, file, [](QPrinter& printer) { printer.setPageSize(QPageSize(QPageSize::A5)); });
  EXPECT_TRUE(support::contentOf(file).contains("/MediaBox [0 0 420"));
}

TEST_F(DocumentOutputTest, AnEmptyRangeIsTold) {
  boxes.expectMessage(QStringLiteral("所选范围内没有页"));
  print(3, file, [](QPrinter& printer) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setPageRanges(QPageRanges::fromString(QStringLiteral("7")));
  });
  EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(DocumentOutputTest, AJobThatFailsIsTold) {
  const QString nowhere = directory.filePath(QStringLiteral("missing/x.pdf"));
  boxes.expectMessage(nowhere);
  print(3, nowhere);
  EXPECT_EQ(boxes.messages()[0].style, dialogs::Exclamation);
}

TEST_F(DocumentOutputTest, AFileThatMustNotBeOverwrittenIsNot) {
  support::writeFile(file, "kept");
  const runtime::OutputGuard before = runtime::installOutputGuard([](const QString& path) {
    throw runtime::RuntimeError(runtime::ErrorNumber::FileAccess, QStringLiteral("不可覆盖") + path);
  });
  boxes.expectFile({file});
  boxes.expectMessage(QStringLiteral("不可覆盖") + file);
  DocumentOutput(sampleDocument(1), std::make_unique<FakePrinters>(file), &window).saveAsPdf();
  runtime::installOutputGuard(before);
  EXPECT_EQ(support::contentOf(file), "kept");
}
