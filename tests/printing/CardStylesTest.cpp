#include "CardHome.h"
#include "printing/clsLogo.h"
#include "printing/clsTextDspStyle.h"

namespace {

class CardStyles : public CardHome {};

clsTextDspStyle styleOf(const QString& group) {
  clsTextDspStyle style;
  style.InitConfigGroupName(group);
  return style;
}

}  // namespace

TEST_F(CardStyles, MissingAndForeignValuesFallBackToDefaults) {
  const QString settings = file(QStringLiteral("attendance.ini"));
  for (const char* content : {"", "[UNIT]\r\nDSPSIZE=big\r\nDSPCOLOR=99999999999\r\nDSPBOLD=yes\r\n"}) {
    const clsTextDspStyle unit = styleOf(QStringLiteral("UNIT"));
    EXPECT_EQ(unit.GetSize(), QStringLiteral("14")) << content;
    EXPECT_EQ(unit.GetColor(), 0);
    EXPECT_FALSE(unit.GetBold() || unit.GetItalic());
    EXPECT_TRUE(unit.GetName().isEmpty() && unit.GetFont().isEmpty() && clsLogo().GetPath().isEmpty());
    support::writeFile(settings, content);
  }
}

TEST_F(CardStyles, WhatIsSetIsReadBackByAnotherObject) {
  clsTextDspStyle unit = styleOf(QStringLiteral("UNIT"));
  EXPECT_TRUE(unit.SetName(QStringLiteral("  第一中学 ")));
  EXPECT_TRUE(unit.SetFont(QStringLiteral(" 楷体_GB2312 ")));
  EXPECT_TRUE(unit.SetSize(QStringLiteral(" 10.5 ")));
  EXPECT_TRUE(unit.SetColor(255));
  EXPECT_TRUE(unit.SetBold(true) && unit.SetItalic(true));
  clsLogo logo;
  EXPECT_TRUE(logo.SetPath(QStringLiteral(" C:\\logo.bmp ")));

  const clsTextDspStyle again = styleOf(QStringLiteral(" UNIT "));
  EXPECT_EQ(again.GetName(), QStringLiteral("第一中学"));
  EXPECT_EQ(again.GetFont(), QStringLiteral("楷体_GB2312"));
  EXPECT_EQ(again.GetSize(), QStringLiteral("10.5"));
  EXPECT_EQ(again.GetColor(), 255);
  EXPECT_TRUE(again.GetBold() && again.GetItalic());
  EXPECT_FALSE(styleOf(QStringLiteral("MEMO")).GetBold());
  EXPECT_EQ(clsLogo().GetPath(), QStringLiteral("C:\\logo.bmp"));
}

TEST_F(CardStyles, AFailedWriteIsReported) {
  EXPECT_TRUE(QFile(write(QStringLiteral("attendance.ini"), "")).setPermissions(QFileDevice::ReadOwner));
  EXPECT_FALSE(styleOf(QStringLiteral("UNIT")).SetName(QStringLiteral("甲")));
  EXPECT_FALSE(clsLogo().SetPath(QStringLiteral("x")));
}
