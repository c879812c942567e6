#include "ui/RecordList.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include "graphics/Twips.h"

namespace {

/// Rows with some air between their texts.
class AiryRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, option.fontMetrics.height() / 3);
  }
};

}  // namespace

RecordList::RecordList(QWidget* parent) : QTreeView(parent) {
  setModel(&m_rows);
  setItemDelegate(new AiryRows(this));
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAccessibleName(QStringLiteral("记录列表"));
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  connect(&m_rows, &QAbstractItemModel::rowsRemoved, this, &RecordList::countsChanged);
  connect(&m_rows, &QAbstractItemModel::modelReset, this, &RecordList::countsChanged);
}

void RecordList::clearAll() {
  m_rows.clear();
}

void RecordList::setColumns(std::span<const ListColumn> columns) {
  QStringList headers;
  for (const ListColumn& column : columns) headers.append(column.header.toString());
  m_rows.setHeaders(headers);
  for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
    const int twips = columns[static_cast<std::size_t>(i)].twips;
    header()->resizeSection(i, graphics::twipsToPixels(twips, logicalDpiX()));
  }
}

int RecordList::selectedCount() const {
  int count = 0;
  for (const QItemSelectionRange& range : selectionModel()->selection()) count += range.height();
  return count;
}

bool RecordList::isRowSelected(int row) const {
  return selectionModel()->isRowSelected(row);
}

void RecordList::walkSelected(const std::function<void(int row)>& visit) const {
  for (int row = rowCount() - 1; row >= 0; --row) {
    if (isRowSelected(row)) visit(row);
  }
}

void RecordList::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() != QContextMenuEvent::Keyboard) return;
  const QPoint below = visualRect(currentIndex()).bottomLeft();
  emit mouseUp(Qt::RightButton, viewport()->mapToGlobal(below));
}

void RecordList::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  emit mouseUp(event->button(), event->globalPosition().toPoint());
}

void RecordList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  emit countsChanged();
}
