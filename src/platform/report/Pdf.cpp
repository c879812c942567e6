#include "report/Pdf.h"

#include <numeric>
#include <optional>

#include <QBuffer>
#include <QCoreApplication>
#include <QPageSize>
#include <QPdfWriter>

#include "graphics/Twips.h"
#include "report/PagePainter.h"
#include "report/PhotoStreams.h"
#include "report/PlaceholderSource.h"
#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace report {
namespace {

[[noreturn]] void fail(const QString& reason) {
  throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall,
                              QStringLiteral("无法生成 PDF：%1").arg(reason));
}

void setUp(QPdfWriter& writer, const Document& document) {
  const QSizeF points = QSizeF(document.paperSize()) / graphics::twipsPerPoint;
  writer.setResolution(graphics::twipsPerInch);
  writer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
  writer.setPageMargins({});
  writer.setTitle(document.title());
  writer.setCreator(QCoreApplication::applicationName());
}

/// What a PDF is made of.
struct Content {
  const Document& document;
  std::vector<int> pages;
  PageProgress progress;
};

Content wholeOf(const Document& document) {
  std::vector<int> pages(document.pageCount());
  std::iota(pages.begin(), pages.end(), 0);
  return {document, std::move(pages), [](int, int) { return true; }};
}

/// Draws the pages; false when it was stopped. `asTheyAre` keeps drawn pictures without the losses of a
/// second compression.
bool drawPages(const Content& content, PictureSource& pictures, bool asTheyAre, QIODevice& target) {
  if (content.pages.empty()) fail(QStringLiteral("报表没有页面"));
  QPdfWriter writer(&target);
  setUp(writer, content.document);
  QPainter painter;
  if (!painter.begin(&writer)) fail(QStringLiteral("不能开始绘制"));
  painter.setRenderHint(QPainter::LosslessImageRendering, asTheyAre);
  const int total = static_cast<int>(content.pages.size());
  for (int done = 0; done < total; ++done) {
    if (!content.progress(done, total)) return false;
    if (done > 0 && !writer.newPage()) fail(QStringLiteral("不能开始第 %1 页").arg(done + 1));
    paintPage(painter, content.document, content.pages[done], pictures);
  }
  if (!painter.end()) fail(QStringLiteral("不能结束绘制"));
  return content.progress(total, total);
}

/// Nothing when it was stopped.
std::optional<QByteArray> drawnPdf(const Content& content, PictureSource& pictures, bool asTheyAre) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!drawPages(content, pictures, asTheyAre, buffer)) return std::nullopt;
  return buffer.data();
}

/// Whether it was all made.
bool makePdf(const Content& content, PhotoEncoding photos, QIODevice& target) {
  if (photos == PhotoEncoding::OwnBytes) {
    PlaceholderSource placeholders;
    const std::optional<QByteArray> drawn = drawnPdf(content, placeholders, true);
    if (!drawn) return false;
    if (replacePlaceholders(*drawn, placeholders.photos(), target)) return true;
  }
  DecodingPictureSource pictures;
  const std::optional<QByteArray> pdf = drawnPdf(content, pictures, false);
  if (!pdf) return false;
  if (target.write(*pdf) != pdf->size()) fail(runtime::systemWords(target.errorString()));
  return true;
}

}  // namespace

QByteArray toPdf(const Document& document, PhotoEncoding photos) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  std::ignore = makePdf(wholeOf(document), photos, buffer);
  return buffer.data();
}

void writePdf(const Document& document, const QString& path, PhotoEncoding photos) {
  runtime::ReplacingFile file(path);
  std::ignore = makePdf(wholeOf(document), photos, file.device());
  file.commit();
}

bool writePages(const Document& document, const std::vector<int>& pages, QIODevice& target,
                const PageProgress& progress) {
  return makePdf({document, pages, progress}, PhotoEncoding::OwnBytes, target);
}

}  // namespace report
