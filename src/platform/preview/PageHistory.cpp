#include "preview/PageHistory.h"

namespace preview {

void PageHistory::visit(int from, int to) {
  if (from == to) return;
  m_back.push_back(from);
  if (m_back.size() > longest) m_back.erase(m_back.begin());
  m_forward.clear();
}

int PageHistory::go(std::vector<int>& taken, std::vector<int>& left, int from) {
  if (taken.empty()) return from;
  const int page = taken.back();
  taken.pop_back();
  left.push_back(from);
  return page;
}

}  // namespace preview
