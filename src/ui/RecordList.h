#pragma once

#include <functional>
#include <span>

#include <QTreeView>

#include "ui/RecordListModel.h"

/// A column of the list; the width counts at the screen's resolution.
struct ListColumn {
  QStringView header;
  int twips;
};

/// A list of records in report view: one row a record, several rows may be selected at once.
class RecordList : public QTreeView {
  Q_OBJECT

 public:
  explicit RecordList(QWidget* parent = nullptr);

  /// Removes all column headers and all rows.
  void clearAll();
  /// Starts an empty list with these columns.
  void setColumns(std::span<const ListColumn> columns);
  void addRow(const QString& key, const QStringList& cells) { m_rows.append(key, cells); }
  void removeRow(int row) { m_rows.removeAt(row); }

  [[nodiscard]] int rowCount() const { return m_rows.rowCount(); }
  [[nodiscard]] int selectedCount() const;
  [[nodiscard]] bool isRowSelected(int row) const;
  [[nodiscard]] const QString& key(int row) const { return m_rows.key(row); }
  /// Calls `visit` with every selected row from the last to the first, so that a visit that removes its row
  /// shifts no row still to come.
  void walkSelected(const std::function<void(int row)>& visit) const;

 signals:
  /// A mouse button was released over the list.
  void mouseUp(Qt::MouseButton button, const QPoint& globalPosition);
  /// The selection changed, or rows went.
  void countsChanged();

 protected:
  /// The keyboard's menu key is a right click on the current row; the mouse has its own event.
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  RecordListModel m_rows;
};
