#pragma once

#include <functional>
#include <vector>

#include <QRectF>

namespace preview {

/// A place on a page that is highlighted. Twips from the paper's top left corner.
struct PageMark {
  QRectF box;
  /// Whether it is the one that was gone to last.
  bool current = false;
};

/// The marks of a page; asked every time that the page is shown.
using PageMarks = std::function<std::vector<PageMark>(int page)>;

}  // namespace preview
