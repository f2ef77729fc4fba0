#pragma once

#include <QWidget>

struct Program;

/// What a pane says of itself; everything else about the screen protocol is the same for all.
struct PaneText {
    QString tag;                ///< of menu entries: "Cert" makes mnuDataNewCertRecord
    QString caption;            ///< of the tab
    QString searchName;         ///< object name of the search list
    QString searchCaption{};    ///< with its access key: "Current &School"
    QString moveName{};         ///< object name of the move buttons, their number follows; empty: there are none
    QString listQuery{};        ///< its column Name is the list's text
    QString checkTitle{};       ///< of the box with what the entry lacks
    QString missingText{};      ///< says that the saved record is not in its list
    QString leaveQuestion{};    ///< asked when its tab is left with unsaved work; empty: as everywhere
    QString menu{};             ///< its group of the Data menu; empty: as the tab
    QString noun{};             ///< in that menu: "Player" makes "New Player"; empty: "Add New"
    int searchCharacters = 40;  ///< shown of the search list
    bool stepsOnly = false;     ///< without buttons for the first and the last record
    QString atFirst{};          ///< said where no record is before; empty: First Record
    QString atLast{};           ///< the same behind the last one
    QString addButton{};        ///< object name of a button of its own to add; empty: the screen's
    QString addCaption{};       ///< of that button
    QString saved{};            ///< said after a save, %1 is the name; empty: Record "%1" Saved.
    QString savedByOffer{};     ///< the same where leaving the record brought up the save
    bool namesRepeat = false;   ///< records of one name stand in the list side by side
    int leastFormHeight = 0;    ///< where the window is lower the whole pane scrolls; 0: the form does by itself
};

/// A pane of a RecordScreen: what the screen's buttons and its Data menu order of the pane in view. RecordPane, over
/// one record class, is the usual one.
class ScreenPane : public QWidget {
    Q_OBJECT

public:
    enum Order { AddNew = 1, Save = 2, Delete = 4, Cancel = 8, Refresh = 16, EveryOrder = 31 };
    Q_DECLARE_FLAGS(Orders, Order)

    ScreenPane(Program& program, PaneText text, Orders orders = EveryOrder);

    const PaneText& text() const { return text_; }
    /// The orders that it knows; buttons of others do not show while it is in view.
    Orders orders() const { return orders_; }
    /// Whether there is unsaved work. The other panes of its page wait until there is none.
    bool isEditing() const { return editing_; }
    virtual bool canAdd() const { return orders_.testFlag(AddNew); }
    /// Whether there is a record in view.
    virtual bool hasRecord() const { return false; }
    virtual bool canDelete() const { return false; }

    virtual void addNew() {}
    /// False when the work stayed unsaved; the user has been told why.
    virtual bool save() { return true; }
    virtual void remove() {}
    /// Drops the edits.
    virtual void cancel() {}
    virtual void refresh() {}
    /// Asks, when there is unsaved work, whether to save it. False: the user stays with it.
    virtual bool offerToSave(const QString& question = {}, const QString& title = {}) = 0;
    /// As offerToSave(), before the screen closes.
    virtual bool offerToSaveBeforeClosing() = 0;
    /// Shows what others changed meanwhile; what is being edited stays as it is.
    virtual void catchUp() {}
    virtual void focusSearch() {}

Q_SIGNALS:
    void stateChanged();
    /// For the status line; empty resets it.
    void said(const QString& text);

protected:
    Program& program() const { return program_; }
    virtual void setEditing(bool editing);

private:
    Program& program_;
    PaneText text_;
    Orders orders_;
    bool editing_ = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ScreenPane::Orders)
