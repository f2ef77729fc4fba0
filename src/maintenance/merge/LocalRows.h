#pragma once

#include <QDate>
#include <QHash>
#include <QStringList>
#include <vector>

/// A table's rows in the local file by their natural keys, as far as the merge must know them to decide. It follows
/// what the merge decides, so that a second source row of one key meets the first.
class LocalRows {
public:
    struct Row {
        qint64 id = 0;  ///< 0: yet to be added
        QDate day{};
        int time = 0;
        bool deleted = false;
        QString finer{};
        int next = -1;  ///< the following row of the same key
    };

    void clear();
    /// Behind the other rows of the key; the row's place.
    int add(const QString& key, Row row);
    QStringList keys() const { return first_.keys(); }
    Row& row(int place) { return rows_[static_cast<size_t>(place)]; }
    const Row& row(int place) const { return rows_[static_cast<size_t>(place)]; }

    /// The first live row of the key that meets the condition, else the first deleted one, else -1.
    template <class Condition>
    int find(const QString& key, Condition condition) const {
        int deleted = -1;
        for (int place = first_.value(key, -1); place >= 0; place = row(place).next) {
            if (!condition(row(place))) continue;
            if (!row(place).deleted) return place;
            if (deleted < 0) deleted = place;
        }
        return deleted;
    }
    int find(const QString& key) const {
        return find(key, [](const Row&) { return true; });
    }

private:
    QHash<QString, int> first_;
    std::vector<Row> rows_;
};
