#pragma once

#include <vector>

#include <QStringMatcher>

#include "report/DocumentData.h"
#include "report/PageText.h"

namespace report {

/// Whether the control of a template is one of those whose text is drawn.
[[nodiscard]] bool hasText(const Control& control);

/// Looks for one text in a whole document. A template is searched once; of the bands only what they changed.
class TextScan {
 public:
  /// `data` must outlive the scan.
  TextScan(const DocumentData& data, const QString& wanted);

  /// All places, in the order of pages and texts.
  [[nodiscard]] std::vector<TextHit> hits();

 private:
  /// A text of a template: whose it is and where the wanted text stands in it.
  struct TemplateText {
    std::size_t control = 0;
    std::vector<int> places;
  };
  using TemplateTexts = std::vector<TemplateText>;

  /// Calls `use` with every place of the wanted text in `text`.
  template <typename Use>
  void forEachPlace(const QString& text, const Use& use) const;
  [[nodiscard]] TemplateTexts scanTemplate(const Section& section) const;
  void addTemplate(const TemplateTexts& texts);
  void addBand(const TemplateTexts& texts, const Band& band);
  void addPlaces(const std::vector<int>& places);
  void addChanged(const Change& change, const std::vector<int>& unchanged);
  void addFrom(const QString& text);

  const DocumentData& m_data;
  QStringMatcher m_matcher;
  std::vector<TextHit> m_hits;
  /// The text that is looked at.
  int m_page = 0;
  int m_text = 0;
};

}  // namespace report
