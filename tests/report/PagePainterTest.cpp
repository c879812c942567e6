#include <gtest/gtest.h>

#include <QBuffer>

#include "../graphics/PictureBytes.h"
#include "SmallReport.h"
#include "graphics/Twips.h"
#include "report/PagePainter.h"

namespace {

constexpr double dotsPerInch = 144;

/// The only page of a report with these controls, painted at 144 dots an inch: 10 twips a pixel.
QImage paint(const std::vector<report::Control>& controls) {
  SmallReport small;
  small.bandCount = 1;
  small.Margins = {0, 0, 0, 0};
  small.PaperSize = {3000, 2000};
  small.Detail.Controls = controls;
  small.fill = [](SmallReport&, int) {};
  QImage image(300, 200, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(dotsPerInch / graphics::twipsPerInch, dotsPerInch / graphics::twipsPerInch);
  const QTransform before = painter.transform();
  report::DecodingPictureSource pictures;
  report::paintPage(painter, small.run(), 0, pictures);
  EXPECT_EQ(painter.transform(), before);
  EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
  return image;
}

/// The smallest rectangle of pixels that are not white.
QRect inked(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 200) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

report::Control textControl(Qt::Alignment alignment) {
  auto control = SmallReport::label(QStringLiteral("lbl"), {1000, 500, 1000, 400}, QStringLiteral("国"));
  control.Alignment = alignment;
  return control;
}

report::Control picture(const char* format, QSize size, const QRect& box) {
  auto control = SmallReport::label(QStringLiteral("img"), box);
  control.Kind = report::ControlKind::Image;
  control.Picture =
      std::make_shared<const graphics::Picture>(pictureBytes(format, size), QStringLiteral("x"));
  return control;
}

}  // namespace

TEST(PagePainter, TextsStandInTheirBoxesByAlignment) {
  const QRect left = inked(paint({textControl(Qt::AlignLeft | Qt::AlignVCenter)}));
  const QRect middle = inked(paint({textControl(Qt::AlignHCenter | Qt::AlignVCenter)}));
  const QRect right = inked(paint({textControl(Qt::AlignRight | Qt::AlignBottom)}));
  const QRect box(100, 50, 100, 40);
  EXPECT_TRUE(box.contains(left) && box.contains(middle)) << left.left() << " " << middle.left();
  EXPECT_LT(left.left(), 104);
  EXPECT_NEAR(middle.center().x(), 150, 2);
  EXPECT_NEAR(middle.center().y(), 70, 3);
  EXPECT_GT(right.right(), 195);
  EXPECT_GT(right.center().y(), middle.center().y() + 5);
}

TEST(PagePainter, TextsOfManyFontsAndColoursAreAllDrawn) {
  std::vector<report::Control> labels;
  for (int i = 0; i < 4; ++i) {
    auto control = SmallReport::label(QStringLiteral("lbl"), {500 * i, 500, 500, 400}, QStringLiteral("国A"));
    control.Font.size = 8 + i;
    control.ForeColor = i == 3 ? 0x0000FF : 0;
    labels.push_back(control);
  }
  const QImage image = paint(labels);
  for (int i = 0; i < 4; ++i) {
    const QRect ink = inked(image.copy(50 * i, 0, 50, 200));
    EXPECT_GT(ink.height(), 10) << i;
    EXPECT_GE(ink.top(), 50) << i;
    EXPECT_LE(ink.bottom(), 90) << i;
  }
  int red = 0;
  for (int x = 150; x < 200; ++x) {
    for (int y = 50; y < 90; ++y)
      red += image.pixelColor(x, y).red() > 200 && image.pixelColor(x, y).blue() < 60;
  }
  EXPECT_GT(red, 20);
}

TEST(PagePainter, APictureCoversWhatStoodBeforeIt) {
  const auto text =
      SmallReport::label(QStringLiteral("lbl"), {1000, 500, 1000, 400}, QStringLiteral("国国国"));
  auto frame = textControl(Qt::AlignCenter);
  frame.Border = true;
  auto white = picture("png", {100, 40}, {900, 400, 1200, 600});
  QImage blank(120, 60, QImage::Format_RGB32);
  blank.fill(Qt::white);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  blank.save(&buffer, "PNG");
  white.Picture = std::make_shared<const graphics::Picture>(bytes, QStringLiteral("x"));
  EXPECT_TRUE(inked(paint({text, frame, white})).isEmpty());
  EXPECT_FALSE(inked(paint({white, text, frame})).isEmpty());
}

TEST(PagePainter, WhatCannotBeDecodedIsAnEmptyFrame) {
  auto damaged = picture("png", {400, 400}, {500, 500, 1000, 1000});
  const QByteArray bytes = damaged.Picture->bytes();
  damaged.Picture =
      std::make_shared<const graphics::Picture>(bytes.left(bytes.size() / 2), QStringLiteral("x"));
  for (const auto& shown : {damaged.Picture, graphics::PicturePointer()}) {
    damaged.Picture = shown;
    const QImage image = paint({damaged});
    const QRect frame = inked(image);
    EXPECT_NEAR(frame.width(), 100, 2);
    EXPECT_EQ(image.pixelColor(frame.center()), QColor(Qt::white));
  }
}

TEST(DecodingPictureSource, KeepsImagesBySizeAndWithinItsBound) {
  const auto first =
      std::make_shared<const graphics::Picture>(pictureBytes("jpg", {640, 480}), QStringLiteral("x"));
  const auto second =
      std::make_shared<const graphics::Picture>(pictureBytes("jpg", {640, 480}), QStringLiteral("x"));
  report::DecodingPictureSource pictures(128 * 96 * 4 * 3 / 2);
  const qint64 key = pictures.image(first, {120, 90}).cacheKey();
  EXPECT_EQ(pictures.image(first, {128, 80}).cacheKey(), key);
  EXPECT_EQ(pictures.image(first, {120, 90}).size(), QSize(128, 96));
  EXPECT_GE(pictures.image(second, {120, 90}).width(), 128);
  EXPECT_NE(pictures.image(first, {120, 90}).cacheKey(), key) << "the bound holds one image";
}

TEST(PagePainter, LinesRunAcrossOrDownAndStayVisible) {
  auto across = SmallReport::label(QStringLiteral("line"), {500, 1000, 800, 0});
  across.Kind = report::ControlKind::Line;
  auto down = SmallReport::label(QStringLiteral("line"), {2005, 300, 0, 900});
  down.Kind = report::ControlKind::Line;
  const QImage image = paint({across, down});
  const QRect left = inked(image.copy(0, 0, 150, 200));
  EXPECT_NEAR(left.width(), 80, 2);
  EXPECT_LE(left.height(), 2);
  const QRect right = inked(image.copy(150, 0, 150, 200));
  EXPECT_EQ(right.left(), 50);
  EXPECT_EQ(right.width(), 1);
  EXPECT_NEAR(right.height(), 90, 2);
}
