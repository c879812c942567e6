#include <gtest/gtest.h>

#include <QFontDatabase>

#include "graphics/Fonts.h"

using graphics::substituteFamily;

namespace {

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
