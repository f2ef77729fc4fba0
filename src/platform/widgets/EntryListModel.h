#pragma once

#include <QAbstractListModel>
#include <functional>
#include <vector>

/// Plain texts in a list, light enough for a hundred thousand of them.
class EntryListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setEntries(std::vector<QString>&& entries);
    int size() const { return static_cast<int>(entries_.size()); }
    /// Empty outside the list.
    QString entryAt(int index) const;
    /// -1 where there is none. The exact text wins over one that differs in case.
    int indexOf(const QString& text) const;
    const std::vector<QString>& entries() const { return entries_; }
    /// Inserts behind all entries that are not above the new one; the list is in order by `less`.
    int insertInOrder(const QString& entry, const std::function<bool(const QString&, const QString&)>& less);
    void append(const QString& entry);
    void remove(int index);

    int rowCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    void insertAt(int index, const QString& entry);

    std::vector<QString> entries_;
};
