#include "shell/RecordPane.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include "platform/text/Collation.h"
#include "platform/widgets/Form.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/Program.h"
#include "shell/SearchRow.h"

RecordPane::RecordPane(Program& program, PaneText text) : program_(program), text_(std::move(text)) {}

void RecordPane::start(RecordClass& record, Form* form, QWidget* before) {
    record_ = &record;
    form_ = form;
    QVBoxLayout* layout = makeLayout();
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    row_ = new SearchRow(text_.searchCaption, text_.searchName, text_.moveName, text_.searchCharacters, this);
    auto* rows = new ColumnRow(this);
    if (before) rows->addColumn(before, 0);
    rows->addColumn(row_, 1);
    layout->addWidget(rows);
    layout->addWidget(form_, 1);
    connect(row_, &SearchRow::picked, this, &RecordPane::pick);
    connect(row_, &SearchRow::stepped, this, [this](int index) {
        Q_EMIT said({});
        show(index);
    });
    connect(row_, &SearchRow::ended, this, &RecordPane::sayEnd);
    connect(form_, &Form::changed, this, &RecordPane::beginEditing);
    showFirst();
}

QVBoxLayout* RecordPane::makeLayout() {
    if (text_.leastFormHeight == 0) return new QVBoxLayout(this);
    form_->setMinimumHeight(text_.leastFormHeight);
    auto* outside = new QVBoxLayout(this);
    outside->setContentsMargins({});
    auto* content = new QWidget(this);
    outside->addWidget(scrollArea(content, this));
    return new QVBoxLayout(content);
}

void RecordPane::showFirst() {
    readList();
    show(search().entryCount() > 0 ? 0 : -1);
}

SearchCombo& RecordPane::search() const { return row_->list(); }

bool RecordPane::hasRecord() const { return search().currentIndex() >= 0; }

std::vector<QString> RecordPane::readEntries() const {
    const datafile::Database database = program_.store.workspace.openDatabase(program_.store.dataFilePath);
    std::vector<QString> entries = database.readList(text_.listQuery, QStringLiteral("Name"));
    placeAccented(entries);
    return entries;
}

/// The reading itself may fill a work table.
void RecordPane::readList() {
    search().setEntries(readEntries());
    noteChanges();
}

void RecordPane::noteChanges() {
    seenChanges_ = program_.store.workspace.openDatabase(program_.store.dataFilePath).changes();
}

void RecordPane::beginEditing() {
    if (!form_->isLoading()) setEditing(true);
}

void RecordPane::setEditing(bool editing) {
    editing_ = editing;
    row_->setWaiting(editing);
    Q_EMIT stateChanged();
}

void RecordPane::focusSearch() {
    if (search().isEnabled()) search().setFocus(Qt::TabFocusReason);
}

void RecordPane::sayEnd(bool first) {
    const QString& own = first ? text_.atFirst : text_.atLast;
    Q_EMIT said(!own.isEmpty() ? own : first ? tr("First Record") : tr("Last Record"));
}

void RecordPane::pick(int index) {
    const QString wanted = search().entryAt(index);
    if (!offerToSave()) return search().setCurrentIndex(search().indexOf(shownEntry_));
    Q_EMIT said({});
    show(search().indexOf(wanted));
}

void RecordPane::show(int index) {
    const QString wanted = search().entryAt(index);
    if (index >= 0 && !find(wanted)) {
        readList();
        Q_EMIT said(tr("Record \"%1\" is no longer there.").arg(wanted));
        index = search().entryCount() > 0 ? 0 : -1;
        if (index >= 0 && !find(search().entryAt(index))) index = -1;
    }
    if (index < 0) return showBlank();
    search().setCurrentIndex(index);
    shownEntry_ = search().entryAt(index);
    form_->refresh();
    form_->setFieldsEnabled(true);
    shown();
    setEditing(false);
}

void RecordPane::showBlank() {
    search().setCurrentIndex(-1);
    shownEntry_.clear();
    record_->blank();
    record_->setDirty(false);
    record_->setNew(false);
    form_->refresh();
    form_->setFieldsEnabled(false);
    shown();
    setEditing(false);
}

void RecordPane::addNew() {
    beginNew([this] { makeNew(); });
}

void RecordPane::beginNew(const std::function<void()>& blank) {
    Q_EMIT said({});
    search().setCurrentIndex(-1);
    blank();
    form_->refresh();
    form_->setFieldsEnabled(true);
    shown();
    setEditing(true);
    form_->focusField(firstField());
}

bool RecordPane::write() {
    record_->save();
    return !record_->isChanged();
}

/// The save itself, its failure told in a box.
bool RecordPane::writeGuarded(const QString& title) {
    try {
        return write();
    } catch (const datafile::Error& error) {
        program_.dialogs().error(title, error.text());
    } catch (const RecordError& error) {
        program_.dialogs().error(title, error.text());
    }
    return false;
}

bool RecordPane::save() {
    if (!isChanged()) {
        setEditing(false);
        return true;
    }
    std::vector<Finding> findings = check();
    if (const QString unreadable = form_->unreadableField(); !unreadable.isEmpty())
        findings.push_back({unreadable, tr("The date cannot be read.")});
    if (!findings.empty()) {
        QStringList lines;
        for (const Finding& finding : findings) lines << finding.text;
        program_.dialogs().warning(text_.checkTitle, lines.join(u'\n'));
        form_->focusField(findings.front().field);
        return false;
    }
    const QString before = record_->isNew() ? QString() : shownEntry_;
    if (!writeGuarded(tr("The record was not saved"))) return false;
    Q_EMIT said((text_.saved.isEmpty() ? tr("Record \"%1\" Saved.") : text_.saved).arg(name()));
    placeInList(before);
    return true;
}

/// After a save the list takes one entry; it is not read anew. The entry before goes unless its record is still there.
void RecordPane::placeInList(const QString& before) {
    const QString saved = entry();
    const auto drop = [this](const QString& text) {
        if (const int index = search().indexOf(text); index >= 0) search().removeEntry(index);
    };
    if (before != saved) {
        if (!before.isEmpty() && (text_.namesRepeat || !find(before))) drop(before);
        if (!text_.namesRepeat) drop(saved);  // written otherwise, or the record that this one went over
        search().insertEntry(saved, listLess);
    }
    if (!find(saved)) program_.dialogs().warning(tr("Error!"), text_.missingText);
    show(search().indexOf(saved));
    noteChanges();
}

/// Where the row itself is gone, the list says so when it is asked for it again.
void RecordPane::dropEdits() {
    try {
        record_->undo();
    } catch (const datafile::Error&) {
        record_->blank();
        record_->setDirty(false);
    }
}

void RecordPane::cancel() {
    dropEdits();
    Q_EMIT said({});
    show(search().indexOf(shownEntry_));
    focusSearch();
}

void RecordPane::refresh() {
    readChoices();
    cancel();
}

QString RecordPane::deleteQuestion() const {
    return tr("This will permanently delete the current record.\n\nDo you want to continue?");
}

void RecordPane::remove() {
    const int index = search().currentIndex();
    if (index < 0 || !find(search().entryAt(index)) || !mayDelete()) return;
    const QString deleted = deletedName();
    if (!program_.dialogs().ask(tr("Delete Confirmation"), deleteQuestion())) {
        Q_EMIT said(tr("Record \"%1\" NOT Deleted.").arg(deleted));
        return;
    }
    erase();
    search().removeEntry(index);
    show(search().entryCount() == 0 ? -1 : index > 0 ? index - 1 : 0);
    Q_EMIT said(tr("Record \"%1\" Deleted.").arg(deleted));
}

/// After a new record that was not wanted there is none in view.
bool RecordPane::offerToSave(const QString& question, const QString& title) {
    if (!isChanged()) return true;
    if (program_.dialogs().ask(title.isEmpty() ? tr("Save Record?") : title,
                               question.isEmpty() ? tr("Save the current record?") : question))
        return save();
    const QString unsaved = unsavedName();
    const bool wasNew = record_->isNew();
    dropEdits();
    show(wasNew ? -1 : search().indexOf(shownEntry_));
    Q_EMIT said(tr("Record \"%1\" NOT saved.").arg(unsaved));
    return true;
}

bool RecordPane::offerToSaveBeforeClosing() {
    if (!isChanged() || !program_.dialogs().ask(tr("Save Record?"), tr("Save the current record?"))) return true;
    if (!check().empty()) return save();
    try {
        return write();
    } catch (const std::exception& error) {
        program_.dialogs().error(tr("Save Record?"), tr("The following error occurred while attempting to save:") +
                                                         u'\n' + QString::fromUtf8(error.what()));
    }
    return program_.dialogs().ask(tr("Save Record?"), tr("If you continue the current operation, \n"
                                                         "changes to your data will be lost.\n"
                                                         "Do you want to continue anyway?"));
}

void RecordPane::catchUp() {
    const datafile::Database database = program_.store.workspace.openDatabase(program_.store.dataFilePath);
    if (editing_ || database.changes() == seenChanges_) return;
    const QString current = shownEntry_;
    readChoices();
    readList();
    const int index = search().indexOf(current);
    show(index >= 0 ? index : search().entryCount() > 0 ? 0 : -1);
}
