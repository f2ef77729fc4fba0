#pragma once

#include "league/clsDivision.h"
#include "shell/ScreenPane.h"

class SearchRow;

/// A pane over the games of one division: the list of divisions on top, below it what a derived pane makes of the
/// division in view. While there is unsaved work the list waits.
class GamesPane : public ScreenPane {
    Q_OBJECT

public:
    GamesPane(Program& program, PaneText text, Orders orders);

    void cancel() override;
    void refresh() override;
    bool offerToSave(const QString& question = {}, const QString& title = {}) override;
    bool offerToSaveBeforeClosing() override;
    void catchUp() override;
    void focusSearch() override;

protected:
    enum class Shown {
        Picked,  ///< the user chose the division
        Anew,    ///< the pane begins with it
        Again    ///< it was in view; others may have changed its games
    };
    /// Shows the division in view, or nothing where there is none.
    virtual void showDivision(Shown how) = 0;
    /// Drops the unsaved work.
    virtual void dropEdits();

    const QString& divisionName() const { return division_; }
    /// 0 where there is no division.
    int divisionId() const { return divisionId_; }
    datafile::Database database() const;
    /// The division's teams that are not deleted, by name.
    datafile::Recordset teams() const;
    /// The pane shows all that the file holds by now.
    void sawChanges();
    void setEditing(bool editing) override;
    void showEvent(QShowEvent* event) override;
    /// Lays the pane out: content below the list.
    void place(QWidget* content);

private:
    void show(int index, Shown how);

    SearchRow* row_;
    clsDivision divisions_;
    QString division_;
    int divisionId_ = 0;
    qint64 seenChanges_ = -1;
};
