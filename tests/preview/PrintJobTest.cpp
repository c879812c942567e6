#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "FakeSpooler.h"
#include "SampleReport.h"
#include "preview/PageRange.h"
#include "preview/PaperFit.h"
#include "preview/PrintJob.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/PdfText.h"
#include "support/Thrown.h"

namespace {

class PrintJobTest : public ::testing::Test {
 protected:
  [[nodiscard]] QString receivedFile() const {
    support::writeFile(file, spooler.received);
    return file;
  }

  FakeSpooler spooler;
  QTemporaryDir directory;
  QString file = directory.filePath(QStringLiteral("received.pdf"));
};

bool goOn(const QString& /*what*/, int /*done*/, int /*total*/) {
  return true;
}

}  // namespace

TEST_F(PrintJobTest, HandsOverTheChosenPagesInTheirOrderAndSize) {
  preview::PrintChoice choice;
  choice.pages = {4, 0, 2};
  choice.job.copies = 3;
  EXPECT_EQ(preview::printPages(sampleDocument(5), choice, goOn), 1);
  EXPECT_EQ(support::textOfPages(receivedFile()),
            (QStringList{QStringLiteral("5"), QStringLiteral("1"), QStringLiteral("3")}));
  EXPECT_EQ(support::firstPageOf(file).paper.toSize(), QSize(595, 842));
  EXPECT_EQ(spooler.jobs.at(0).copies, 3);
}

TEST_F(PrintJobTest, StoppedAtAnyMomentNothingIsHandedOver) {
  preview::PrintChoice choice;
  choice.pages = {0, 1, 2};
  int calls = 0;
  while (true) {
    int left = calls;
    const auto stop = [&left](const QString&, int, int) { return left-- > 0; };
    if (preview::printPages(sampleDocument(3), choice, stop)) break;
    EXPECT_TRUE(spooler.jobs.empty()) << "after " << calls;
    ++calls;
  }
  EXPECT_GE(calls, 5) << "three pages, their end, the hand-over";
}

TEST_F(PrintJobTest, AFullTemporaryFolderSendsNothing) {
  preview::PrintChoice choice;
  choice.pages = {0};
  QString told;
  {
    const support::FullDisk full(1000);
    told = support::thrown([&choice] {
             std::ignore = preview::printPages(sampleDocument(1), choice, goOn);
           }).description();
  }
  EXPECT_TRUE(told.contains(QDir::tempPath())) << told.toStdString();
  EXPECT_TRUE(spooler.jobs.empty());
}

TEST(PageRange, NumbersAndRangesNamePages) {
  using Pages = std::vector<int>;
  const auto pages = [](const char16_t* text) { return preview::pagesOfRange(QString::fromUtf16(text), 10); };
  EXPECT_EQ(pages(u"1-2,5,9-12"), (Pages{0, 1, 4, 8, 9}));
  EXPECT_EQ(pages(u" ３ － ５，２、2 "), (Pages{1, 2, 3, 4}));
  EXPECT_EQ(pages(u"9-"), (Pages{8, 9}));
  EXPECT_EQ(pages(u"-2"), (Pages{0, 1}));
  EXPECT_EQ(pages(u"4-2"), (Pages{1, 2, 3}));
  EXPECT_EQ(pages(u"3至4"), (Pages{2, 3}));
  EXPECT_EQ(pages(u"11,900000000"), Pages{});
  EXPECT_EQ(pages(u"1-999999999").value().size(), 10U);
  for (const auto* bad :
       {u"", u",", u"1,,2", u"-", u"x", u"1-2-3", u"0", u"0-3", u"1.5", u"1 2", u"9999999999"}) {
    EXPECT_FALSE(pages(bad)) << QString::fromUtf16(bad).toStdString();
  }
}

TEST(PaperFit, AsksForThePaperOfThePage) {
  const spooler::Paper letter{QStringLiteral("na_letter_8.5x11in"), {21590, 27940}};
  const spooler::Paper a3{QStringLiteral("iso_a3_297x420mm"), {29700, 42000}};
  const spooler::Paper a5{QStringLiteral("iso_a5_148x210mm"), {14817, 20990}};
  const spooler::Paper turned{QStringLiteral("om_turned_297x210mm"), {29704, 20990}};
  const spooler::Paper tabloid{QStringLiteral("na_ledger_11x17in"), {27940, 43180}};
  const QSize page = preview::paperSizeOf({11906, 16838});
  EXPECT_EQ(preview::sizeText(page), QStringLiteral("210 × 297 毫米"));
  const auto best = [page](const std::vector<spooler::Paper>& papers, const spooler::Paper& usual) {
    spooler::Details queue;
    queue.papers = papers;
    queue.defaultMedia = usual.media;
    return preview::bestPaper(queue, page);
  };
  EXPECT_EQ(best({letter, a3, turned}, letter), 2);
  EXPECT_EQ(best({letter, a3, tabloid}, tabloid), 2);
  EXPECT_EQ(best({letter, a3, tabloid}, letter), 2) << "the smallest that it fits";
  EXPECT_EQ(best({letter, a5}, a5), 1);
  EXPECT_EQ(best({letter, a5}, a3), 0);
  EXPECT_EQ(best({}, a3), -1);
  EXPECT_FALSE(preview::fitsPaper(page, letter.size)) << "wider, but not as high";
  EXPECT_TRUE(preview::isSamePaper(page, turned.size));
  EXPECT_EQ(preview::paperText(letter), QStringLiteral("Letter（216 × 279 毫米）"));
}
