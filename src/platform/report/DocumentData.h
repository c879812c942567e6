#pragma once

#include <memory>
#include <variant>
#include <vector>

#include <QPoint>
#include <QSize>
#include <QString>

#include "report/Controls.h"

namespace report {

/// What one band changed on one control of its template: the caption or the picture alone, which is the
/// usual case, or the control as a whole.
struct Change {
  std::size_t control = 0;
  std::variant<QString, graphics::PicturePointer, std::shared_ptr<const Control>> value;
};

struct Band {
  /// Twips.
  int height = 0;
  /// In the order of the template's controls.
  std::vector<Change> changes;
};

/// The changes that turn `design` into `filled`. Throws runtime::RuntimeError when the two have not the same
/// controls.
[[nodiscard]] Band captureBand(const Section& design, const Section& filled);
/// The control of `design` at `index` with the changes of `band` from `next` on applied; moves `next` on.
[[nodiscard]] Control applyBand(const Section& design, std::size_t index, const Band& band,
                                std::size_t& next);
/// The caption that the control of `design` at `index` has in `band`.
[[nodiscard]] QString captionIn(const Section& design, std::size_t index, const Band& band);

struct PlacedBand {
  std::size_t band = 0;
  /// Twips from the paper's top left corner.
  int left = 0;
  int top = 0;
};

using PageLayout = std::vector<PlacedBand>;

/// The columns in which bands stand: row by row, from left to right. A row is as high as its highest band.
struct BandColumns {
  int count = 1;
  /// Twips from a column's left edge to that of the next one.
  int step = 0;
  /// Places before the first band that stay free, as high as the section by design.
  int free = 0;
};

/// The part of a page that bands stand in, twips from the paper's top left corner.
struct BandArea {
  int left = 0;
  int top = 0;
  int bottom = 0;
  BandColumns columns;
  int freeHeight = 0;
};

/// What a Document shares among its copies: templates, values and where the bands stand.
class DocumentData {
 public:
  QString title;
  QSize paperSize;
  int left = 0;
  int headerTop = 0;
  int footerTop = 0;
  Section header;
  Section detail;
  Section footer;
  std::vector<Band> bands;
  /// At least one: a report without data still has its header and footer.
  std::vector<PageLayout> pages;
};

/// Breaks rows of bands into pages. A row that is higher than the area stands alone.
[[nodiscard]] std::vector<PageLayout> breakIntoPages(const std::vector<Band>& bands, const BandArea& area);

}  // namespace report
