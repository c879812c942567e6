#pragma once

#include <QImage>

#include "report/PagePainter.h"

namespace preview {

/// The part `area` of page `index` as an image, the whole page being `page` pixels large. A page that cannot
/// be painted says why.
[[nodiscard]] QImage pageImage(const report::Document& document, int index, QSize page, const QRect& area,
                               report::PictureSource& pictures);
/// The whole page.
[[nodiscard]] QImage pageImage(const report::Document& document, int index, QSize page,
                               report::PictureSource& pictures);

}  // namespace preview
