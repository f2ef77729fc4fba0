#include "platform/widgets/EntryListModel.h"

#include <algorithm>

void EntryListModel::setEntries(std::vector<QString>&& entries) {
    beginResetModel();
    entries_ = std::move(entries);
    endResetModel();
}

QString EntryListModel::entryAt(int index) const {
    return index >= 0 && index < size() ? entries_[static_cast<size_t>(index)] : QString();
}

int EntryListModel::indexOf(const QString& text) const {
    auto found = std::find(entries_.begin(), entries_.end(), text);
    if (found == entries_.end())
        found = std::find_if(entries_.begin(), entries_.end(), [&](const QString& entry) {
            return entry.size() == text.size() && entry.compare(text, Qt::CaseInsensitive) == 0;
        });
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

int EntryListModel::insertInOrder(const QString& entry,
                                  const std::function<bool(const QString&, const QString&)>& less) {
    const auto place = std::upper_bound(entries_.begin(), entries_.end(), entry, less);
    const int index = static_cast<int>(place - entries_.begin());
    insertAt(index, entry);
    return index;
}

void EntryListModel::append(const QString& entry) { insertAt(size(), entry); }

void EntryListModel::insertAt(int index, const QString& entry) {
    beginInsertRows({}, index, index);
    entries_.insert(entries_.begin() + index, entry);
    endInsertRows();
}

void EntryListModel::remove(int index) {
    if (index < 0 || index >= size()) return;
    beginRemoveRows({}, index, index);
    entries_.erase(entries_.begin() + index);
    endRemoveRows();
}

int EntryListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : size(); }

Qt::ItemFlags EntryListModel::flags(const QModelIndex& index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled;
}

QVariant EntryListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    return entryAt(index.row());
}

QModelIndexList EntryListModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                      Qt::MatchFlags flags) const {
    // Views and combo boxes ask for one text or its beginning; the general way would visit every entry as a variant.
    const auto kind = flags & Qt::MatchTypeMask;
    const QString text = value.toString();
    if (hits != 1 || (kind != Qt::MatchFixedString && kind != Qt::MatchStartsWith))
        return QAbstractListModel::match(start, role, value, hits, flags);
    const auto sensitivity = flags & Qt::MatchCaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const int count = flags & Qt::MatchWrap ? size() : size() - start.row();
    for (int step = 0; step < count; ++step) {
        const int row = (start.row() + step) % size();
        const QString& entry = entries_[static_cast<size_t>(row)];
        const bool hit =
            kind == Qt::MatchFixedString ? entry.compare(text, sensitivity) == 0 : entry.startsWith(text, sensitivity);
        if (hit) return {index(row)};
    }
    return {};
}
