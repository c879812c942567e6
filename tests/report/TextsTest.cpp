#include <gtest/gtest.h>

#include "SmallReport.h"

using report::Document;
using report::TextHit;

namespace {

/// Texts in all sections; of the bands one label changes its caption, one its looks, one nothing.
class MixedReport : public SmallReport {
 public:
  MixedReport() {
    PageHeader.Height = 500;
    PageHeader.Controls.push_back(
        label(QStringLiteral("lblTitle"), {0, 0, 3000, 400}, QStringLiteral("Ab标题ab")));
    PageFooter.Height = 400;
    PageFooter.Controls.push_back(
        label(QStringLiteral("lblFoot"), {0, 0, 3000, 400}, QStringLiteral("页脚")));
    Detail.Height = 2000;
    Detail.Controls.push_back(
        label(QStringLiteral("lblFixed"), {100, 600, 3000, 300}, QStringLiteral("aBc")));
    Detail.Controls.push_back(label(QStringLiteral("lblStyled"), {100, 900, 3000, 300}));
    report::Control barcode = label(QStringLiteral("Barcode"), {100, 1200, 3000, 500});
    barcode.Kind = report::ControlKind::Barcode;
    Detail.Controls.push_back(barcode);
    Detail.EntryControl = QStringLiteral("lblText");
    bandCount = 4;
    fill = [](SmallReport& self, int band) {
      self.Detail.control(QStringLiteral("lblText")).Caption =
          band == 1 ? QString() : QStringLiteral("员工%1aBaB").arg(band);
      report::Control& styled = self.Detail.control(QStringLiteral("lblStyled"));
      styled.Caption = QStringLiteral("x%1").arg(band);
      styled.Font.bold = true;
      self.Detail.control(QStringLiteral("Barcode")).Caption = QStringLiteral("10%1AB").arg(band);
    };
  }
};

/// What a search of all texts one by one finds.
std::vector<TextHit> searchedOneByOne(const Document& document, const QString& wanted) {
  std::vector<TextHit> hits;
  for (int page = 0; page < document.pageCount(); ++page) {
    const std::vector<report::PageText> texts = document.texts(page);
    for (int text = 0; text < static_cast<int>(texts.size()); ++text) {
      const QString lower = texts[static_cast<std::size_t>(text)].text.toLower();
      for (qsizetype at = lower.indexOf(wanted.toLower()); at >= 0;
           at = lower.indexOf(wanted.toLower(), at + wanted.size())) {
        hits.push_back({page, text, static_cast<int>(at)});
      }
    }
  }
  return hits;
}

}  // namespace

TEST(Texts, EveryTextOfAPageStandsWhereItsControlDoes) {
  const Document document = MixedReport().run();
  const std::vector<report::PageText> texts = document.texts(0);
  ASSERT_EQ(texts.size(), 1 + 2 * 4 + 1);
  EXPECT_EQ(texts[0].text, QStringLiteral("Ab标题ab"));
  EXPECT_EQ(texts[1].text, QStringLiteral("员工0aBaB"));
  EXPECT_EQ(texts[1].box, QRect(600, 1400, 3000, 300));
  EXPECT_EQ(texts[3].text, QStringLiteral("x0"));
  EXPECT_EQ(texts[4].text, QStringLiteral("100AB"));
  EXPECT_TRUE(texts[5].text.isEmpty());
  EXPECT_EQ(texts.back().text, QStringLiteral("页脚"));
}

TEST(Texts, FindingGoesThroughTemplatesAndBandsAsThroughEveryText) {
  const Document document = MixedReport().run();
  ASSERT_EQ(document.pageCount(), 2);
  for (const auto* wanted : {u"ab", u"AB", u"b", u"员工2", u"题", u"x", u"0", u"页脚", u"aBaB", u"没有"}) {
    const QString text = QString::fromUtf16(wanted);
    EXPECT_EQ(document.find(text), searchedOneByOne(document, text)) << text.toStdString();
  }
  EXPECT_TRUE(document.find({}).empty());
  EXPECT_TRUE(Document().find(QStringLiteral("a")).empty());
  EXPECT_EQ(document.find(QStringLiteral("员工3")), (std::vector<TextHit>{{1, 5, 0}}));
}

TEST(Texts, BandsAreListedByTheControlThatTheReportNames) {
  MixedReport report;
  const Document document = report.run();
  EXPECT_EQ(document.entries(0), QStringList(QStringLiteral("员工0aBaB")));
  EXPECT_EQ(document.entries(1), QStringList({QStringLiteral("员工2aBaB"), QStringLiteral("员工3aBaB")}));
  SmallReport plain;
  plain.bandCount = 1;
  EXPECT_TRUE(plain.run().entries(0).isEmpty());
}
