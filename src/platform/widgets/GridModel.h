#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <vector>

#include "platform/widgets/KeyFilter.h"

/// What a grid shows in one column, and how its user edits it.
struct GridColumn {
    enum class Cells { Shown, Text, Choice };  ///< only shown; a text; a text that may come from a list
    QString caption;
    int characters = 10;  ///< its width has room for so many
    Cells cells = Cells::Shown;
    KeyFilter filter{};  ///< of the keys that its cells take
    int maxLength = 0;   ///< 0: without limit
    Qt::Alignment alignment = Qt::AlignLeft;
    bool stretches = false;  ///< takes the width that is left
};

struct GridRow {
    QStringList cells{};
    int id = 0;  ///< the grid's owner knows the row by it; it is not shown
};

/// Rows of texts.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    GridModel(std::vector<GridColumn> columns, QObject* parent);

    const std::vector<GridColumn>& columns() const { return columns_; }
    const std::vector<GridRow>& rows() const { return rows_; }
    void setRows(std::vector<GridRow> rows);
    QString text(int row, int column) const;
    void setText(int row, int column, const QString& text);
    void insert(int row);
    void remove(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<GridColumn> columns_;
    std::vector<GridRow> rows_;
};
