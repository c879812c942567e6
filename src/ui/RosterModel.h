#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "exchange/RosterLine.h"

/// The checked lines of a roster as rows: where the line stands, what it says, and what becomes of it.
class RosterModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Replaces all rows.
  void setLines(std::vector<RosterLine> lines);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<RosterLine> m_lines;
};
