#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QStringList>

/// Rows of records, each with a key and one text a column.
class RecordListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Removes all columns and rows.
  void clear();
  /// Starts an empty list with these headers.
  void setHeaders(const QStringList& headers);
  void append(const QString& key, const QStringList& cells);
  void removeAt(int row);
  [[nodiscard]] const QString& key(int row) const { return m_rows[static_cast<std::size_t>(row)].key; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Row {
    QString key;
    QStringList cells;
  };

  QStringList m_headers;
  std::vector<Row> m_rows;
};
