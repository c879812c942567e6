#include <gtest/gtest.h>

#include <QFileInfo>
#include <QPageRanges>
#include <QTemporaryDir>

#include "SampleReport.h"
#include "preview/PrintJob.h"
#include "runtime/RuntimeError.h"

namespace {

class PrintJobTest : public ::testing::Test {
 protected:
  PrintJobTest() {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
  }

  QTemporaryDir directory;
  QString file = directory.filePath(QStringLiteral("out.pdf"));
  QPrinter printer{QPrinter::HighResolution};
};

/// How many pages a PDF of Qt's own making has.
qsizetype pagesIn(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll().count("/Type /Page\n");
}

}  // namespace

TEST_F(PrintJobTest, SettingsOfThePrinterChooseThePages) {
  using Pages = std::vector<int>;
  EXPECT_EQ(preview::pagesToPrint(printer, 3, 1), (Pages{0, 1, 2}));
  printer.setPrintRange(QPrinter::CurrentPage);
  EXPECT_EQ(preview::pagesToPrint(printer, 3, 1), (Pages{1}));
  printer.setPrintRange(QPrinter::PageRange);
  printer.setPageRanges(QPageRanges::fromString(QStringLiteral("1-2,5,9-12")));
  EXPECT_EQ(preview::pagesToPrint(printer, 10, 0), (Pages{0, 1, 4, 8, 9}));
  printer.setPageOrder(QPrinter::LastPageFirst);
  EXPECT_EQ(preview::pagesToPrint(printer, 5, 0), (Pages{4, 1, 0}));
  printer.setPageRanges(QPageRanges::fromString(QStringLiteral("7")));
  EXPECT_TRUE(preview::pagesToPrint(printer, 5, 0).empty());
}

TEST_F(PrintJobTest, CopiesThatThePrinterDoesNotMakeAreMadeHere) {
  using Pages = std::vector<int>;
  ASSERT_FALSE(printer.supportsMultipleCopies());
  printer.setCopyCount(2);
  printer.setCollateCopies(true);
  EXPECT_EQ(preview::pagesToPrint(printer, 2, 0), (Pages{0, 1, 0, 1}));
  printer.setCollateCopies(false);
  EXPECT_EQ(preview::pagesToPrint(printer, 2, 0), (Pages{0, 0, 1, 1}));
}

TEST_F(PrintJobTest, PrintsTheChosenPagesAndTellsProgress) {
  std::vector<std::pair<int, int>> told;
  const report::Document document = sampleDocument(5);
  preview::prepare(printer, document);
  const bool printed = preview::printPages(printer, document, {0, 2, 4}, [&told](int done, int total) {
    told.emplace_back(done, total);
    return true;
  });
  EXPECT_TRUE(printed);
  EXPECT_EQ(pagesIn(file), 3);
  EXPECT_EQ(told, (std::vector<std::pair<int, int>>{{0, 3}, {1, 3}, {2, 3}, {3, 3}}));
}

TEST_F(PrintJobTest, JobThatCannotStartNamesItsTarget) {
  const QString nowhere = directory.filePath(QStringLiteral("missing/out.pdf"));
  printer.setOutputFileName(nowhere);
  try {
    std::ignore = preview::printPages(printer, sampleDocument(1), {0}, [](int, int) { return true; });
    FAIL() << "printed to a directory that is not there";
  } catch (const runtime::RuntimeError& error) {
    EXPECT_TRUE(error.description().contains(nowhere));
  }
}
