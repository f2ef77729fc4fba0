#pragma once

#include <QTableView>

#include "platform/widgets/GridModel.h"

class ChoiceBox;
class FilteredEdit;

/// A table of texts. Where columns can be edited it is used like a spreadsheet: the current cell is open, what is
/// typed shows in it at once, and keys lead from cell to cell:
///
///     Enter, Tab             the next cell, from the last one of a row on to the row below
///     Left, Right            at the start or the end of a text: the cell before or behind
///     Up, Down, Page Up ...  another row
///     Escape                 the text with which the cell was entered
///
/// In a cell with a list the arrows choose and move in the text. Where nothing can be edited a row is picked with
/// the mouse or with Enter.
class Grid final : public QTableView {
    Q_OBJECT

public:
    explicit Grid(std::vector<GridColumn> columns, QWidget* parent = nullptr);

    const std::vector<GridRow>& rows() const { return model_->rows(); }
    QString text(int row, int column) const { return model_->text(row, column); }
    /// Puts other rows in. No cell is current afterwards.
    void setRows(std::vector<GridRow> rows);
    /// Puts a text into a cell, which is nobody's edit.
    void setText(int row, int column, const QString& text);
    /// Inserts a blank row before that one and goes to its first cell.
    void insertRow(int row);
    /// Removes a row. Its place in the column is current afterwards, or that of the last row.
    void removeRow(int row);
    /// What the cells of a column choose from.
    void setChoices(int column, const QStringList& choices);
    /// Shown in place of rows where there are none.
    void setEmptyText(const QString& text);
    void setCurrentCell(int row, int column);
    /// The current cell counts as left, and stays current: before what stands in the grid is used.
    void settle();

    /// The boxes that open in a cell.
    FilteredEdit* textBox() const { return text_; }
    ChoiceBox* choiceBox() const { return choice_; }

Q_SIGNALS:
    /// A cell that can be edited has become the current one.
    void cellEntered(int row, int column);
    /// The user changed the text; the rows have it already.
    void cellEdited(int row, int column);
    /// The user took his changes to the cell back.
    void cellRestored(int row, int column);
    /// The cell is left, whether or not it was changed.
    void cellLeft(int row, int column);
    /// A row of a grid in which nothing can be edited.
    void rowPicked(int row);
    /// The user asked for the menu of the current cell's row.
    void menuWanted(const QPoint& global);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpHeaders();
    void setUpEditors();
    void colourEditors();
    QWidget* editorOf(const QModelIndex& index) const;
    void enter(const QModelIndex& index);
    bool holdsFocus() const;
    void leave(const QModelIndex& index);
    void closeEditor();
    void fillEditor();
    void placeEditor();
    void putCaretAtEnd();
    void takeEdit(const QString& text);
    void restore();
    bool takeFocus(QObject* editor, const QFocusEvent& event);
    bool handleKey(const QKeyEvent& event);
    bool handleTextKey(const QKeyEvent& event);
    bool goTo(int row, int column);
    bool goOn(int direction);
    void askForMenu(int row, const QPoint& global);

    GridModel* model_;
    FilteredEdit* text_;
    ChoiceBox* choice_;
    QWidget* editor_ = nullptr;  ///< that of the current cell
    std::vector<int> editable_;  ///< columns
    QHash<int, QStringList> choices_;
    QString entered_;  ///< the current cell's text when it was entered
    QString emptyText_;
    int stretching_ = -1;  ///< the column that takes the width that is left
    int leastWidth_ = 0;   ///< of that column
    bool changing_ = false;  ///< rows come or go
};
