#include "preview/PageTextBoxes.h"

#include <algorithm>

#include <QFontMetricsF>

namespace preview {

namespace {

std::vector<report::TextPrimitive> drawnTexts(const report::Document& document, int page) {
  std::vector<report::TextPrimitive> drawn;
  for (report::Primitive& primitive : document.page(page)) {
    if (auto* text = std::get_if<report::TextPrimitive>(&primitive.shape)) drawn.push_back(std::move(*text));
  }
  return drawn;
}

/// The box of the characters from `from` to `to` of a line.
QRectF boxOf(const report::TextPrimitive& line, int from, int to) {
  const QFontMetricsF metrics(graphics::twipFont(line.font));
  const auto widthTo = [&](int end) { return metrics.horizontalAdvance(line.text.left(end)); };
  const double spare = line.box.width() - metrics.horizontalAdvance(line.text);
  double left = line.box.left();
  if (line.alignment & Qt::AlignHCenter) left += spare / 2;
  if (line.alignment & Qt::AlignRight) left += spare;
  const double height = std::min(metrics.height(), line.box.height());
  double top = line.box.top();
  if (line.alignment & Qt::AlignVCenter) top += (line.box.height() - height) / 2;
  if (line.alignment & Qt::AlignBottom) top += line.box.height() - height;
  return {left + widthTo(from), top, widthTo(to) - widthTo(from), height};
}

}  // namespace

PageTextBoxes::PageTextBoxes(const report::Document& document, int page) {
  const std::vector<report::TextPrimitive> drawn = drawnTexts(document, page);
  auto next = drawn.begin();
  for (const report::PageText& text : document.texts(page)) {
    std::vector<Line>& lines = m_lines.emplace_back();
    int start = 0;
    // Lines are drawn in the order of their texts, each inside the box of its own.
    while (!text.text.isEmpty() && start < text.text.size() && next != drawn.end() &&
           QRectF(text.box).contains(next->box.center())) {
      start = std::max<int>(start, static_cast<int>(text.text.indexOf(next->text, start)));
      lines.push_back({*next, start});
      start += static_cast<int>(next->text.size());
      ++next;
    }
  }
}

std::vector<QRectF> PageTextBoxes::boxesOf(const report::TextHit& hit, int length) const {
  std::vector<QRectF> boxes;
  const std::vector<Line>& lines = m_lines.at(static_cast<std::size_t>(hit.text));
  for (const Line& line : lines) {
    const int size = static_cast<int>(line.drawn.text.size());
    const int from = std::max(0, hit.at - line.start);
    const int to = std::min(size, hit.at + length - line.start);
    if (from < to) boxes.push_back(boxOf(line.drawn, from, to));
  }
  if (boxes.empty() && !lines.empty()) {
    const int size = static_cast<int>(lines.back().drawn.text.size());
    boxes.push_back(boxOf(lines.back().drawn, std::max(0, size - 1), size));
  }
  return boxes;
}

}  // namespace preview
