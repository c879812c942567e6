#include "report/DocumentData.h"

#include <algorithm>

#include "runtime/RuntimeError.h"

namespace report {
namespace {

bool differsOnlyInCaption(const Control& design, const Control& filled) {
  Control other = filled;
  other.Caption = design.Caption;
  return other == design;
}

bool differsOnlyInPicture(const Control& design, const Control& filled) {
  Control other = filled;
  other.Picture = design.Picture;
  return other == design;
}

Change makeChange(std::size_t index, const Control& design, const Control& filled) {
  if (differsOnlyInCaption(design, filled)) return {index, filled.Caption};
  if (differsOnlyInPicture(design, filled)) return {index, filled.Picture};
  return {index, std::make_shared<const Control>(filled)};
}

/// Sets on a control what a change holds.
struct Apply {
  Control& control;

  void operator()(const QString& caption) const { control.Caption = caption; }
  void operator()(const graphics::PicturePointer& picture) const { control.Picture = picture; }
  void operator()(const std::shared_ptr<const Control>& whole) const { control = *whole; }
};

}  // namespace

Band captureBand(const Section& design, const Section& filled) {
  if (design.Controls.size() != filled.Controls.size()) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall,
                                QStringLiteral("报表运行期间不能增减控件"));
  }
  Band band;
  band.height = filled.Height;
  for (std::size_t i = 0; i < design.Controls.size(); ++i) {
    if (design.Controls[i] == filled.Controls[i]) continue;
    band.changes.push_back(makeChange(i, design.Controls[i], filled.Controls[i]));
  }
  band.changes.shrink_to_fit();
  return band;
}

Control applyBand(const Section& design, std::size_t index, const Band& band, std::size_t& next) {
  Control control = design.Controls[index];
  if (next < band.changes.size() && band.changes[next].control == index) {
    std::visit(Apply{control}, band.changes[next].value);
    ++next;
  }
  return control;
}

QString captionIn(const Section& design, std::size_t index, const Band& band) {
  const auto change = std::find_if(band.changes.begin(), band.changes.end(),
                                   [index](const Change& candidate) { return candidate.control == index; });
  if (change == band.changes.end()) return design.Controls[index].Caption;
  std::size_t next = static_cast<std::size_t>(change - band.changes.begin());
  return applyBand(design, index, band, next).Caption;
}

std::vector<PageLayout> breakIntoPages(const std::vector<Band>& bands, const BandArea& area) {
  const auto columns = static_cast<std::size_t>(std::max(area.columns.count, 1));
  const auto free = static_cast<std::size_t>(std::max(area.columns.free, 0));
  const std::size_t places = free + bands.size();
  const auto heightOf = [&](std::size_t place) {
    return place < free ? area.freeHeight : std::max(bands[place - free].height, 0);
  };
  std::vector<PageLayout> pages(1);
  int nextTop = area.top;
  bool pageHasRows = false;
  for (std::size_t first = 0; first < places; first += columns) {
    const std::size_t end = std::min(first + columns, places);
    int height = 0;
    for (std::size_t place = first; place < end; ++place) height = std::max(height, heightOf(place));
    if (nextTop + height > area.bottom && pageHasRows) {
      pages.emplace_back();
      nextTop = area.top;
    }
    for (std::size_t place = std::max(first, free); place < end; ++place) {
      const int left = area.left + static_cast<int>(place - first) * area.columns.step;
      pages.back().push_back({place - free, left, nextTop});
    }
    nextTop += height;
    pageHasRows = true;
  }
  return pages;
}

}  // namespace report
