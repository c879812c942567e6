#include "report/TextScan.h"

#include <utility>

namespace report {

bool hasText(const Control& control) {
  return control.Kind == ControlKind::Label || control.Kind == ControlKind::Barcode;
}

TextScan::TextScan(const DocumentData& data, const QString& wanted)
    : m_data(data), m_matcher(wanted, Qt::CaseInsensitive) {}

std::vector<TextHit> TextScan::hits() {
  if (m_matcher.pattern().isEmpty()) return {};
  const TemplateTexts header = scanTemplate(m_data.header);
  const TemplateTexts detail = scanTemplate(m_data.detail);
  const TemplateTexts footer = scanTemplate(m_data.footer);
  m_page = 0;
  for (const PageLayout& page : m_data.pages) {
    m_text = 0;
    addTemplate(header);
    for (const PlacedBand& placed : page) addBand(detail, m_data.bands[placed.band]);
    addTemplate(footer);
    ++m_page;
  }
  return std::exchange(m_hits, {});
}

template <typename Use>
void TextScan::forEachPlace(const QString& text, const Use& use) const {
  const qsizetype length = m_matcher.pattern().size();
  if (text.size() < length) return;
  for (qsizetype at = m_matcher.indexIn(text); at >= 0; at = m_matcher.indexIn(text, at + length)) {
    use(static_cast<int>(at));
  }
}

TextScan::TemplateTexts TextScan::scanTemplate(const Section& section) const {
  TemplateTexts texts;
  for (std::size_t i = 0; i < section.Controls.size(); ++i) {
    const Control& control = section.Controls[i];
    if (!hasText(control)) continue;
    TemplateText& text = texts.emplace_back(TemplateText{i, {}});
    forEachPlace(control.Caption, [&text](int at) { text.places.push_back(at); });
  }
  return texts;
}

void TextScan::addTemplate(const TemplateTexts& texts) {
  for (const TemplateText& text : texts) addPlaces(text.places);
}

void TextScan::addBand(const TemplateTexts& texts, const Band& band) {
  auto change = band.changes.begin();
  for (const TemplateText& text : texts) {
    while (change != band.changes.end() && change->control < text.control) ++change;
    if (change != band.changes.end() && change->control == text.control) {
      addChanged(*change, text.places);
    } else {
      addPlaces(text.places);
    }
  }
}

void TextScan::addChanged(const Change& change, const std::vector<int>& unchanged) {
  if (const auto* caption = std::get_if<QString>(&change.value)) return addFrom(*caption);
  if (const auto* whole = std::get_if<std::shared_ptr<const Control>>(&change.value)) {
    return addFrom((*whole)->Caption);
  }
  addPlaces(unchanged);
}

void TextScan::addPlaces(const std::vector<int>& places) {
  for (const int at : places) m_hits.push_back({m_page, m_text, at});
  ++m_text;
}

void TextScan::addFrom(const QString& text) {
  forEachPlace(text, [this](int at) { m_hits.push_back({m_page, m_text, at}); });
  ++m_text;
}

}  // namespace report
