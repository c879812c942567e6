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

std::vector<PageLayout> breakIntoPages(const std::vector<Band>& bands, int top, int bottom) {
  std::vector<PageLayout> pages(1);
  int at = top;
  for (std::size_t i = 0; i < bands.size(); ++i) {
    const int height = std::max(bands[i].height, 0);
    if (at + height > bottom && !pages.back().empty()) {
      pages.emplace_back();
      at = top;
    }
    pages.back().push_back({i, at});
    at += height;
  }
  return pages;
}

}  // namespace report
