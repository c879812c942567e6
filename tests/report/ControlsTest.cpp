#include <cmath>
#include <gtest/gtest.h>

#include <QFontMetricsF>

#include "../graphics/PictureBytes.h"
#include "SmallReport.h"
#include "report/Code128.h"
#include "runtime/RuntimeError.h"

using report::TextPrimitive;

namespace {

TextPrimitive textFor(const QString& caption, double size, QSize box = {1000, 300}) {
  SmallReport small;
  small.bandCount = 1;
  small.Detail.Controls = {SmallReport::label(QStringLiteral("lblText"), {{100, 200}, box}, caption)};
  small.Detail.Controls[0].Font.size = size;
  small.fill = [](SmallReport&, int) {};
  const auto texts = shapesOf<TextPrimitive>(small.run(), 0);
  EXPECT_EQ(small.Detail.Controls[0].Font.size == size, !std::isnan(size));
  return texts.empty() ? TextPrimitive() : texts[0].second;
}

double widthOf(const TextPrimitive& text) {
  return QFontMetricsF(graphics::twipFont(text.font)).horizontalAdvance(text.text);
}

/// The lines of a label that wraps, 1134 twips wide and high.
std::vector<TextPrimitive> wrappedLines(const QString& caption) {
  SmallReport small;
  small.bandCount = 1;
  small.Detail.Height = 1500;
  small.Detail.Controls = {SmallReport::label(QStringLiteral("lblText"), {100, 200, 1134, 1134}, caption)};
  small.Detail.Controls[0].Wrap = true;
  small.fill = [](SmallReport&, int) {};
  std::vector<TextPrimitive> lines;
  for (const auto& [name, line] : shapesOf<TextPrimitive>(small.run(), 0)) lines.push_back(line);
  return lines;
}

std::vector<report::Primitive> primitivesOf(const report::Control& control) {
  SmallReport small;
  small.bandCount = 1;
  small.Detail.Controls = {control};
  small.fill = [](SmallReport&, int) {};
  return small.run().page(0);
}

report::Control barcode(const QString& text) {
  report::Control control = SmallReport::label(QStringLiteral("Barcode"), {0, 0, 2834, 283}, text);
  control.Kind = report::ControlKind::Barcode;
  return control;
}

report::Control imageControl(const graphics::PicturePointer& picture) {
  report::Control control = SmallReport::label(QStringLiteral("ImgHead"), {0, 0, 2000, 1000});
  control.Kind = report::ControlKind::Image;
  control.Picture = picture;
  return control;
}

}  // namespace

TEST(Text, GoesOnOverSeveralLinesWhereItMay) {
  const QRectF box(600, 900, 1134, 1134);
  struct Case {
    QString text;
    std::size_t leastLines;
  };
  // How wide a picture character is depends on the faces that the system has.
  for (const Case& wrapped : {Case{QStringLiteral("张三"), 1}, Case{QStringLiteral("欧阳上官司马诸葛"), 2},
                              Case{QString(30, u'长'), 4}, Case{QStringLiteral("😀").repeated(20), 2}}) {
    QString whole;
    const auto lines = wrappedLines(wrapped.text);
    for (const TextPrimitive& line : lines) {
      whole += line.text;
      EXPECT_TRUE(box.contains(line.box));
      EXPECT_LE(widthOf(line), box.width());
      EXPECT_GE(line.font.size, 6);
    }
    EXPECT_EQ(whole, wrapped.text);
    EXPECT_GE(lines.size(), wrapped.leastLines);
    EXPECT_LE(lines.size(), 2 * wrapped.leastLines);
  }
  EXPECT_TRUE(wrappedLines(QString(300, u'长')).back().text.endsWith(u'…')) << "what is too much is told";
}

TEST(Text, IsShrunkByHalfPointsOnlyAsFarAsNeeded) {
  const TextPrimitive text = textFor(QStringLiteral("信息技术组"), 14);
  EXPECT_EQ(text.text, QStringLiteral("信息技术组"));
  EXPECT_LT(text.font.size, 14);
  EXPECT_EQ(text.font.size * 2, std::floor(text.font.size * 2));
  EXPECT_LE(widthOf(text), 1000);
  TextPrimitive larger = text;
  larger.font.size += 0.5;
  EXPECT_GT(widthOf(larger), 1000);
}

TEST(Text, IsElidedWhenTheSmallestSizeDoesNotHelp) {
  const TextPrimitive text = textFor(QStringLiteral("一个怎么也放不进标签的部门名称"), 14);
  EXPECT_EQ(text.font.size, 6);
  EXPECT_TRUE(text.text.endsWith(QChar(0x2026)));
  EXPECT_LE(widthOf(text), 1000);
  EXPECT_LE(widthOf(textFor(QStringLiteral("一个放不进的名称"), 4, {200, 300})), 200);
}

TEST(Text, UnreasonableSizesAreStillDrawn) {
  for (const double size : {0.0, -5.0, 1000.0, 1e300, std::nan("")}) {
    const TextPrimitive text = textFor(QStringLiteral("名"), size);
    EXPECT_EQ(text.text, QStringLiteral("名")) << size;
    EXPECT_TRUE(text.font.size >= 6 && text.font.size <= 15) << size;
  }
}

TEST(Text, StaysOnOneLineAndNothingIsDrawnForNothing) {
  EXPECT_EQ(textFor(QStringLiteral("一\n二"), 10).text, QStringLiteral("一 二"));
  EXPECT_TRUE(textFor(QString(), 10).text.isNull());
  EXPECT_TRUE(textFor(QStringLiteral("名"), 10, {0, 300}).text.isNull());
}

TEST(Image, KeepsItsProportionsInTheMiddleOfItsBox) {
  const auto tall =
      std::make_shared<const graphics::Picture>(pictureBytes("png", {30, 60}), QStringLiteral("x"));
  const auto shape = std::get<report::PicturePrimitive>(primitivesOf(imageControl(tall)).at(0).shape);
  EXPECT_EQ(shape.picture, tall);
  EXPECT_EQ(shape.box, QRectF(500 + 750, 700, 500, 1000));
  const auto empty = std::get<report::PicturePrimitive>(primitivesOf(imageControl(nullptr)).at(0).shape);
  EXPECT_EQ(empty.picture, nullptr);
  EXPECT_EQ(empty.box, QRectF(500, 700, 2000, 1000));
}

TEST(Barcode, RefusesWhatScannersCannotRead) {
  for (const QString& text :
       {QString(), QStringLiteral("条码"), QStringLiteral("1\t2"), QString(300, QLatin1Char('7'))}) {
    EXPECT_THROW(std::ignore = report::encodeCode128(text), runtime::RuntimeError);
  }
}

TEST(Barcode, KeepsQuietZonesAndTallBarsAboveSmallDigits) {
  const auto primitives = primitivesOf(barcode(QStringLiteral("123456789012345")));
  ASSERT_EQ(primitives.size(), 2U);
  const auto& bars = std::get<report::BarsPrimitive>(primitives[0].shape).bars;
  const double module = 2834.0 / 154;
  EXPECT_NEAR(bars.front().left(), 500 + 10 * module, 0.01);
  EXPECT_NEAR(bars.back().right(), 500 + 2834 - 10 * module, 0.01);
  const auto& digits = std::get<TextPrimitive>(primitives[1].shape);
  EXPECT_EQ(digits.text, QStringLiteral("123456789012345"));
  EXPECT_LE(digits.box.height(), 130);
  EXPECT_GE(bars.front().height(), 150);
  EXPECT_LE(bars.front().bottom(), digits.box.top());
}

TEST(Barcode, ATextThatCannotBeEncodedIsShownWithoutBars) {
  const auto primitives = primitivesOf(barcode(QStringLiteral("条码")));
  ASSERT_EQ(primitives.size(), 1U);
  EXPECT_EQ(std::get<TextPrimitive>(primitives[0].shape).text, QStringLiteral("条码"));
  EXPECT_TRUE(primitivesOf(barcode(QString())).empty());
}
