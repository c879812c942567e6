#include "preview/PrintJob.h"

#include <algorithm>

#include <QPageLayout>
#include <QPageRanges>
#include <QPageSize>
#include <QPainter>
#include <QScopeGuard>

#include "graphics/Twips.h"
#include "report/PagePainter.h"
#include "runtime/RuntimeError.h"

namespace preview {

namespace {

[[noreturn]] void fail(const QString& what, const QPrinter& printer) {
  const QString target =
      printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName();
  throw runtime::RuntimeError(runtime::ErrorNumber::FileIo,
                              target.isEmpty() ? what : what + QStringLiteral("：") + target);
}

std::vector<int> chosenPages(const QPrinter& printer, int pageCount, int currentPage) {
  if (printer.printRange() == QPrinter::CurrentPage) return {currentPage};
  const QPageRanges ranges = printer.pageRanges();
  const bool all = printer.printRange() != QPrinter::PageRange || ranges.isEmpty();
  std::vector<int> pages;
  for (int page = 0; page < pageCount; ++page) {
    if (all || ranges.contains(page + 1)) pages.push_back(page);
  }
  return pages;
}

std::vector<int> repeated(const std::vector<int>& pages, int copies, bool collated) {
  std::vector<int> sheets;
  sheets.reserve(pages.size() * copies);
  if (collated) {
    for (int copy = 0; copy < copies; ++copy) sheets.insert(sheets.end(), pages.begin(), pages.end());
  } else {
    for (const int page : pages) sheets.insert(sheets.end(), copies, page);
  }
  return sheets;
}

// The painter's unit becomes one twip of the document.
void fitToPaper(QPainter& painter, const QPrinter& printer, QSize twips) {
  const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
  const double trueSize = static_cast<double>(printer.resolution()) / graphics::twipsPerInch;
  // Printers round their paper by a pixel or two; that is no reason to shrink.
  const double slack = printer.resolution() / 50.0;
  const double scale = std::min(
      {trueSize, (paper.width() + slack) / twips.width(), (paper.height() + slack) / twips.height()});
  painter.scale(scale, scale);
}

}  // namespace

void prepare(QPrinter& printer, const report::Document& document) {
  const QSizeF points = QSizeF(document.paperSize()) / graphics::twipsPerPoint;
  const bool wide = points.width() > points.height();
  printer.setDocName(document.title());
  printer.setFullPage(true);
  printer.setPageSize(
      QPageSize(wide ? points.transposed() : points, QPageSize::Point, {}, QPageSize::FuzzyMatch));
  printer.setPageOrientation(wide ? QPageLayout::Landscape : QPageLayout::Portrait);
}

std::vector<int> pagesToPrint(const QPrinter& printer, int pageCount, int currentPage) {
  std::vector<int> pages = chosenPages(printer, pageCount, currentPage);
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(pages.begin(), pages.end());
  const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
  return repeated(pages, copies, printer.collateCopies());
}

bool printPages(QPrinter& printer, const report::Document& document, const std::vector<int>& pages,
                const PrintProgress& progress) {
  QPainter painter;
  // A printer that is gone still calls itself idle: only begin() tells.
  if (!painter.begin(&printer)) fail(QStringLiteral("无法开始打印"), printer);
  // Half a job is worth nothing: whatever stops it, what has not been printed yet is dropped.
  auto abandon = qScopeGuard([&printer] { printer.abort(); });
  report::DecodingPictureSource pictures;
  const int total = static_cast<int>(pages.size());
  for (int done = 0; done < total; ++done) {
    if (!progress(done, total)) return false;
    if (done > 0 && !printer.newPage()) fail(QStringLiteral("打印中断"), printer);
    painter.save();
    fitToPaper(painter, printer, document.paperSize());
    report::paintPage(painter, document, pages[done], pictures);
    painter.restore();
  }
  const bool ended = painter.end();
  if (!ended || printer.printerState() == QPrinter::Error) fail(QStringLiteral("打印中断"), printer);
  abandon.dismiss();
  progress(total, total);
  return true;
}

}  // namespace preview
