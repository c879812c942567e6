#pragma once

#include <map>
#include <utility>

#include "preview/PageMark.h"
#include "report/Document.h"

namespace preview {

/// A search through a document: its hits, the current one among them, and where they stand on the paper.
class TextSearch {
 public:
  explicit TextSearch(report::Document document);

  /// Looks for `wanted`, whatever the case. The current hit becomes the first one from the hit before on, or
  /// from `page` on when there was none; behind the last one it starts over.
  void search(const QString& wanted, int page);
  /// Goes to the next hit (1) or the one before (-1), around the ends.
  void step(int by);
  void clear() { search({}, 0); }

  [[nodiscard]] int count() const { return static_cast<int>(m_hits.size()); }
  /// From 0; -1 without hits.
  [[nodiscard]] int current() const { return m_current; }
  /// Of the current hit, which must exist.
  [[nodiscard]] int currentPage() const { return m_hits[static_cast<std::size_t>(m_current)].page; }
  [[nodiscard]] QRectF currentBox();
  /// The hits on a page.
  [[nodiscard]] std::vector<PageMark> marks(int page);

 private:
  /// A box, and which hit it belongs to. A hit that goes over two lines has two.
  using HitBox = std::pair<int, QRectF>;

  const std::vector<HitBox>& boxesOn(int page);

  report::Document m_document;
  int m_length = 0;
  std::vector<report::TextHit> m_hits;
  int m_current = -1;
  /// Of the pages shown last: measuring texts takes longer than a frame may.
  std::map<int, std::vector<HitBox>> m_boxes;
};

}  // namespace preview
