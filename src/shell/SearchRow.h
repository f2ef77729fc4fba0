#pragma once

#include <QWidget>
#include <vector>

class QToolButton;
class SearchCombo;
struct PaneText;
namespace datafile {
class Database;
}

/// The top row of a pane: the list in which its records are looked up, and four buttons that move along it.
class SearchRow final : public QWidget {
    Q_OBJECT

public:
    SearchRow(const PaneText& text, QWidget* parent);

    SearchCombo& list() { return *list_; }
    /// Fills the list. Nothing is selected afterwards.
    void read(const datafile::Database& database, const QString& query);
    /// While the work on a record is unsaved, list and buttons wait.
    void setLocked(bool locked);
    /// The entry to which a move leads. Nothing where it would lead beyond an end, which is told.
    std::optional<int> destinationOf(int move);

Q_SIGNALS:
    void moveWanted(int code);
    void said(const QString& text);

private:
    SearchCombo* list_;
    std::vector<QToolButton*> moves_;
};
