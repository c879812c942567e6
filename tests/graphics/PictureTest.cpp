#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "PictureBytes.h"
#include "graphics/Picture.h"
#include "graphics/StoredColor.h"
#include "runtime/RuntimeError.h"
#include "support/Files.h"

using graphics::Picture;
using runtime::ErrorNumber;
using runtime::RuntimeError;

namespace {

int errorOf(const QByteArray& bytes) {
  try {
    const Picture picture(bytes, QStringLiteral("x.jpg"));
    return 0;
  } catch (const RuntimeError& error) {
    EXPECT_TRUE(error.description().contains(QStringLiteral("x.jpg")));
    return error.number();
  }
}

constexpr int invalidPicture = static_cast<int>(ErrorNumber::InvalidPicture);

/// Where the frame segment of a JPEG file begins.
qsizetype frameOf(const QByteArray& jpeg) {
  return jpeg.indexOf("\xFF\xC0");
}

}  // namespace

TEST(Picture, EveryAcceptedFormatIsReadWhateverItsEnding) {
  QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("photo.dib"));
  for (const char* format : {"bmp", "jpg", "png", "ico"}) {
    support::writeFile(path, pictureBytes(format, {40, 30}));
    const graphics::PicturePointer picture = graphics::LoadPicture(path);
    EXPECT_EQ(picture->size(), QSize(40, 30)) << format;
    EXPECT_EQ(picture->decode().size(), QSize(40, 30)) << format;
  }
}

TEST(Picture, BytesThatAreNoPictureAreRefusedByName) {
  EXPECT_EQ(errorOf(QByteArray()), invalidPicture);
  EXPECT_EQ(errorOf("this is a text, not a picture"), invalidPicture);
  EXPECT_EQ(errorOf("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"), invalidPicture);
  EXPECT_EQ(errorOf(QByteArray("\xD7\xCD\xC6\x9A\0\0\0\0", 8)), invalidPicture);
  EXPECT_EQ(errorOf(QByteArray("\xFF\xD8\xFF")), invalidPicture);
}

TEST(Picture, AHeadCutAnywhereIsRefused) {
  const QByteArray jpeg = withOrientation(pictureBytes("jpg", {40, 30}), 6);
  const qsizetype data = jpeg.indexOf("\xFF\xDA");
  for (qsizetype length = 0; length <= data; ++length) {
    EXPECT_EQ(errorOf(jpeg.left(length)), invalidPicture) << length;
  }
  EXPECT_EQ(errorOf(jpeg), 0);
}

TEST(Picture, UnreasonableSidesAreRefusedBeforeDecoding) {
  for (const char* sides : {"\xFF\xFF\xFF\xFF", "\0\0\0\x10", "\0\x10\0\0"}) {
    QByteArray jpeg = pictureBytes("jpg", {40, 30});
    jpeg.replace(frameOf(jpeg) + 5, 4, QByteArray(sides, 4));
    EXPECT_EQ(errorOf(jpeg), invalidPicture);
  }
  QByteArray png = pictureBytes("png", {40, 30});
  png.replace(16, 4, QByteArray("\x7F\xFF\xFF\xFF", 4));
  EXPECT_EQ(errorOf(png), invalidPicture);
}

TEST(Picture, APhotoTakenOnItsSideIsTurned) {
  const QByteArray upright = pictureBytes("jpg", {40, 30});
  for (const bool littleEndian : {true, false}) {
    const Picture turned(withOrientation(upright, 6, littleEndian), QStringLiteral("x"));
    EXPECT_EQ(turned.size(), QSize(30, 40));
    const QImage image = turned.decode();
    ASSERT_EQ(image.size(), QSize(30, 40));
    // The dark left half has come to the top.
    EXPECT_LT(qRed(image.pixel(15, 5)), 100);
    EXPECT_GT(qRed(image.pixel(15, 35)), 200);
  }
  EXPECT_EQ(Picture(withOrientation(upright, 9), QStringLiteral("x")).jpeg()->orientation, 1);
}

TEST(Picture, DecodingForASmallPlaceScalesDownButNotBelowIt) {
  for (const char* format : {"jpg", "png"}) {
    const Picture picture(pictureBytes(format, {800, 600}), QStringLiteral("x"));
    EXPECT_EQ(picture.decode({100, 75}).size(), QSize(100, 75)) << format;
    EXPECT_EQ(picture.decode({200, 75}).size(), QSize(200, 150)) << format;
    EXPECT_EQ(picture.decode({5000, 5000}).size(), QSize(800, 600)) << format;
  }
  const Picture turned(withOrientation(pictureBytes("jpg", {800, 600}), 8), QStringLiteral("x"));
  EXPECT_EQ(turned.decode({75, 100}).size(), QSize(75, 100));
}

TEST(StoredColor, RedIsTheLowByte) {
  EXPECT_EQ(graphics::fromStoredColor(0x0000FF), QColor(Qt::red));
  EXPECT_EQ(graphics::fromStoredColor(-1), QColor(Qt::white));
  EXPECT_EQ(graphics::toStoredColor(QColor(1, 2, 3)), 0x030201);
}
