#pragma once

#include <memory>

#include <QMimeData>

#include "report/Document.h"

namespace preview {

/// Page `index` for the clipboard: as a picture at 200 dots an inch and as text.
[[nodiscard]] std::unique_ptr<QMimeData> pageCopy(const report::Document& document, int index);
/// The texts of a page as lines, from top to bottom; those of one line from left to right, with tabs between
/// them. A table's cells keep their columns, so that a spreadsheet takes them as they stand.
[[nodiscard]] QString linesOf(std::vector<report::PageText> texts);

}  // namespace preview
