#include "report/Document.h"

#include "report/ControlPrimitives.h"
#include "report/DocumentData.h"
#include "runtime/RuntimeError.h"

namespace report {
namespace {

void appendBand(std::vector<Primitive>& primitives, const Section& design, const Band& band, QPoint origin) {
  std::size_t next = 0;
  for (std::size_t i = 0; i < design.Controls.size(); ++i) {
    appendControl(primitives, applyBand(design, i, band, next), origin);
  }
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

std::vector<Primitive> Document::page(int index) const {
  if (index < 0 || index >= pageCount()) {
    throw runtime::RuntimeError(runtime::ErrorNumber::SubscriptOutOfRange,
                                QStringLiteral("没有第 %1 页").arg(index + 1));
  }
  const DocumentData& data = *m_data;
  std::vector<Primitive> primitives;
  const Band unchanged;
  appendBand(primitives, data.header, unchanged, {data.left, data.headerTop});
  for (const PlacedBand& placed : data.pages[static_cast<std::size_t>(index)]) {
    appendBand(primitives, data.detail, data.bands[placed.band], {data.left, placed.top});
  }
  appendBand(primitives, data.footer, unchanged, {data.left, data.footerTop});
  return primitives;
}

}  // namespace report
