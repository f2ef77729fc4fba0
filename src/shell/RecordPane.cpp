#include "shell/RecordPane.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include "platform/text/Collation.h"
#include "platform/widgets/Form.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/SearchCombo.h"
#include "platform/widgets/WaitCursor.h"
#include "shell/Program.h"
#include "shell/SearchRow.h"

RecordPane::RecordPane(Program& program, PaneText text, Orders orders) : ScreenPane(program, std::move(text), orders) {}

void RecordPane::start(RecordClass& record, Form* form, QWidget* before) {
    record_ = &record;
    form_ = form;
    QVBoxLayout* layout = makeLayout();
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    row_ = new SearchRow(text(), this);
    search_ = &row_->list();
    auto* rows = new ColumnRow(this);
    if (before) rows->addColumn(before, 0);
    rows->addColumn(row_, 1);
    layout->addWidget(rows);
    layout->addWidget(form_, 1);
    connect(row_, &SearchRow::picked, this, &RecordPane::pick);
    connect(row_, &SearchRow::stepped, this, [this](int index) {
        const WaitCursor wait;
        show(index);
    });
    connect(row_, &SearchRow::said, this, &RecordPane::said);
    connect(form_, &Form::changed, this, &RecordPane::beginEditing);
    showFirst();
}

QVBoxLayout* RecordPane::makeLayout() {
    if (text().leastFormHeight == 0) return new QVBoxLayout(this);
    form_->setMinimumHeight(text().leastFormHeight);
    auto* outside = new QVBoxLayout(this);
    outside->setContentsMargins({});
    auto* content = new QWidget(this);
    outside->addWidget(scrollArea(content, this));
    return new QVBoxLayout(content);
}

void RecordPane::showFirst() {
    readList();
    show(search_->entryCount() > 0 ? 0 : -1);
}

bool RecordPane::hasRecord() const { return search_->currentIndex() >= 0; }

std::vector<QString> RecordPane::readEntries() const {
    const datafile::Database database = program().store.database();
    return SearchRow::entries(database, text().listQuery);
}

/// The reading itself may fill a work table.
void RecordPane::readList() {
    search_->setEntries(readEntries());
    noteChanges();
}

void RecordPane::noteChanges() { seenChanges_ = program().store.database().changes(); }

void RecordPane::beginEditing() {
    if (!form_->isLoading()) setEditing(true);
}

void RecordPane::setEditing(bool editing) {
    row_->setLocked(editing);
    ScreenPane::setEditing(editing);
}

void RecordPane::focusSearch() {
    if (search_->isEnabled()) search_->setFocus(Qt::TabFocusReason);
}

void RecordPane::pick(int index) {
    const WaitCursor wait;
    const QString wanted = search_->entryAt(index);
    Q_EMIT said({});
    if (!offerToSave()) return search_->setCurrentIndex(search_->indexOf(shownEntry_));
    show(search_->indexOf(wanted));
}

void RecordPane::show(int index) {
    const QString wanted = search_->entryAt(index);
    if (index >= 0 && !find(wanted)) {
        readList();
        Q_EMIT said(tr("Record \"%1\" was not found.").arg(wanted));
        index = search_->entryCount() > 0 ? 0 : -1;
        if (index >= 0 && !find(search_->entryAt(index))) index = -1;
    }
    if (index < 0) return showBlank();
    search_->setCurrentIndex(index);
    shownEntry_ = search_->entryAt(index);
    form_->refresh();
    form_->setFieldsEnabled(true);
    shown();
    setEditing(false);
}

void RecordPane::showBlank() {
    search_->setCurrentIndex(-1);
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
    beginNew([this] { makeNew(); }, firstField());
}

void RecordPane::beginNew(const std::function<void()>& blank, const QString& field) {
    const WaitCursor wait;
    Q_EMIT said({});
    search_->setCurrentIndex(-1);
    blank();
    form_->refresh();
    form_->setFieldsEnabled(true);
    shown();
    setEditing(true);
    form_->focusField(field);
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
        program().dialogs().error(title, error.text());
    } catch (const RecordError& error) {
        program().dialogs().error(title, error.text());
    }
    return false;
}

std::vector<Finding> RecordPane::takenName() const {
    if (!record_->isKeyTaken()) return {};
    return {
        {firstField(), tr("%1 already exists.\nDuplicates are not allowed.\nPlease enter another name.").arg(entry())}};
}

bool RecordPane::save() {
    if (!isChanged()) {
        setEditing(false);
        return true;
    }
    const WaitCursor wait;
    std::vector<Finding> findings = check();
    if (const QString unreadable = form_->unreadableField(); !unreadable.isEmpty())
        findings.push_back({unreadable, tr("The date cannot be read.")});
    if (!findings.empty()) {
        QStringList lines;
        for (const Finding& finding : findings) lines << finding.text;
        program().dialogs().warning(text().checkTitle, lines.join(u'\n'));
        form_->focusField(findings.front().field);
        return false;
    }
    const QString before = record_->isNew() ? QString() : shownEntry_;
    if (!writeGuarded(tr("The record was not saved"))) return false;
    Q_EMIT said((text().saved.isEmpty() ? tr("Record \"%1\" Saved.") : text().saved).arg(name()));
    placeInList(before);
    return true;
}

/// After a save the list takes one entry; it is not read anew. The entry before goes unless its record is still there.
void RecordPane::placeInList(const QString& before) {
    const QString saved = entry();
    const auto drop = [this](const QString& text) {
        if (const int index = search_->indexOf(text); index >= 0) search_->removeEntry(index);
    };
    if (before != saved) {
        if (!before.isEmpty() && (text().namesRepeat || !find(before))) drop(before);
        if (!text().namesRepeat) drop(saved);  // written otherwise, or the record that this one went over
        search_->insertEntry(saved, listLess);
    }
    if (find(saved)) {
        show(search_->indexOf(saved));
    } else {
        program().dialogs().warning(tr("Error!"), text().missingText);
        showBlank();
    }
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
    const WaitCursor wait;
    dropEdits();
    Q_EMIT said({});
    show(search_->indexOf(shownEntry_));
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
    const WaitCursor wait;
    const int index = search_->currentIndex();
    if (index < 0 || !find(search_->entryAt(index)) || !mayDelete()) return;
    const QString deleted = deletedName();
    if (!program().dialogs().ask(tr("Delete Confirmation"), deleteQuestion())) {
        Q_EMIT said(tr("Record \"%1\" NOT Deleted.").arg(deleted));
        return;
    }
    erase();
    search_->removeEntry(index);
    show(search_->entryCount() == 0 ? -1 : index > 0 ? index - 1 : 0);
    Q_EMIT said(tr("Record \"%1\" Deleted.").arg(deleted));
}

/// After a new record that was not wanted there is none in view.
bool RecordPane::offerToSave(const QString& question, const QString& title) {
    if (!isChanged()) return true;
    if (program().dialogs().ask(title.isEmpty() ? tr("Save Record?") : title,
                                question.isEmpty() ? tr("Save the current record?") : question)) {
        const bool saved = save();
        if (saved && !text().savedByOffer.isEmpty()) Q_EMIT said(text().savedByOffer);
        return saved;
    }
    const QString unsaved = unsavedName();
    const bool wasNew = record_->isNew();
    dropEdits();
    show(wasNew ? -1 : search_->indexOf(shownEntry_));
    Q_EMIT said(tr("Record \"%1\" NOT saved.").arg(unsaved));
    return true;
}

bool RecordPane::offerToSaveBeforeClosing() {
    if (!isChanged() || !program().dialogs().ask(tr("Save Record?"), tr("Save the current record?"))) return true;
    if (!check().empty()) return save();
    try {
        return write();
    } catch (const std::exception& error) {
        program().dialogs().error(tr("Save Record?"), tr("The following error occurred while attempting to save:") +
                                                          u'\n' + QString::fromUtf8(error.what()));
    }
    return program().dialogs().ask(tr("Save Record?"), tr("If you continue the current operation, \n"
                                                          "changes to your data will be lost.\n"
                                                          "Do you want to continue anyway?"));
}

void RecordPane::catchUp() {
    const datafile::Database database = program().store.database();
    if (isEditing() || database.changes() == seenChanges_) return;
    const QString current = shownEntry_;
    readChoices();
    readList();
    const int index = search_->indexOf(current);
    show(index >= 0 ? index : search_->entryCount() > 0 ? 0 : -1);
}
