#pragma once

#include <vector>

namespace preview {

/// The pages that were left by going to another one, for back and forward. Scrolling is no visit.
class PageHistory {
 public:
  /// Visits that are remembered.
  static constexpr int longest = 500;

  /// The reader goes from one page to another; what lay ahead is forgotten.
  void visit(int from, int to);
  [[nodiscard]] bool canGoBack() const { return !m_back.empty(); }
  [[nodiscard]] bool canGoForward() const { return !m_forward.empty(); }
  /// The page to go to when the reader, now on page `from`, goes back or forward; `from` when there is none.
  int goBack(int from) { return go(m_back, m_forward, from); }
  int goForward(int from) { return go(m_forward, m_back, from); }

 private:
  static int go(std::vector<int>& taken, std::vector<int>& left, int from);

  std::vector<int> m_back;
  std::vector<int> m_forward;
};

}  // namespace preview
