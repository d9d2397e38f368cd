#include "desktop/table_model.h"

#include <QBrush>
#include <QColor>

#include "desktop/qt_text.h"

namespace kestra {

int TableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : std::max(0, rows_ - table_.fixedRows());
}

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : std::max(0, columns_ - table_.fixedColumns());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  const CellPosition at = positionOf(index);
  const bool faulty = table_.fault() && table_.fault()->at == at;
  switch (role) {
    case Qt::DisplayRole:
      return shown(table_.cell(at.row, at.column));
    case Qt::TextAlignmentRole:
      if (table_.centred(at.column)) return QVariant(Qt::AlignCenter);
      return QVariant((table_.rightAligned(at.column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ToolTipRole:
      return faulty ? QVariant(shown(table_.fault()->message)) : QVariant();
    case Qt::BackgroundRole:
      return faulty ? QVariant(QBrush(QColor(220, 60, 60, 90))) : QVariant();
    case Qt::AccessibleTextRole:
      return shown(table_.cell(at.row, at.column));
    default:
      return {};
  }
}

namespace {

// A long heading in lines.
QString wrapped(const QString& heading) {
  constexpr qsizetype kLine = 16;
  QString lines;
  qsizetype length = 0;
  for (const QString& word : heading.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const bool breaks = length > 0 && length + 1 + word.size() > kLine;
    if (!lines.isEmpty()) lines += breaks ? QLatin1Char('\n') : QLatin1Char(' ');
    length = (breaks || length == 0 ? 0 : length + 1) + word.size();
    lines += word;
  }
  return lines;
}

}  // namespace

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  QStringList lines;
  if (orientation == Qt::Horizontal) {
    for (int row = 0; row < table_.fixedRows(); ++row)
      lines.append(wrapped(shown(table_.cell(row, section + table_.fixedColumns()))));
  } else {
    for (int column = 0; column < table_.fixedColumns(); ++column)
      lines.append(shown(table_.cell(section + table_.fixedRows(), column)));
  }
  return lines.join(QLatin1Char('\n'));
}

void TableModel::refresh() {
  if (rows_ != table_.rows() || columns_ != table_.columns()) {
    beginResetModel();
    rows_ = table_.rows();
    columns_ = table_.columns();
    endResetModel();
    return;
  }
  if (rowCount() == 0 || columnCount() == 0) return;
  emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

QModelIndex TableModel::indexOf(CellPosition at) const {
  return index(at.row - table_.fixedRows(), at.column - table_.fixedColumns());
}

CellPosition TableModel::positionOf(const QModelIndex& index) const {
  return {index.row() + table_.fixedRows(), index.column() + table_.fixedColumns()};
}

}  // namespace kestra
