#pragma once

#include <QWidget>
#include <functional>
#include <vector>

class EntryListModel;
class QListView;
class QToolButton;
class QVBoxLayout;

/// Two lists between which entries travel: by double click, by dragging, by the buttons in the middle, by Enter, or
/// with the arrow key that points to the other list. It only asks for a move; its owner decides, writes, and either
/// takes the entry over or puts in the lists as they then are.
class ListMover final : public QWidget {
    Q_OBJECT

public:
    enum Side { Left, Right };
    Q_ENUM(Side)

    /// The lists' object names are `objectName` followed by "Left" and "Right".
    ListMover(const QString& objectName, const QString& leftTitle, const QString& rightTitle,
              QWidget* parent = nullptr);

    /// Gives the lists names of their own; the buttons are called as their lists, followed by "Move".
    void setListNames(const QString& left, const QString& right);
    /// A line above the buttons in the middle that says how entries are moved.
    void addHint(const QString& text);
    /// Asked before an entry is dragged off or moved.
    void setMayMove(std::function<bool(Side from, int index)> mayMove) { mayMove_ = std::move(mayMove); }

    /// Puts another list in and keeps the selection at its place, so that several can be moved one after the other.
    void setEntries(Side side, std::vector<QString>&& entries);
    /// Takes an entry over to the other list, whose entries are in order by `less`.
    void moveEntry(Side from, int index, const std::function<bool(const QString&, const QString&)>& less);
    const std::vector<QString>& entries(Side side) const;
    int entryCount(Side side) const;
    QString entryAt(Side side, int index) const;
    /// Empty when nothing is selected.
    QString selectedEntry(Side side) const;
    /// -1 when nothing is selected.
    int selectedIndex(Side side) const;

Q_SIGNALS:
    /// The user wants this entry in the other list.
    void moveRequested(ListMover::Side from, int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Half {
        EntryListModel* model;
        QListView* view;
        QToolButton* button;  ///< sends its selected entry across
    };

    Half makeHalf(Side side, const QString& title);
    void setListName(Side side, const QString& name);
    bool mayMove(Side from) const;
    void request(Side from);
    void updateButtons();

    Half halves_[2];
    QVBoxLayout* middle_;
    std::function<bool(Side, int)> mayMove_;
};
