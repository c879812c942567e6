#include "preview/TextSearch.h"

#include <algorithm>

#include "preview/PageTextBoxes.h"

namespace preview {

namespace {

constexpr std::size_t pagesRemembered = 64;

}  // namespace

TextSearch::TextSearch(report::Document document) : m_document(std::move(document)) {}

void TextSearch::search(const QString& wanted, int page) {
  const report::TextHit from = m_current < 0 ? report::TextHit{page, 0, 0} : m_hits[m_current];
  m_hits = m_document.find(wanted);
  m_length = static_cast<int>(wanted.size());
  m_boxes.clear();
  m_current = -1;
  if (m_hits.empty()) return;
  const auto found = std::lower_bound(m_hits.begin(), m_hits.end(), from);
  m_current = found == m_hits.end() ? 0 : static_cast<int>(found - m_hits.begin());
}

void TextSearch::step(int by) {
  if (m_hits.empty()) return;
  m_current = (m_current + by + count()) % count();
}

QRectF TextSearch::currentBox() {
  for (const auto& [hit, box] : boxesOn(currentPage())) {
    if (hit == m_current) return box;
  }
  return {};
}

std::vector<PageMark> TextSearch::marks(int page) {
  std::vector<PageMark> marks;
  if (m_hits.empty()) return marks;
  for (const auto& [hit, box] : boxesOn(page)) marks.push_back({box, hit == m_current});
  return marks;
}

const std::vector<TextSearch::HitBox>& TextSearch::boxesOn(int page) {
  const auto known = m_boxes.find(page);
  if (known != m_boxes.end()) return known->second;
  if (m_boxes.size() >= pagesRemembered) m_boxes.clear();
  const auto first = std::lower_bound(m_hits.begin(), m_hits.end(), report::TextHit{page, 0, 0});
  const auto last = std::lower_bound(first, m_hits.end(), report::TextHit{page + 1, 0, 0});
  std::vector<HitBox>& boxes = m_boxes[page];
  if (first == last) return boxes;
  const PageTextBoxes texts(m_document, page);
  for (auto hit = first; hit != last; ++hit) {
    for (const QRectF& box : texts.boxesOf(*hit, m_length)) {
      boxes.emplace_back(static_cast<int>(hit - m_hits.begin()), box);
    }
  }
  return boxes;
}

}  // namespace preview
