#include "ui/RecordListModel.h"

void RecordListModel::clear() {
  setHeaders({});
}

void RecordListModel::setHeaders(const QStringList& headers) {
  beginResetModel();
  m_rows.clear();
  m_headers = headers;
  endResetModel();
}

void RecordListModel::append(const QString& key, const QStringList& cells) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  m_rows.push_back({key, cells});
  endInsertRows();
}

void RecordListModel::removeAt(int row) {
  beginRemoveRows({}, row, row);
  m_rows.erase(m_rows.begin() + row);
  endRemoveRows();
}

int RecordListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int RecordListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_headers.size());
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  return m_rows[static_cast<std::size_t>(index.row())].cells.value(index.column());
}

QVariant RecordListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return role == Qt::DisplayRole ? m_headers.value(section) : QVariant();
}
