#pragma once

#include <vector>

#include <QString>

namespace report {

/// One bar of a barcode, in modules from the symbol's left edge.
struct Bar {
  int left = 0;
  int width = 0;
};

struct BarcodeSymbol {
  std::vector<Bar> bars;
  /// Width in modules, without quiet zones.
  int modules = 0;
};

/// Encodes `text` as Code 128. Throws runtime::RuntimeError for an empty text and for characters outside
/// printable ASCII.
[[nodiscard]] BarcodeSymbol encodeCode128(const QString& text);

}  // namespace report
