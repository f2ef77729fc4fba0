#pragma once

#include <QWidget>
#include <vector>

class QToolButton;
class SearchCombo;

/// A search list with its caption and the four buttons that step through it.
class SearchRow final : public QWidget {
    Q_OBJECT

public:
    /// The caption holds its access key; the buttons are called `moveName` and their number.
    SearchRow(const QString& caption, const QString& searchName, const QString& moveName, int shownCharacters,
              QWidget* parent = nullptr);

    SearchCombo& list() const { return *list_; }
    /// While they wait the user can neither search nor step.
    void setWaiting(bool waiting);

Q_SIGNALS:
    /// The user looked this entry up.
    void picked(int index);
    /// The user stepped to this entry.
    void stepped(int index);
    /// The user wanted to step beyond the first entry, or beyond the last one.
    void ended(bool first);

private:
    void step(int code);

    SearchCombo* list_;
    std::vector<QToolButton*> moves_;
};
