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
    /// The column Name of a query's rows in the order of a list.
    static std::vector<QString> entries(const datafile::Database& database, const QString& query);
    /// Fills the list. Nothing is selected afterwards.
    void read(const datafile::Database& database, const QString& query);
    /// While the work on a record is unsaved, list and buttons wait.
    void setLocked(bool locked);

Q_SIGNALS:
    /// The user looked this entry up.
    void picked(int index);
    /// The user stepped to this entry.
    void stepped(int index);
    /// For the status line: that there is no entry further on.
    void said(const QString& text);

private:
    void step(int code);

    QString atFirst_;
    QString atLast_;
    SearchCombo* list_;
    std::vector<QToolButton*> moves_;
};
