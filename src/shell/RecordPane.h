#pragma once

#include <functional>

#include "shell/ScreenPane.h"
#include "store/RecordClass.h"

class Form;
class SearchCombo;
class SearchRow;

/// One finding of a pane's check of its entries.
struct Finding {
    QString field;  ///< object name of the box to go to
    QString text;
};

/// A pane in which one record class is searched, shown, entered, saved and deleted: the protocol that all data
/// screens follow. A pane derives from it, makes its record and its form in its constructor, and calls start().
/// While a record is edited, the search list, the move buttons and the other panes wait.
class RecordPane : public ScreenPane {
    Q_OBJECT

public:
    RecordPane(Program& program, PaneText text, Orders orders = EveryOrder);

    bool hasRecord() const override;
    bool canDelete() const override { return !isEditing() && hasRecord() && orders().testFlag(Delete); }
    /// Whether there is something to save.
    virtual bool isChanged() const { return record_->isChanged(); }

    void addNew() override;
    /// False when the record stayed unsaved; the user has been told why.
    bool save() override;
    void remove() override;
    /// Drops the edits; a new record gives way to the one shown before.
    void cancel() override;
    void refresh() override;
    bool offerToSave(const QString& question = {}, const QString& title = {}) override;
    /// A save that fails may be given up.
    bool offerToSaveBeforeClosing() override;
    void catchUp() override;
    /// Reads the list anew and shows its first record; unsaved work is dropped.
    void showFirst();
    void focusSearch() override;

protected:
    /// Reads the list, shows its first record and lays the pane out, with `before` ahead of the search list. The last
    /// call of the constructor.
    void start(RecordClass& record, Form* form, QWidget* before = nullptr);

    RecordClass& record() const { return *record_; }
    Form& form() { return *form_; }
    SearchCombo& search() { return *search_; }
    /// Begins a new record that `blank` prepares, with the cursor in this box.
    void beginNew(const std::function<void()>& blank, const QString& field);
    /// An edit of the user's that no field of the form makes.
    void beginEditing();
    /// For check(): the finding that another record has this one's name already, by which neither could be found.
    std::vector<Finding> takenName() const;

    /// The entries of the search list in their order.
    virtual std::vector<QString> readEntries() const;
    /// Finds the record of a list entry and loads it.
    virtual bool find(const QString& entry) = 0;
    /// What the status line calls the record.
    virtual QString name() const = 0;
    /// The same, of a record that the user chose not to save.
    virtual QString unsavedName() const { return name(); }
    /// The same, of a record that was deleted.
    virtual QString deletedName() const { return name(); }
    /// The record's text in the search list.
    virtual QString entry() const { return name(); }
    virtual std::vector<Finding> check() const = 0;
    /// Writes the record. False leaves everything as it is, in silence; errors are raised.
    virtual bool write();
    virtual void makeNew() { record_->newRecord(); }
    /// The box to begin with in a new record.
    virtual QString firstField() const = 0;
    /// The question before a delete.
    virtual QString deleteQuestion() const;
    /// Whether the record may go; the place to refuse.
    virtual bool mayDelete() { return true; }
    /// Deletes the record and what goes with it.
    virtual void erase() { record_->deleteRecord(); }
    /// Reads anew the lists that its fields choose from; others may have changed them.
    virtual void readChoices() {}
    /// The record in the form is another one.
    virtual void shown() {}

private:
    void pick(int index);
    void show(int index);
    void showBlank();
    void setEditing(bool editing) override;
    void readList();
    void noteChanges();
    void dropEdits();
    bool writeGuarded(const QString& title);
    void placeInList(const QString& before);

    RecordClass* record_ = nullptr;
    Form* form_ = nullptr;
    SearchRow* row_ = nullptr;
    SearchCombo* search_ = nullptr;  ///< of the row
    QString shownEntry_;
    qint64 seenChanges_ = -1;
};
