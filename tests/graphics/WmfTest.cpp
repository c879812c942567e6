#include <gtest/gtest.h>
#include <random>

#include "DarkPixels.h"
#include "PictureBytes.h"
#include "WmfBytes.h"
#include "graphics/Picture.h"
#include "runtime/RuntimeError.h"

using graphics::Picture;

namespace {

constexpr int noPen = 5;

/// A window of 400 by 200; a red box on the left, drawn with a brush that took a deleted one's place.
WmfBytes redLeft() {
  WmfBytes wmf;
  wmf.record(0x020B, {0, 0}).record(0x020C, {200, 400});
  wmf.record(0x02FA, {noPen, 0, 0, 0, 0}).record(0x012D, {0});
  wmf.record(0x02FC, {0, 0xFF00, 0, 0}).record(0x01F0, {1});
  wmf.record(0x02FC, {0, 0x00FF, 0, 0}).record(0x012D, {1});
  return wmf.record(0x041B, {200, 200, 0, 0});
}

QByteArray chineseFont() {
  return WmfBytes::wordsOf({-80, 0, 0, 0, 700, 0, 134 << 8, 0, 0}) + QByteArray("\xCB\xCE\xCC\xE5\0\0", 6);
}

/// Every kind of record that is drawn.
WmfBytes everything() {
  WmfBytes wmf = redLeft();
  wmf.record(0x02FB, chineseFont()).record(0x012D, {2}).record(0x0102, {1}).record(0x001E, {});
  wmf.record(0x0521, WmfBytes::wordsOf({4}) + "\xD6\xD0\xB9\xFA" + WmfBytes::wordsOf({50, 220}));
  wmf.record(0x0A32, WmfBytes::wordsOf({90, 220, 2, 2, 210, 90, 390, 180}) + "\xD6\xD0");
  wmf.record(0x02FA, {1, 4, 0, 0, 0}).record(0x012D, {3}).record(0x0214, {5, 5}).record(0x0213, {150, 300});
  wmf.record(0x0324, {3, 0, 0, 50, 0, 0, 50}).record(0x0325, {2, 0, 0, 90, 90});
  wmf.record(0x0538, {2, 3, 3, 0, 0, 9, 0, 0, 9, 50, 50, 90, 50, 50, 90});
  wmf.record(0x061C, {9, 9, 90, 90, 0, 0}).record(0x0418, {200, 400, 0, 0});
  for (const int arc : {0x0817, 0x081A, 0x0830}) wmf.record(arc, {0, 100, 100, 0, 200, 400, 0, 0});
  const QByteArray bitmap = pictureBytes("bmp", {8, 8}, Qt::blue).mid(14);
  wmf.record(0x0F43, WmfBytes::wordsOf({0x20, 0xCC, 0, 8, 8, 0, 0, 40, 40, 100, 300}) + bitmap);
  wmf.record(0x0B41, WmfBytes::wordsOf({0xC6, 0x88, 8, 8, 0, 0, 40, -40, 100, 390}) + bitmap);
  wmf.record(0x061D, {0x21, 0xF0, 10, 10, 190, 0}).record(0x0416, {90, 90, 0, 0}).record(0x0127, {-1});
  return wmf.record(0x0626, {15, 0}).record(0x7777, {1, 2, 3});
}

/// Draws what can be read of it; anything but a picture or the one error ends the test.
void drawSmall(const QByteArray& bytes) {
  try {
    std::ignore = Picture(bytes, QStringLiteral("a.wmf")).decode({40, 20});
  } catch (const runtime::RuntimeError& error) {
    EXPECT_EQ(error.number(), static_cast<int>(runtime::ErrorNumber::InvalidPicture));
  }
}

QString errorOf(const QByteArray& bytes) {
  try {
    const Picture picture(bytes, QStringLiteral("a.wmf"));
  } catch (const runtime::RuntimeError& error) {
    return error.description();
  }
  return {};
}

}  // namespace

TEST(Wmf, ShapesAreDrawnWithTheObjectsThatTheirNumbersMean) {
  for (const QByteArray& bytes : {redLeft().plain(), redLeft().placed(400, 200)}) {
    const Picture picture(bytes, QStringLiteral("logo.bmp"));
    EXPECT_EQ(picture.size(), QSize(1200, 600));
    const QImage image = picture.decode();
    EXPECT_EQ(image.pixelColor(300, 300), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(900, 300), QColor(Qt::white));
    EXPECT_EQ(picture.decode({300, 150}).size(), QSize(300, 150));
  }
}

TEST(Wmf, TextBitmapsAndSavedSettings) {
  WmfBytes wmf = redLeft();
  wmf.record(0x02FB, chineseFont()).record(0x012D, {2}).record(0x0102, {1}).record(0x001E, {});
  wmf.record(0x0209, {0x00FF, 0}).record(0x0127, {-1});
  wmf.record(0x0521, WmfBytes::wordsOf({4}) + "\xD6\xD0\xB9\xFA" + WmfBytes::wordsOf({10, 220}));
  const QByteArray bitmap = pictureBytes("bmp", {8, 8}, Qt::blue).mid(14);
  wmf.record(0x0F43, WmfBytes::wordsOf({0x20, 0xCC, 0, 8, 8, 0, 0, 100, 200, 100, 200}) + bitmap);
  const QImage image = Picture(wmf.placed(400, 200), QStringLiteral("x")).decode();
  EXPECT_GT(darkPixels(image, {660, 30, 480, 240}), 2000);
  EXPECT_EQ(image.pixelColor(1100, 500), QColor(Qt::blue));
  EXPECT_LT(image.pixelColor(650, 500).blue(), 100);
}

TEST(Wmf, ImagesAreCutAndCombinedAndTextFillsItsGivenWidth) {
  // Its left half is dark.
  const QByteArray bitmap = pictureBytes("bmp", {8, 8}, Qt::blue).mid(14);
  WmfBytes wmf = redLeft();
  wmf.record(0x0F43, WmfBytes::wordsOf({0x20, 0xCC, 0, 8, 4, 0, 4, 50, 50, 0, 200}) + bitmap);
  wmf.record(0x0B41, WmfBytes::wordsOf({0x46, 0x66, 8, 4, 0, 4, 50, 50, 0, 0}) + bitmap);
  wmf.record(0x0142, WmfBytes::wordsOf({5, 0}) + bitmap).record(0x012D, {2});
  wmf.record(0x041B, {200, 400, 150, 350}).record(0x02FB, chineseFont()).record(0x012D, {3});
  wmf.record(0x0102, {1});
  wmf.record(0x0A32, WmfBytes::wordsOf({60, 210, 2, 0}) + "||" + WmfBytes::wordsOf({100, 80}));
  const QImage image = Picture(wmf.placed(400, 200), QStringLiteral("x")).decode();
  EXPECT_EQ(image.pixelColor(610, 75), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(75, 75), QColor(Qt::magenta));
  EXPECT_EQ(image.pixelColor(1150, 550).red(), 0);
  EXPECT_GT(darkPixels(image, {630, 180, 100, 240}), 100);
  EXPECT_EQ(darkPixels(image, {740, 180, 100, 240}), 0);
  EXPECT_GT(darkPixels(image, {850, 180, 150, 240}), 100);
}

TEST(Wmf, AbsurdBoundsAndMissingSizesAreRefusedByName) {
  const WmfBytes wmf = redLeft();
  for (const QByteArray& bytes : {wmf.placed(32000, 32000, 1), wmf.placed(0, 200), wmf.placed(400, 200, 0),
                                  wmf.placed(32000, 1), WmfBytes().plain()}) {
    EXPECT_TRUE(errorOf(bytes).contains(QStringLiteral("a.wmf"))) << bytes.left(30).toHex().toStdString();
  }
}

TEST(Wmf, AFileCutAnywhereIsRefused) {
  const QByteArray bytes = everything().placed(400, 200);
  EXPECT_EQ(errorOf(bytes), QString());
  for (qsizetype length = 0; length < bytes.size(); ++length) {
    EXPECT_NE(errorOf(bytes.left(length)), QString()) << length;
  }
}

TEST(Wmf, DamagedBytesHarmNothing) {
  const QByteArray bytes = everything().placed(400, 200);
  std::mt19937 random(20);
  for (int i = 0; i < 3000; ++i) {
    QByteArray damaged = bytes;
    damaged[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
        static_cast<char>(random());
    drawSmall(damaged);
  }
}
