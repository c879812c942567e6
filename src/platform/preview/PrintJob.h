#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "report/Document.h"
#include "spooler/Spooler.h"

namespace preview {

/// What the user wants on paper.
struct PrintChoice {
  spooler::Job job;
  /// From 0, in the order of printing.
  std::vector<int> pages;
};

/// Tells what is being done and how far it is; false stops.
using PrintProgress = std::function<bool(const QString& what, int done, int total)>;

/// Makes a PDF of the pages at their true size aside and, once it is complete, hands it to the queue. The
/// job's number; nothing, and nothing printed, when `progress` stopped it. Throws runtime::RuntimeError.
[[nodiscard]] std::optional<int> printPages(const report::Document& document, const PrintChoice& choice,
                                            const PrintProgress& progress);

}  // namespace preview
