#include "printing/CardSheet.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "printing/CardDesign.h"

namespace {

// Twips.
constexpr int gap = 283;
constexpr int markDistance = 113;
constexpr int markLength = 283;
constexpr double tenthsPerInch = 254;

/// The room for `count` cards of that length and the gaps between them.
constexpr int blockLength(int card, int count) {
  return card * count + gap * (count - 1);
}

int toTwips(int tenths) {
  return static_cast<int>(std::lround(tenths * 1440 / tenthsPerInch));
}

/// The number as text that sorts as the number does: in front of each group of digits stands how many there
/// are.
QString sortKey(const QString& number) {
  const QString folded = number.toCaseFolded();
  QString key;
  for (qsizetype at = 0; at < folded.size();) {
    qsizetype end = at;
    while (end < folded.size() && folded[end].isDigit()) ++end;
    if (end == at) {
      key += folded[at++];
      continue;
    }
    while (at + 1 < end && folded[at] == u'0') ++at;
    key += QChar(static_cast<char16_t>(end - at));
    key += QStringView(folded).mid(at, end - at);
    at = end;
  }
  return key;
}

}  // namespace

int CardSheet::sheetsFor(int cards) const {
  return cards == 0 ? 0 : (start - 1 + cards + places - 1) / places;
}

QSize CardSheet::step() {
  return card::size + QSize(gap, gap);
}

QRect CardSheet::box(int place) const {
  const int column = (place - 1) % columns;
  const int row = (place - 1) / columns;
  const QPoint corner((paperSize.width() - blockLength(card::size.width(), columns)) / 2 + toTwips(right),
                      (paperSize.height() - blockLength(card::size.height(), rows)) / 2 + toTwips(down));
  return {corner + QPoint(column * step().width(), row * step().height()), card::size};
}

std::vector<QRect> CardSheet::cutLines() const {
  const QRect first = box(1);
  const QRect last = box(places);
  const QRect block(first.topLeft(), last.bottomRight());
  const int rightEdge = block.left() + block.width();
  const int lowerEdge = block.top() + block.height();
  std::vector<QRect> lines;
  const auto addDown = [&](int x) {
    lines.emplace_back(x, block.top() - markDistance - markLength, 0, markLength);
    lines.emplace_back(x, lowerEdge + markDistance, 0, markLength);
  };
  const auto addAcross = [&](int y) {
    lines.emplace_back(block.left() - markDistance - markLength, y, markLength, 0);
    lines.emplace_back(rightEdge + markDistance, y, markLength, 0);
  };
  for (int column = 0; column < columns; ++column) {
    const int left = first.left() + column * step().width();
    addDown(left);
    addDown(left + first.width());
  }
  for (int row = 0; row < rows; ++row) {
    const int top = first.top() + row * step().height();
    addAcross(top);
    addAcross(top + first.height());
  }
  return lines;
}

std::shared_ptr<clsEmployeeSet> arranged(const clsEmployeeSet& picked, CardSheet::Order order) {
  std::vector<std::pair<QString, std::shared_ptr<clsEmployee>>> members;
  for (const auto& employee : picked) members.emplace_back(sortKey(employee->ENUMBER()), employee);
  std::reverse(members.begin(), members.end());
  if (order == CardSheet::Order::ByNumber) {
    std::stable_sort(members.begin(), members.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
  }
  auto set = std::make_shared<clsEmployeeSet>();
  for (const auto& [key, employee] : members) std::ignore = set->Add(employee);
  return set;
}
