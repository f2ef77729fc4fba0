#include "platform/widgets/Grid.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FilteredEdit.h"

namespace {

constexpr int cellPadding = 16;  ///< around a text, in the width and in the height

/// The colour of the open cell: pale yellow, or as much yellow as a dark base bears.
QColor openColour(const QColor& base) {
    const QColor yellow(255, 222, 89);
    constexpr double share = 0.22;
    const auto mixed = [](int one, int other) { return int(one * (1 - share) + other * share); };
    return {mixed(base.red(), yellow.red()), mixed(base.green(), yellow.green()), mixed(base.blue(), yellow.blue())};
}

}  // namespace

Grid::Grid(std::vector<GridColumn> columns, QWidget* parent)
    : QTableView(parent),
      model_(new GridModel(std::move(columns), this)),
      text_(new FilteredEdit(viewport())),
      choice_(new ChoiceBox(ChoiceBox::FreeText, viewport())) {
    for (int column = 0; column < model_->columnCount(); ++column)
        if (model_->columns()[size_t(column)].cells != GridColumn::Cells::Shown) editable_.push_back(column);
    setModel(model_);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setSelectionBehavior(SelectRows);
    setSelectionMode(editable_.empty() ? SingleSelection : NoSelection);
    setUpHeaders();
    setUpEditors();
    if (!editable_.empty()) return;
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& at) { Q_EMIT rowPicked(at.row()); });
}

void Grid::setUpHeaders() {
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    for (int column = 0; column < model_->columnCount(); ++column) {
        const GridColumn& about = model_->columns()[size_t(column)];
        const QFontMetrics metrics = fontMetrics();
        const int content = metrics.horizontalAdvance(u'0') * about.characters;
        setColumnWidth(column, std::max(content, metrics.horizontalAdvance(about.caption)) + cellPadding);
        if (about.stretches) stretching_ = column;
    }
    if (stretching_ >= 0) leastWidth_ = columnWidth(stretching_);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    const int height = std::max(choice_->sizeHint().height(), fontMetrics().height() + cellPadding * 3 / 4);
    verticalHeader()->setDefaultSectionSize(height);
    horizontalHeader()->setFixedHeight(height);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setVisible(!editable_.empty());
    verticalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(verticalHeader(), &QHeaderView::sectionClicked, this,
            [this](int row) { setCurrentCell(row, editable_.empty() ? 0 : editable_.front()); });
    connect(verticalHeader(), &QWidget::customContextMenuRequested, this, [this](const QPoint& place) {
        askForMenu(verticalHeader()->logicalIndexAt(place), verticalHeader()->viewport()->mapToGlobal(place));
    });
}

void Grid::setUpEditors() {
    text_->setFrame(false);
    text_->setTextMargins(1, 0, 1, 0);
    connect(text_, &QLineEdit::textEdited, this, &Grid::takeEdit);
    connect(choice_, &ChoiceBox::edited, this, &Grid::takeEdit);
    for (QWidget* box : {static_cast<QWidget*>(text_), static_cast<QWidget*>(choice_)}) {
        box->hide();
        box->setContextMenuPolicy(Qt::DefaultContextMenu);
        box->installEventFilter(this);
    }
    choice_->lineEdit()->installEventFilter(this);
    colourEditors();
}

void Grid::colourEditors() {
    QPalette colours = palette();
    colours.setColor(QPalette::Base, openColour(colours.color(QPalette::Base)));
    text_->setPalette(colours);
    choice_->lineEdit()->setPalette(colours);
}

void Grid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) colourEditors();
}

void Grid::setRows(std::vector<GridRow> rows) {
    closeEditor();
    model_->setRows(std::move(rows));
}

void Grid::setText(int row, int column, const QString& text) {
    model_->setText(row, column, text);
    if (editor_ && currentIndex() == model_->index(row, column)) fillEditor();
}

void Grid::insertRow(int row) {
    settle();
    closeEditor();
    {
        const QScopedValueRollback changing(changing_, true);
        model_->insert(row);
        setCurrentIndex({});
    }
    setCurrentCell(row, editable_.empty() ? 0 : editable_.front());
}

void Grid::removeRow(int row) {
    const int column = std::max(0, currentIndex().column());
    closeEditor();
    {
        const QScopedValueRollback changing(changing_, true);
        setCurrentIndex({});
        model_->remove(row);
    }
    if (model_->rowCount() > 0) setCurrentCell(std::min(row, model_->rowCount() - 1), column);
}

void Grid::setChoices(int column, const QStringList& choices) {
    choices_[column] = choices;
    if (editor_ == choice_) fillEditor();
}

void Grid::setEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

void Grid::setCurrentCell(int row, int column) { setCurrentIndex(model_->index(row, column)); }

void Grid::settle() {
    if (!editor_) return;
    leave(currentIndex());
    entered_ = text(currentIndex().row(), currentIndex().column());
}

QWidget* Grid::editorOf(const QModelIndex& index) const {
    if (!index.isValid()) return nullptr;
    switch (model_->columns()[size_t(index.column())].cells) {
        case GridColumn::Cells::Text: return text_;
        case GridColumn::Cells::Choice: return choice_;
        case GridColumn::Cells::Shown: break;
    }
    return nullptr;
}

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    if (!changing_) leave(previous);
    QTableView::currentChanged(current, previous);
    if (!changing_) enter(current);
}

/// Opens the cell. The focus goes into it when it was in the grid.
void Grid::enter(const QModelIndex& index) {
    QWidget* before = editor_;
    const bool focused = holdsFocus();
    editor_ = editorOf(index);
    if (!editor_) return closeEditor();
    entered_ = text(index.row(), index.column());
    fillEditor();
    placeEditor();
    editor_->show();
    setFocusProxy(editor_);
    if (focused) editor_->setFocus(Qt::OtherFocusReason);
    if (before && before != editor_) before->hide();
    putCaretAtEnd();
    Q_EMIT cellEntered(index.row(), index.column());
}

/// Also while the window itself is not the active one.
bool Grid::holdsFocus() const {
    const QWidget* focus = window()->focusWidget();
    return focus && (focus == this || isAncestorOf(focus));
}

void Grid::leave(const QModelIndex& index) {
    if (editor_ && index.isValid()) Q_EMIT cellLeft(index.row(), index.column());
}

void Grid::closeEditor() {
    const bool focused = holdsFocus();
    editor_ = nullptr;
    setFocusProxy(nullptr);
    if (focused) setFocus(Qt::OtherFocusReason);
    text_->hide();
    choice_->hide();
}

void Grid::fillEditor() {
    const QModelIndex index = currentIndex();
    const GridColumn& about = model_->columns()[size_t(index.column())];
    const QString shown = text(index.row(), index.column());
    editor_->setAccessibleName(about.caption);
    if (editor_ == text_) {
        text_->setKeyFilter(about.filter);
        text_->setMaxLength(about.maxLength);
        text_->setAlignment(about.alignment | Qt::AlignVCenter);
        text_->setText(shown);
    } else {
        choice_->setText({});
        choice_->setEntries(choices_.value(index.column()));
        choice_->setLimits(about.filter, about.maxLength);
        choice_->setText(shown);
    }
}

void Grid::placeEditor() {
    if (editor_) editor_->setGeometry(visualRect(currentIndex()));
}

void Grid::putCaretAtEnd() {
    if (!editor_) return;
    QLineEdit* box = editor_ == text_ ? text_ : choice_->lineEdit();
    box->end(false);
}

/// The column that stretches never gets narrower than it was made: the grid scrolls instead.
void Grid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (stretching_ < 0) return;
    const int others = horizontalHeader()->length() - columnWidth(stretching_);
    setColumnWidth(stretching_, std::max(leastWidth_, viewport()->width() - others));
}

void Grid::updateGeometries() {
    QTableView::updateGeometries();
    placeEditor();
}

void Grid::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    placeEditor();
}

void Grid::takeEdit(const QString& text) {
    if (sender() != editor_) return;
    const QModelIndex index = currentIndex();
    scrollTo(index);
    model_->setText(index.row(), index.column(), text);
    Q_EMIT cellEdited(index.row(), index.column());
}

void Grid::restore() {
    const QModelIndex index = currentIndex();
    setText(index.row(), index.column(), entered_);
    putCaretAtEnd();
    Q_EMIT cellRestored(index.row(), index.column());
}

bool Grid::goTo(int row, int column) {
    if (row < 0 || row >= model_->rowCount()) return false;
    setCurrentCell(row, column);
    return true;
}

/// To the editable cell before or behind. False at either end of the grid.
bool Grid::goOn(int direction) {
    const QModelIndex index = currentIndex();
    const auto at = std::find(editable_.begin(), editable_.end(), index.column());
    if (direction > 0 ? at + 1 != editable_.end() : at != editable_.begin())
        return goTo(index.row(), *(at + direction));
    return goTo(index.row() + direction, direction > 0 ? editable_.front() : editable_.back());
}

bool Grid::handleKey(const QKeyEvent& event) {
    const bool changesTab = event.modifiers() & Qt::ControlModifier;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!goOn(1)) settle();
            return true;
        case Qt::Key_Tab: return !changesTab && goOn(1);
        case Qt::Key_Backtab: return !changesTab && goOn(-1);
        case Qt::Key_Escape:
            if (text(currentIndex().row(), currentIndex().column()) == entered_) return false;
            restore();
            return true;
        default: return editor_ == text_ && handleTextKey(event);
    }
}

/// The keys that mean something else in a list.
bool Grid::handleTextKey(const QKeyEvent& event) {
    const bool moves = !(event.modifiers() & ~Qt::KeypadModifier) && !text_->hasSelectedText();
    const QModelIndex index = currentIndex();
    switch (event.key()) {
        case Qt::Key_Up: return goTo(index.row() - 1, index.column()) || true;
        case Qt::Key_Down: return goTo(index.row() + 1, index.column()) || true;
        case Qt::Key_Left: return moves && text_->cursorPosition() == 0 && goOn(-1);
        case Qt::Key_Right: return moves && text_->cursorPosition() == text_->text().size() && goOn(1);
        case Qt::Key_PageUp: return goTo(moveCursor(MovePageUp, {}).row(), index.column()) || true;
        case Qt::Key_PageDown: return goTo(moveCursor(MovePageDown, {}).row(), index.column()) || true;
        default: return false;
    }
}

/// A box selects its text when the focus comes; in a cell the caret stands at the end instead.
bool Grid::takeFocus(QObject* editor, const QFocusEvent& event) {
    const bool comesBack = event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason ||
                           event.reason() == Qt::MenuBarFocusReason;
    if (comesBack) return false;
    QFocusEvent quiet(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(editor, &quiet);
    putCaretAtEnd();
    return true;
}

bool Grid::eventFilter(QObject* watched, QEvent* event) {
    if (!editor_ || (watched != editor_ && watched != choice_->lineEdit()))
        return QTableView::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::KeyPress: return handleKey(*static_cast<QKeyEvent*>(event));
        case QEvent::ContextMenu:
            askForMenu(currentIndex().row(), static_cast<QContextMenuEvent*>(event)->globalPos());
            return true;
        case QEvent::FocusIn: return takeFocus(watched, *static_cast<QFocusEvent*>(event));
        case QEvent::FocusOut:
            if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) settle();
            break;
        default: break;
    }
    return QTableView::eventFilter(watched, event);
}

void Grid::keyPressEvent(QKeyEvent* event) {
    const bool picks = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!picks) return QTableView::keyPressEvent(event);
    if (editable_.empty() && currentIndex().isValid()) Q_EMIT rowPicked(currentIndex().row());
}

void Grid::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    askForMenu(byKey ? currentIndex().row() : rowAt(event->pos().y()), event->globalPos());
}

/// The row under the pointer becomes the current one, unless it is one of several that are selected.
void Grid::askForMenu(int row, const QPoint& global) {
    if (row >= 0 && row != currentIndex().row() && !selectionModel()->isRowSelected(row)) {
        const int column = currentIndex().isValid() || editable_.empty() ? currentIndex().column() : editable_.front();
        setCurrentCell(row, std::max(0, column));
    }
    Q_EMIT menuWanted(global);
}

void Grid::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (model_->rowCount() > 0 || emptyText_.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(cellPadding, cellPadding, -cellPadding, -cellPadding),
                     Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}
