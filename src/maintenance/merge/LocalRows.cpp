#include "maintenance/merge/LocalRows.h"

void LocalRows::clear() {
    first_.clear();
    rows_.clear();
}

int LocalRows::add(const QString& key, Row added) {
    const int place = static_cast<int>(rows_.size());
    rows_.push_back(std::move(added));
    const auto first = first_.constFind(key);
    if (first == first_.cend()) {
        first_.insert(key, place);
        return place;
    }
    int last = *first;
    while (row(last).next >= 0) last = row(last).next;
    row(last).next = place;
    return place;
}
