#include "schedule/GamesPane.h"

#include <QVBoxLayout>

#include "platform/widgets/FormLayout.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/Program.h"
#include "shell/SearchRow.h"

namespace {

PaneText withDivisions(PaneText text) {
    text.searchCaption = GamesPane::tr("D&ivision");
    text.listQuery = "SELECT *, ([DivName]) as Name FROM tblDivision WHERE [DeletedFlag] = False ORDER BY [DivName]";
    return text;
}

}  // namespace

GamesPane::GamesPane(Program& program, PaneText text, Orders orders)
    : ScreenPane(program, withDivisions(std::move(text)), orders),
      row_(new SearchRow(ScreenPane::text(), this)),
      divisions_(program.store) {
    connect(row_, &SearchRow::said, this, &GamesPane::said);
    connect(row_, &SearchRow::stepped, this, [this](int index) { show(index, Shown::Picked); });
    connect(row_, &SearchRow::picked, this, [this](int index) {
        Q_EMIT said({});
        show(index, Shown::Picked);
    });
}

void GamesPane::place(QWidget* content) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    column->setSpacing(spacing::group);
    column->addWidget(row_);
    column->addWidget(content, 1);
}

datafile::Database GamesPane::database() const { return program().store.database(); }

datafile::Recordset GamesPane::teams() const {
    return database().openRecordset("SELECT [TeamId], ([TeamName]) as Name FROM tblTeam WHERE [DivisionId] = " +
                                    QString::number(divisionId_) + "  AND [DeletedFlag] = False ORDER BY [TeamName]");
}

void GamesPane::sawChanges() { seenChanges_ = database().changes(); }

void GamesPane::setEditing(bool editing) {
    row_->setLocked(editing);
    ScreenPane::setEditing(editing);
}

void GamesPane::show(int index, Shown how) {
    row_->list().setCurrentIndex(index);
    division_ = row_->list().entryAt(index);
    divisionId_ = index >= 0 && divisions_.FindDivRecord(division_, false, true) ? divisions_.DivId() : 0;
    showDivision(how);
    setEditing(false);
    sawChanges();
}

void GamesPane::showEvent(QShowEvent* event) {
    ScreenPane::showEvent(event);
    catchUp();
}

void GamesPane::catchUp() {
    if (isEditing() || database().changes() == seenChanges_) return;
    row_->read(database(), text().listQuery);
    const int index = row_->list().indexOf(division_);
    if (index >= 0 && divisionId_ != 0) return show(index, Shown::Again);
    show(row_->list().entryCount() > 0 ? 0 : -1, Shown::Anew);
}

void GamesPane::dropEdits() { show(row_->list().currentIndex(), Shown::Anew); }

void GamesPane::cancel() {
    Q_EMIT said({});
    dropEdits();
    focusSearch();
}

void GamesPane::refresh() {
    Q_EMIT said({});
    row_->read(database(), text().listQuery);
    const int index = row_->list().indexOf(division_);
    show(index < 0 && row_->list().entryCount() > 0 ? 0 : index, Shown::Anew);
}

bool GamesPane::offerToSave(const QString& question, const QString& title) {
    if (!isEditing()) return true;
    if (program().dialogs().ask(title.isEmpty() ? tr("Save Record?") : title,
                                question.isEmpty() ? tr("Save the current record?") : question))
        return save();
    dropEdits();
    return true;
}

bool GamesPane::offerToSaveBeforeClosing() { return offerToSave(); }

void GamesPane::focusSearch() {
    if (row_->list().isEnabled()) row_->list().setFocus(Qt::TabFocusReason);
}
