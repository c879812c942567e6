#include "report/Toolbar.h"

namespace report {
namespace {

struct ToolText {
  std::size_t index;
  QString tooltip;
  QString caption;
};

}  // namespace

void LocalizeToolbar(Toolbar& toolbar) {
  static const std::array<ToolText, 12> texts{{
      {0, QStringLiteral("各页目录"), {}},
      {2, QStringLiteral("打印报表"), QStringLiteral("打印...")},
      {4, QStringLiteral("拷贝"), {}},
      {6, QStringLiteral("查找"), {}},
      {8, QStringLiteral("单页显示"), {}},
      {9, QStringLiteral("多页显示"), {}},
      {11, QStringLiteral("缩小"), {}},
      {12, QStringLiteral("放大"), {}},
      {15, QStringLiteral("上一页"), {}},
      {16, QStringLiteral("下一页"), {}},
      {19, QStringLiteral("后退"), QStringLiteral("后退")},
      {20, QStringLiteral("前进"), QStringLiteral("前进")},
  }};
  for (const ToolText& text : texts) {
    toolbar.Tools[text.index] = {text.caption, text.tooltip};
  }
}

}  // namespace report
