#include "preview/PageRange.h"

#include <algorithm>
#include <set>

#include <QRegularExpression>

namespace preview {

namespace {

/// First and last page as they are written, from 1.
struct Span {
  int first;
  int last;
};

std::optional<Span> spanOf(const QString& part, int pageCount) {
  static const QRegularExpression span(
      QStringLiteral("^\\s*(\\d{0,9})\\s*([-~\u2013\u2014至到]?)\\s*(\\d{0,9})\\s*$"));
  const auto match = span.match(part);
  const QString first = match.captured(1);
  const QString last = match.captured(3);
  if (!match.hasMatch() || (first.isEmpty() && last.isEmpty())) return std::nullopt;
  if (match.captured(2).isEmpty()) return Span{part.toInt(), part.toInt()};
  return Span{first.isEmpty() ? 1 : first.toInt(), last.isEmpty() ? pageCount : last.toInt()};
}

}  // namespace

std::optional<std::vector<int>> pagesOfRange(const QString& text, int pageCount) {
  static const QRegularExpression separator(QStringLiteral("[,;、]"));
  std::set<int> pages;
  for (const QString& part : text.normalized(QString::NormalizationForm_KC).split(separator)) {
    const std::optional<Span> span = spanOf(part, pageCount);
    if (!span || span->first == 0 || span->last == 0) return std::nullopt;
    const auto [low, high] = std::minmax(span->first, span->last);
    for (int page = low; page <= std::min(high, pageCount); ++page) pages.insert(page - 1);
  }
  return std::vector<int>(pages.begin(), pages.end());
}

}  // namespace preview
