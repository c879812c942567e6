#include <gtest/gtest.h>

#include <QImageWriter>

#include "PictureBytes.h"
#include "graphics/JpegHeader.h"

using graphics::readJpegHeader;

namespace {

QByteArray progressive() {
  QImage image(40, 30, QImage::Format_RGB32);
  image.fill(Qt::green);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "jpg");
  writer.setProgressiveScanWrite(true);
  EXPECT_TRUE(writer.write(image));
  return bytes;
}

/// A colour JPEG with one byte of its frame segment changed, counted from the segment's marker.
QByteArray withFrameByte(qsizetype at, char value) {
  QByteArray jpeg = pictureBytes("jpg", {40, 30});
  jpeg[jpeg.indexOf("\xFF\xC0") + at] = value;
  return jpeg;
}

}  // namespace

TEST(JpegHeader, ReadsSizeAndColours) {
  const auto color = readJpegHeader(pictureBytes("jpg", {40, 30}));
  ASSERT_TRUE(color);
  EXPECT_EQ(color->size, QSize(40, 30));
  EXPECT_EQ(color->components, 3);
  EXPECT_TRUE(color->common && color->complete);
  EXPECT_EQ(readJpegHeader(pictureBytes("jpg", {40, 30}, Qt::white, true))->components, 1);
}

TEST(JpegHeader, ProgressivePhotosAreCommon) {
  const QByteArray bytes = progressive();
  ASSERT_GT(bytes.indexOf("\xFF\xC2"), 0);
  EXPECT_TRUE(readJpegHeader(bytes)->common);
}

TEST(JpegHeader, PrintColoursDeepColoursAndRareFormsAreNotCommon) {
  EXPECT_FALSE(readJpegHeader(withFrameByte(9, 4))->common);
  EXPECT_FALSE(readJpegHeader(withFrameByte(4, 12))->common);
  EXPECT_FALSE(readJpegHeader(withFrameByte(1, '\xC9'))->common);
  QByteArray rgb = withFrameByte(10, 'R');
  rgb[rgb.indexOf("\xFF\xC0") + 13] = 'G';
  rgb[rgb.indexOf("\xFF\xC0") + 16] = 'B';
  EXPECT_FALSE(readJpegHeader(rgb)->common);
}

TEST(JpegHeader, ADamagedNoteOfTheCameraIsIgnored) {
  const QByteArray jpeg = pictureBytes("jpg", {40, 30});
  const QByteArray noted = withOrientation(jpeg, 6);
  ASSERT_EQ(readJpegHeader(noted)->orientation, 6);
  const qsizetype tags = noted.indexOf("II*");
  for (qsizetype at = tags; at < tags + 26; ++at) {
    QByteArray damaged = noted;
    damaged[at] = '\xFF';
    const auto header = readJpegHeader(damaged);
    ASSERT_TRUE(header) << at;
    EXPECT_TRUE(header->orientation == 1 || header->orientation == 6) << at;
    EXPECT_EQ(header->size, QSize(40, 30));
  }
}
