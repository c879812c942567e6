#pragma once

#include <compare>

#include <QRect>
#include <QString>

namespace report {

/// A text as the report gave it: complete, also where it is drawn shortened or on several lines.
struct PageText {
  /// Of its control, twips from the paper's top left corner.
  QRect box;
  QString text;
  /// Whether it is one of the framed cells of a table.
  bool cell = false;
};

/// A place where a text was found.
struct TextHit {
  /// From 0.
  int page = 0;
  /// Place in Document::texts() of the page.
  int text = 0;
  /// Place in that text.
  int at = 0;

  // The generated comparison looks to the checker like a null pointer written as 0.
  auto operator<=>(const TextHit&) const = default;  // NOLINT(modernize-use-nullptr)
};

}  // namespace report
