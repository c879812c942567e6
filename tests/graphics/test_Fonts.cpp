#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include "graphics/Fonts.h"

using graphics::FontDescription;
using graphics::substituteFamily;
using graphics::twipFont;

namespace {

FontDescription font(const QString& name, double size) {
  FontDescription description;
  description.name = name;
  description.size = size;
  return description;
}

bool hasDebianFonts() {
  return QFontDatabase::hasFamily(QStringLiteral("AR PL UMing CN")) &&
         QFontDatabase::hasFamily(QStringLiteral("AR PL UKai CN")) &&
         QFontDatabase::hasFamily(QStringLiteral("Liberation Sans"));
}

}  // namespace

TEST(Fonts, FamiliesThatAreMissingAreReplacedByTheClosest) {
  if (!hasDebianFonts()) GTEST_SKIP() << "the replacing fonts are not installed";
  EXPECT_EQ(substituteFamily(QStringLiteral("宋体")), QStringLiteral("AR PL UMing CN"));
  EXPECT_EQ(substituteFamily(QStringLiteral("楷体_GB2312")), QStringLiteral("AR PL UKai CN"));
  EXPECT_EQ(substituteFamily(QStringLiteral("隶书")), QStringLiteral("AR PL UKai CN"));
  EXPECT_EQ(substituteFamily(QStringLiteral("Arial")), QStringLiteral("Liberation Sans"));
  EXPECT_NE(substituteFamily(QStringLiteral("仿宋_GB2312")), QStringLiteral("AR PL UKai CN"));
  EXPECT_EQ(substituteFamily(QStringLiteral("Liberation Mono")), QStringLiteral("Liberation Mono"));
  EXPECT_EQ(substituteFamily(QString()), QStringLiteral("AR PL UMing CN"));
}

TEST(Fonts, TheReplacementIsTheFaceThatIsDrawn) {
  if (!hasDebianFonts()) GTEST_SKIP() << "the replacing fonts are not installed";
  EXPECT_EQ(QFontInfo(twipFont(font(QStringLiteral("宋体"), 12))).family(), QStringLiteral("AR PL UMing CN"));
  EXPECT_EQ(QFontInfo(twipFont(font(QStringLiteral("Arial"), 12))).family(),
            QStringLiteral("Liberation Sans"));
}

TEST(Fonts, SizesAreTwipsAndStylesAreTakenOver) {
  FontDescription description = font(QStringLiteral("宋体"), 26.5);
  description.bold = true;
  const QFont bold = twipFont(description);
  EXPECT_EQ(bold.pixelSize(), 530);
  EXPECT_TRUE(bold.bold());
  EXPECT_FALSE(bold.italic());
  description.bold = false;
  description.italic = true;
  EXPECT_FALSE(twipFont(description).bold());
  EXPECT_TRUE(twipFont(description).italic());
}

TEST(Fonts, TheClericalFaceIsWidened) {
  if (!hasDebianFonts()) GTEST_SKIP() << "the replacing fonts are not installed";
  const QString text = QStringLiteral("单位");
  const double clerical = QFontMetricsF(twipFont(font(QStringLiteral("隶书"), 20))).horizontalAdvance(text);
  const double kai = QFontMetricsF(twipFont(font(QStringLiteral("楷体_GB2312"), 20))).horizontalAdvance(text);
  EXPECT_NEAR(clerical / kai, 1.3, 0.02);
}

TEST(Fonts, SizesThatCannotBeDrawnAreReplaced) {
  for (const double size : {0.0, -3.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(twipFont(font(QStringLiteral("宋体"), size)).pixelSize(), 200) << size;
  }
  EXPECT_EQ(twipFont(font(QStringLiteral("宋体"), 0.001)).pixelSize(), 20);
  EXPECT_LE(twipFont(font(QStringLiteral("宋体"), 1e9)).pixelSize(), 10000);
}
