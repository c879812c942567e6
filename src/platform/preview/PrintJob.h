#pragma once

#include <functional>
#include <vector>

#include <QPrinter>

#include "report/Document.h"

namespace preview {

/// Tells how many sheets are done; false stops the job.
using PrintProgress = std::function<bool(int done, int total)>;

enum class PrintEnd {
  Printed,
  /// Stopped, and nothing is printed.
  Cancelled,
  /// Stopped, but the pages before were already on their way to the printer.
  Stopped,
};

/// Gives the printer the paper and the name of `document`.
void prepare(QPrinter& printer, const report::Document& document);
/// The pages that the printer's settings ask for, from 0 and in the order of printing: range, reversed order,
/// and copies when the printer does not make them itself.
[[nodiscard]] std::vector<int> pagesToPrint(const QPrinter& printer, int pageCount, int currentPage);
/// Prints `pages` at their true size, smaller only when the printer's paper is smaller. Throws
/// runtime::RuntimeError when the job cannot start or breaks off.
PrintEnd printPages(QPrinter& printer, const report::Document& document, const std::vector<int>& pages,
                    const PrintProgress& progress);

}  // namespace preview
