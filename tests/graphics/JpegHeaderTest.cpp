#include <gtest/gtest.h>

#include "PictureBytes.h"
#include "graphics/JpegHeader.h"

using graphics::readJpegHeader;

namespace {

/// A colour JPEG with one byte of its frame segment changed, counted from the segment's marker.
QByteArray withFrameByte(qsizetype at, char value) {
  QByteArray jpeg = pictureBytes("jpg", {40, 30});
  jpeg[jpeg.indexOf("\xFF\xC0") + at] = value;
  return jpeg;
}

}  // namespace

TEST(JpegHeader, PrintColoursDeepColoursAndRareFormsAreNotCommon) {
  EXPECT_TRUE(readJpegHeader(withFrameByte(1, '\xC2'))->common) << "built up progressively";
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
