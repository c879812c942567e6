#include "report/Document.h"

#include <algorithm>

#include "report/ControlPrimitives.h"
#include "report/DocumentData.h"
#include "report/TextScan.h"
#include "runtime/RuntimeError.h"

namespace report {
namespace {

void appendBand(std::vector<Primitive>& primitives, const Section& design, const Band& band, QPoint origin) {
  std::size_t next = 0;
  for (std::size_t i = 0; i < design.Controls.size(); ++i) {
    appendControl(primitives, applyBand(design, i, band, next), origin);
  }
}

void appendTexts(std::vector<PageText>& texts, const Section& design, const Band& band, QPoint origin) {
  std::size_t next = 0;
  for (std::size_t i = 0; i < design.Controls.size(); ++i) {
    const Control control = applyBand(design, i, band, next);
    if (!hasText(design.Controls[i])) continue;
    texts.push_back({control.rect().translated(origin), control.Caption, control.Border});
  }
}

/// Calls `append` with every section of the page, what it changes and where it stands.
template <typename Append>
void forEachBand(const DocumentData& data, int index, const Append& append) {
  const Band unchanged;
  append(data.header, unchanged, QPoint(data.left, data.headerTop));
  for (const PlacedBand& placed : data.pages[static_cast<std::size_t>(index)]) {
    append(data.detail, data.bands[placed.band], QPoint(placed.left, placed.top));
  }
  append(data.footer, unchanged, QPoint(data.left, data.footerTop));
}

}  // namespace

Document::Document() : m_data(std::make_shared<DocumentData>()) {}

Document::Document(std::shared_ptr<const DocumentData> data) : m_data(std::move(data)) {}

int Document::pageCount() const {
  return static_cast<int>(m_data->pages.size());
}

QSize Document::paperSize() const {
  return m_data->paperSize;
}

const QString& Document::title() const {
  return m_data->title;
}

void Document::checkPage(int index) const {
  if (index >= 0 && index < pageCount()) return;
  throw runtime::RuntimeError(runtime::ErrorNumber::SubscriptOutOfRange,
                              QStringLiteral("没有第 %1 页").arg(index + 1));
}

std::vector<Primitive> Document::page(int index) const {
  checkPage(index);
  std::vector<Primitive> primitives;
  forEachBand(*m_data, index, [&](const Section& design, const Band& band, QPoint origin) {
    appendBand(primitives, design, band, origin);
  });
  return primitives;
}

std::vector<PageText> Document::texts(int index) const {
  checkPage(index);
  std::vector<PageText> texts;
  forEachBand(*m_data, index, [&](const Section& design, const Band& band, QPoint origin) {
    appendTexts(texts, design, band, origin);
  });
  return texts;
}

QStringList Document::entries(int index) const {
  checkPage(index);
  QStringList entries;
  const std::vector<Control>& controls = m_data->detail.Controls;
  const auto found = std::find_if(controls.begin(), controls.end(), [this](const Control& control) {
    return control.Name == m_data->detail.EntryControl;
  });
  if (found == controls.end()) return entries;
  const auto control = static_cast<std::size_t>(found - controls.begin());
  for (const PlacedBand& placed : m_data->pages[static_cast<std::size_t>(index)]) {
    const QString entry = captionIn(m_data->detail, control, m_data->bands[placed.band]);
    if (!entry.isEmpty()) entries.append(entry);
  }
  return entries;
}

std::vector<TextHit> Document::find(const QString& wanted) const {
  return TextScan(*m_data, wanted).hits();
}

}  // namespace report
