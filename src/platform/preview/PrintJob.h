#pragma once

#include <functional>
#include <vector>

#include <QPrinter>

#include "report/Document.h"

namespace preview {

/// Tells how many sheets are done; false stops the job.
using PrintProgress = std::function<bool(int done, int total)>;

/// Gives the printer the paper and the name of `document`.
void prepare(QPrinter& printer, const report::Document& document);
/// The pages that the printer's settings ask for, from 0 and in the order of printing: range, reversed order,
/// and copies when the printer does not make them itself.
[[nodiscard]] std::vector<int> pagesToPrint(const QPrinter& printer, int pageCount, int currentPage);
/// Prints `pages` at their true size, smaller only when the printer's paper is smaller; whether all of them
/// were printed. When `progress` stops the job, pages may already be on their way. Throws
/// runtime::RuntimeError when the job cannot start or breaks off.
[[nodiscard]] bool printPages(QPrinter& printer, const report::Document& document,
                              const std::vector<int>& pages, const PrintProgress& progress);

}  // namespace preview
