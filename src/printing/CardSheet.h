#pragma once

#include <memory>
#include <vector>

#include <QRect>

#include "records/clsEmployeeSet.h"

/// How sign-in cards are laid on sheets of A4: two columns by four rows in the middle of the paper.
///
/// Between the cards there are 5 mm. With a common edge, one cut would have to be right for two cards, and a
/// blade that is half a millimetre off leaves a strip of the neighbour's frame on one of them. A strip
/// between them makes every edge that of one card alone, and is wide enough to be cut off in one piece.
struct CardSheet {
  enum class Order {
    /// As the list shows the employees, from its top on.
    AsListed,
    ByNumber,
  };

  static constexpr int columns = 2;
  static constexpr int rows = 4;
  static constexpr int places = columns * rows;
  /// Tenths of a millimetre. However far the cards are moved within it, 10 mm of paper remain around them,
  /// which is more than printers leave white.
  static constexpr int farthest = 100;
  /// Twips.
  static constexpr QSize paperSize{11906, 16838};

  /// Where the first card stands on the first sheet, from 1 to `places`, counted row by row from the left.
  int start = 1;
  bool cutMarks = true;
  /// How far all is moved to the right and downwards, tenths of a millimetre; below 0 to the left and
  /// upwards.
  int right = 0;
  int down = 0;
  Order order = Order::AsListed;

  [[nodiscard]] int sheetsFor(int cards) const;
  /// The card at that place, twips from the paper's top left corner.
  [[nodiscard]] QRect box(int place) const;
  /// Twips from a card's top left corner to that of its neighbours to the right and below.
  [[nodiscard]] static QSize step();
  /// Lines in the margins that prolong the edges of all cards, whether there are cards or not: a pile of
  /// sheets is cut at once. They end before the cards, and a guillotine needs none between them. Twips from
  /// the paper's top left corner, each without height or without width.
  [[nodiscard]] std::vector<QRect> cutLines() const;
};

/// The employees in the order in which the sheets take them; `picked` has them as a walk over the list's
/// selection finds them, from the bottom row to the top one. By number, the digits count as numbers, whatever
/// the letter case: 9 stands before 10, A9 before a10.
[[nodiscard]] std::shared_ptr<clsEmployeeSet> arranged(const clsEmployeeSet& picked, CardSheet::Order order);
