#include "preview/PageCopy.h"

#include <algorithm>
#include <map>
#include <set>

#include "graphics/Twips.h"
#include "preview/PageImage.h"

namespace preview {

namespace {

constexpr double dotsPerInch = 200;

/// The left edges of all cells of a page: the columns of its table.
std::vector<int> columnsOf(const std::vector<report::PageText>& texts) {
  std::set<int> lefts;
  for (const report::PageText& text : texts) {
    if (text.cell) lefts.insert(text.box.left());
  }
  return {lefts.begin(), lefts.end()};
}

QString oneLine(QString text) {
  for (QChar& character : text) {
    if (character.category() == QChar::Other_Control) character = QLatin1Char(' ');
  }
  return text;
}

qsizetype placeOf(const report::PageText& text, const std::vector<int>& columns, qsizetype filled) {
  if (!text.cell) return filled;
  return std::lower_bound(columns.begin(), columns.end(), text.box.left()) - columns.begin();
}

QString lineOf(std::vector<report::PageText> line, const std::vector<int>& columns) {
  std::stable_sort(line.begin(), line.end(), [](const report::PageText& a, const report::PageText& b) {
    return a.box.left() < b.box.left();
  });
  QStringList fields;
  for (const report::PageText& text : line) {
    if (text.text.isEmpty()) continue;
    while (fields.size() < placeOf(text, columns, fields.size())) fields.append(QString());
    fields.append(oneLine(text.text));
  }
  return fields.join(QLatin1Char('\t'));
}

QImage pictureOf(const report::Document& document, int index) {
  report::DecodingPictureSource pictures;
  const QSizeF inches = QSizeF(document.paperSize()) / graphics::twipsPerInch;
  return pageImage(document, index, (inches * dotsPerInch).toSize(), pictures);
}

}  // namespace

QString linesOf(std::vector<report::PageText> texts) {
  const std::vector<int> columns = columnsOf(texts);
  std::map<int, std::vector<report::PageText>> byTop;
  for (report::PageText& text : texts) byTop[text.box.top()].push_back(std::move(text));
  QString lines;
  for (const auto& [top, line] : byTop) {
    const QString text = lineOf(line, columns);
    // An empty line of a table is a line all the same: those below keep their places.
    if (!text.isEmpty() || line.front().cell) lines += text + QLatin1Char('\n');
  }
  return lines;
}

std::unique_ptr<QMimeData> pageCopy(const report::Document& document, int index) {
  auto data = std::make_unique<QMimeData>();
  data->setText(linesOf(document.texts(index)));
  data->setImageData(pictureOf(document, index));
  return data;
}

}  // namespace preview
