#include <gtest/gtest.h>

#include "preview/PreviewToolbar.h"

using preview::PreviewToolbar;

namespace {

report::Toolbar localized() {
  report::Toolbar texts;
  report::LocalizeToolbar(texts);
  return texts;
}

}  // namespace

TEST(PreviewToolbar, ToolsBoxesAndSeparatorsStandAtTheirPlaces) {
  const report::Toolbar texts = localized();
  const PreviewToolbar toolbar(texts);
  ASSERT_EQ(toolbar.actions().size(), report::Toolbar::toolCount + 1);
  for (int index = 0; index < report::Toolbar::toolCount; ++index) {
    const QAction* action = toolbar.actions().at(index);
    const report::Tool& tool = texts.Tools.at(index);
    const bool separator = QList<int>{1, 3, 5, 7, 10, 14, 18}.contains(index);
    EXPECT_EQ(action->isSeparator(), separator) << index;
    if (tool.Tooltip.isEmpty()) continue;
    EXPECT_EQ(action->toolTip(), tool.Tooltip) << index;
    EXPECT_FALSE(action->icon().isNull()) << index;
    EXPECT_FALSE(action->isEnabled()) << index;
  }
  EXPECT_EQ(toolbar.widgetForAction(toolbar.actions().at(13))->objectName(), QStringLiteral("cmbZoom"));
  EXPECT_EQ(toolbar.widgetForAction(toolbar.actions().at(17))->objectName(), QStringLiteral("txtPage"));
  EXPECT_EQ(toolbar.actions().at(21)->text(), QStringLiteral("存为PDF"));
}

TEST(PreviewToolbar, PageTextsAreUnderstood) {
  EXPECT_EQ(preview::pageOfText(QStringLiteral("3"), 12), 2);
  EXPECT_EQ(preview::pageOfText(QStringLiteral(" 7 / 12 "), 12), 6);
  EXPECT_EQ(preview::pageOfText(QStringLiteral("１２"), 12), 11);
  EXPECT_EQ(preview::pageOfText(QStringLiteral("99"), 12), 11);
  EXPECT_EQ(preview::pageOfText(QStringLiteral("0"), 12), 0);
  for (const auto* bad : {u"", u"x", u"-1", u"3x", u"1.5", u"99999999999999999999"}) {
    EXPECT_EQ(preview::pageOfText(QString::fromUtf16(bad), 12), -1) << QString::fromUtf16(bad).toStdString();
  }
  EXPECT_EQ(preview::pageOfText(QStringLiteral("1"), 0), -1);
}
