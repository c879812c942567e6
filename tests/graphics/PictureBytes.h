#pragma once

#include <QBuffer>
#include <QColor>
#include <QImage>

/// A picture of one colour with a dark left half, in the file format named.
inline QByteArray pictureBytes(const char* format, QSize size, QColor color = Qt::red, bool gray = false) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(color);
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width() / 2; ++x) image.setPixelColor(x, y, color.darker(400));
  }
  if (gray) image = image.convertToFormat(QImage::Format_Grayscale8);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return bytes;
}

/// `jpeg` with a camera's note that the picture is to be turned by `orientation`.
inline QByteArray withOrientation(const QByteArray& jpeg, char orientation, bool littleEndian = true) {
  QByteArray tags = littleEndian ? QByteArray("II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0", 18)
                                 : QByteArray("MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01", 18);
  tags += littleEndian ? QByteArray(1, orientation) + QByteArray(7, '\0')
                       : QByteArray(1, '\0') + QByteArray(1, orientation) + QByteArray(6, '\0');
  const QByteArray segment = QByteArray("Exif\0\0", 6) + tags;
  const auto length = static_cast<char>(segment.size() + 2);
  return jpeg.left(2) + QByteArray("\xFF\xE1\0", 3) + QByteArray(1, length) + segment + jpeg.mid(2);
}

/// A red square of 8 by 8 pixels in print colours, as image editors store it.
inline QByteArray printColorJpeg() {
  return QByteArray::fromHex(
      "ffd8ffee000e41646f626500640000000000ffdb0043000302020302020303030304030304050805050404050a070706"
      "080c0a0c0c0b0a0b0b0d0e12100d0e110e0b0b1016101113141515150c0f171816141812141514ffc000140800080008"
      "044311004d11005911004b1100ffc40014000100000000000000000000000000000009ffc40014100100000000000000"
      "000000000000000000ffda000e0443004d0059004b00003f0054c550aa2a6fffd9");
}
