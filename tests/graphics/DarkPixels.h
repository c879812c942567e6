#pragma once

#include <QImage>
#include <QRect>

/// How many pixels of that part of the image are dark, as those of a text are.
inline int darkPixels(const QImage& image, const QRect& in) {
  int dark = 0;
  for (int y = in.top(); y <= in.bottom(); ++y) {
    for (int x = in.left(); x <= in.right(); ++x) dark += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
  }
  return dark;
}
