#include "platform/widgets/GridModel.h"

GridModel::GridModel(std::vector<GridColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns)) {}

void GridModel::setRows(std::vector<GridRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

QString GridModel::text(int row, int column) const { return rows_[size_t(row)].cells.value(column); }

void GridModel::setText(int row, int column, const QString& text) {
    QStringList& cells = rows_[size_t(row)].cells;
    while (cells.size() <= column) cells << QString();
    if (cells[column] == text) return;
    cells[column] = text;
    const QModelIndex changed = index(row, column);
    Q_EMIT dataChanged(changed, changed, {Qt::DisplayRole});
}

void GridModel::insert(int row) {
    beginInsertRows({}, row, row);
    rows_.insert(rows_.begin() + row, GridRow());
    endInsertRows();
}

void GridModel::remove(int row) {
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(rows_.size()); }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(columns_.size()); }

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole) return text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole) return int(columns_[size_t(index.column())].alignment | Qt::AlignVCenter);
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool isColumn = orientation == Qt::Horizontal;
    if (role == Qt::DisplayRole) return isColumn ? QVariant(columns_[size_t(section)].caption) : QVariant(section + 1);
    if (role == Qt::TextAlignmentRole)
        return int((isColumn ? columns_[size_t(section)].alignment : Qt::AlignRight) | Qt::AlignVCenter);
    return {};
}
