#pragma once

#include <vector>

#include "spooler/Spooler.h"

namespace preview {

/// A size in twips in the unit of papers.
[[nodiscard]] QSize paperSizeOf(QSize twips);
/// Whether `paper` is as large as `page`, turned or not, but for what papers differ by rounding.
[[nodiscard]] bool isSamePaper(QSize page, QSize paper);
/// Whether all of `page` goes on `paper`, turned or not.
[[nodiscard]] bool fitsPaper(QSize page, QSize paper);
/// The paper to ask for: the one of the page's own size, else the queue's default when the page fits it, else
/// the smallest that it fits, else the default or the first. -1 without papers.
[[nodiscard]] int bestPaper(const spooler::Details& queue, QSize page);

/// "210 × 297 毫米".
[[nodiscard]] QString sizeText(QSize size);
/// "A4（210 × 297 毫米）".
[[nodiscard]] QString paperText(const spooler::Paper& paper);

}  // namespace preview
