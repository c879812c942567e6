#include "ui/RosterModel.h"

#include <array>
#include <utility>

#include <QColor>

#include "runtime/DefaultText.h"

namespace {

struct Column {
  QStringView header;
  QString (*text)(const RosterLine& line);
};

/// The date that will be stored; what the file says when it is none.
QString dateOf(const RosterLine& line) {
  return line.entered.isValid() ? runtime::dateTimeText(line.entered) : line.row.date;
}

QString barcodeOf(const RosterLine& line) {
  if (!line.isRight()) return line.row.barcode;
  return line.barcode.isEmpty() ? QStringLiteral("自动生成") : line.barcode;
}

constexpr std::array columns = {
    Column{u"行", [](const RosterLine& line) { return QString::number(line.row.line); }},
    Column{u"编号", [](const RosterLine& line) { return line.row.number; }},
    Column{u"姓名", [](const RosterLine& line) { return line.row.name; }},
    Column{u"部门", [](const RosterLine& line) { return line.row.department; }},
    Column{u"录入日期", dateOf},
    Column{u"条码", barcodeOf},
    Column{u"结果", [](const RosterLine& line) { return line.outcome(); }},
};

const QColor wrongColor(0xb0, 0x00, 0x20);

}  // namespace

void RosterModel::setLines(std::vector<RosterLine> lines) {
  beginResetModel();
  m_lines = std::move(lines);
  endResetModel();
}

int RosterModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int RosterModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant RosterModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const RosterLine& line = m_lines[static_cast<std::size_t>(index.row())];
  if (role == Qt::ForegroundRole && !line.isRight()) return wrongColor;
  if (role == Qt::ToolTipRole) return line.outcome().toHtmlEscaped();
  if (role != Qt::DisplayRole) return {};
  // A text of several lines would make its row higher than the others.
  return columns[static_cast<std::size_t>(index.column())].text(line).simplified();
}

QVariant RosterModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return columns[static_cast<std::size_t>(section)].header.toString();
}
