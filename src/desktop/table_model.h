#pragma once

#include <QAbstractTableModel>

#include "controls/table.h"

namespace kestra {

// A table's cells for a view. Heading rows and columns are the view's headings, so that they stay when it scrolls.
class TableModel : public QAbstractTableModel {
 public:
  explicit TableModel(const Table& table) : table_(table), rows_(table.rows()), columns_(table.columns()) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  void refresh();  // cells or the size of the table have changed

  QModelIndex indexOf(CellPosition at) const;  // invalid for a heading
  CellPosition positionOf(const QModelIndex& index) const;

 private:
  const Table& table_;
  int rows_;
  int columns_;
};

}  // namespace kestra
