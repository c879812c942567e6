#include "report/Pdf.h"

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

/// Draws all pages; `asTheyAre` keeps drawn pictures without the losses of a second compression.
void drawPages(const Document& document, PictureSource& pictures, bool asTheyAre, QIODevice& target) {
  if (document.pageCount() == 0) fail(QStringLiteral("报表没有页面"));
  QPdfWriter writer(&target);
  setUp(writer, document);
  QPainter painter;
  if (!painter.begin(&writer)) fail(QStringLiteral("不能开始绘制"));
  painter.setRenderHint(QPainter::LosslessImageRendering, asTheyAre);
  for (int page = 0; page < document.pageCount(); ++page) {
    if (page > 0 && !writer.newPage()) fail(QStringLiteral("不能开始第 %1 页").arg(page + 1));
    paintPage(painter, document, page, pictures);
  }
  if (!painter.end()) fail(QStringLiteral("不能结束绘制"));
}

QByteArray drawnPdf(const Document& document, PictureSource& pictures, bool asTheyAre) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  drawPages(document, pictures, asTheyAre, buffer);
  return buffer.data();
}

void makePdf(const Document& document, PhotoEncoding photos, QIODevice& target) {
  if (photos == PhotoEncoding::OwnBytes) {
    PlaceholderSource placeholders;
    if (replacePlaceholders(drawnPdf(document, placeholders, true), placeholders.photos(), target)) return;
  }
  DecodingPictureSource pictures;
  const QByteArray pdf = drawnPdf(document, pictures, false);
  if (target.write(pdf) != pdf.size()) fail(runtime::systemWords(target.errorString()));
}

}  // namespace

QByteArray toPdf(const Document& document, PhotoEncoding photos) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  makePdf(document, photos, buffer);
  return buffer.data();
}

void writePdf(const Document& document, const QString& path, PhotoEncoding photos) {
  runtime::ReplacingFile file(path);
  makePdf(document, photos, file.device());
  file.commit();
}

}  // namespace report
