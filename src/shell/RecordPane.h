#pragma once

#include <QWidget>
#include <functional>

#include "store/RecordClass.h"

class Form;
class QToolButton;
class SearchCombo;
struct Program;

/// What a pane says of itself; everything else about the screen protocol is the same for all.
struct PaneText {
    QString tag;                ///< of menu entries: "Cert" makes mnuDataNewCertRecord
    QString caption;            ///< of the tab
    QString searchName;         ///< object name of the search list
    QString searchCaption;      ///< with its access key: "Current &School"
    QString moveName;           ///< object name of the move buttons; their number follows
    QString listQuery;          ///< its column Name is the list's text
    QString checkTitle;         ///< of the box with what the entry lacks
    QString missingText;        ///< says that the saved record is not in its list
    QString leaveQuestion{};    ///< asked when its tab is left with unsaved work; empty: as everywhere
    QString menu{};             ///< its group of the Data menu; empty: as the tab
    QString noun{};             ///< in that menu: "Player" makes "New Player"; empty: "Add New"
    int searchCharacters = 40;  ///< shown of the search list
    bool stepsOnly = false;     ///< without buttons for the first and the last record
};

/// One finding of a pane's check of its entries.
struct Finding {
    QString field;  ///< object name of the box to go to
    QString text;
};

/// A pane in which one record class is searched, shown, entered, saved and deleted: the protocol that all data
/// screens follow. A pane derives from it, makes its record and its form in its constructor, and calls start().
/// While a record is edited, the search list, the move buttons and the other panes wait.
class RecordPane : public QWidget {
    Q_OBJECT

public:
    RecordPane(Program& program, PaneText text);

    const PaneText& text() const { return text_; }
    bool isEditing() const { return editing_; }
    bool canDelete() const;
    virtual bool canAdd() const { return true; }

    void addNew();
    /// False when the record stayed unsaved; the user has been told why.
    bool save();
    void remove();
    /// Drops the edits; a new record gives way to the one shown before.
    void cancel();
    virtual void refresh();
    /// Asks, when there is unsaved work, whether to save it. False: the user stays with it.
    bool offerToSave(const QString& question = {}, const QString& title = {});
    /// As offerToSave(), before the screen closes: a save that fails may be given up.
    bool offerToSaveBeforeClosing();
    /// Shows what others changed meanwhile; a record that is being edited stays as it is.
    void catchUp();
    /// Reads the list anew and shows its first record; unsaved work is dropped.
    void showFirst();
    void focusSearch();

Q_SIGNALS:
    void stateChanged();
    /// For the status line; empty resets it.
    void said(const QString& text);

protected:
    /// Reads the list, shows its first record and lays the pane out. The last call of the constructor.
    void start(RecordClass& record, Form* form);

    Program& program() const { return program_; }
    RecordClass& record() const { return *record_; }
    Form& form() { return *form_; }
    SearchCombo& search() { return *search_; }
    /// Begins a new record that `blank` prepares, with the cursor in this box.
    void beginNew(const std::function<void()>& blank, const QString& field);
    /// An edit of the user's that no field of the form makes.
    void beginEditing();
    /// For check(): the finding that another record has this one's name already, by which neither could be found.
    std::vector<Finding> takenName() const;

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
    QWidget* searchRow();
    void move(int code);
    void pick(int index);
    void show(int index);
    void showBlank();
    void setEditing(bool editing);
    void readList();
    void dropEdits();
    bool writeGuarded(const QString& title);
    void placeInList(const QString& before);

    Program& program_;
    PaneText text_;
    RecordClass* record_ = nullptr;
    Form* form_ = nullptr;
    SearchCombo* search_ = nullptr;
    std::vector<QToolButton*> moves_;
    QString shownEntry_;
    qint64 seenChanges_ = -1;
    bool editing_ = false;
};
