#include "preview/PageImage.h"

#include "runtime/RuntimeError.h"

namespace preview {

namespace {

void paintProblem(QPainter& painter, const QRect& area, const QString& description) {
  painter.setPen(Qt::darkRed);
  painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap,
                   QStringLiteral("此页无法显示：\n") + description);
}

}  // namespace

QImage pageImage(const report::Document& document, int index, QSize page, const QRect& area,
                 report::PictureSource& pictures) {
  QImage image(area.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.translate(-area.topLeft());
  const QSizeF paper = document.paperSize();
  painter.save();
  painter.scale(page.width() / paper.width(), page.height() / paper.height());
  QString problem;
  try {
    report::paintPage(painter, document, index, pictures);
  } catch (const runtime::RuntimeError& error) {
    problem = error.description();
  }
  painter.restore();
  if (!problem.isEmpty()) paintProblem(painter, QRect(QPoint(), page), problem);
  return image;
}

QImage pageImage(const report::Document& document, int index, QSize page, report::PictureSource& pictures) {
  return pageImage(document, index, page, QRect(QPoint(), page), pictures);
}

}  // namespace preview
