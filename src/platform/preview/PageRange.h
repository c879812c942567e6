#pragma once

#include <optional>
#include <vector>

#include <QString>

namespace preview {

/// The pages (from 0, ascending, each once) that `text` names in a document of `pageCount` pages: numbers and
/// ranges, "1-3,5,9-". Whole-width characters and Chinese commas count too. What lies behind the last page is
/// left out; nothing for a text that is not understood.
[[nodiscard]] std::optional<std::vector<int>> pagesOfRange(const QString& text, int pageCount);

}  // namespace preview
