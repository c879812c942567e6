#include "preview/PaperFit.h"

#include <algorithm>

#include "graphics/Twips.h"

namespace preview {

namespace {

constexpr double hundredthsPerInch = 2540;
constexpr int hundredthsPerMillimetre = 100;
/// Queues round their papers to whole points.
constexpr int slack = hundredthsPerMillimetre;

QSize upright(QSize size) {
  return size.width() <= size.height() ? size : size.transposed();
}

int areaOf(const spooler::Paper& paper) {
  return paper.size.width() * paper.size.height();
}

}  // namespace

QSize paperSizeOf(QSize twips) {
  return (QSizeF(twips) * (hundredthsPerInch / graphics::twipsPerInch)).toSize();
}

bool isSamePaper(QSize page, QSize paper) {
  const QSize difference = upright(page) - upright(paper);
  return std::abs(difference.width()) <= slack && std::abs(difference.height()) <= slack;
}

bool fitsPaper(QSize page, QSize paper) {
  const QSize room = upright(paper) + QSize(slack, slack);
  return upright(page).width() <= room.width() && upright(page).height() <= room.height();
}

int bestPaper(const spooler::Details& queue, QSize page) {
  const auto& papers = queue.papers;
  const auto placeOf = [&papers](auto found) { return static_cast<int>(found - papers.begin()); };
  const auto same = std::find_if(papers.begin(), papers.end(),
                                 [page](const auto& paper) { return isSamePaper(page, paper.size); });
  if (same != papers.end()) return placeOf(same);
  const auto usual = std::find_if(papers.begin(), papers.end(),
                                  [&queue](const auto& paper) { return paper.media == queue.defaultMedia; });
  if (usual != papers.end() && fitsPaper(page, usual->size)) return placeOf(usual);
  auto smallest = papers.end();
  for (auto paper = papers.begin(); paper != papers.end(); ++paper) {
    if (!fitsPaper(page, paper->size)) continue;
    if (smallest == papers.end() || areaOf(*paper) < areaOf(*smallest)) smallest = paper;
  }
  if (smallest != papers.end()) return placeOf(smallest);
  if (usual != papers.end()) return placeOf(usual);
  return papers.empty() ? -1 : 0;
}

QString sizeText(QSize size) {
  const auto millimetres = [](int hundredths) { return qRound(1.0 * hundredths / hundredthsPerMillimetre); };
  return QStringLiteral("%1 × %2 毫米").arg(millimetres(size.width())).arg(millimetres(size.height()));
}

QString paperText(const spooler::Paper& paper) {
  // "iso_a4_210x297mm": who named it, its name, its size.
  const QStringList parts = paper.media.split(QLatin1Char('_'));
  QString name = parts.size() == 3 ? parts[1] : paper.media;
  if (!name.isEmpty()) name[0] = name[0].toUpper();
  return name + QStringLiteral("（") + sizeText(paper.size) + QStringLiteral("）");
}

}  // namespace preview
