#pragma once

#include <map>
#include <vector>

#include "platform/report/RowSource.h"

/// Rows from memory in place of a data file. A table answers to its query's text; placeholders select by the first
/// column.
class ListRows final : public report::RowSource {
public:
    struct Table {
        QStringList columns{};
        std::vector<QVariantList> rows{};
    };

    ListRows(const Table& table, QVariantList values) : table_(table), values_(std::move(values)) {}
    int column(const QString& name) const override {
        for (qsizetype index = 0; index < table_.columns.size(); ++index)
            if (table_.columns[index].compare(name, Qt::CaseInsensitive) == 0) return int(index);
        return -1;
    }
    int columnCount() const override { return int(table_.columns.size()); }
    bool next() override {
        do {
            ++row_;
        } while (row_ < table_.rows.size() && !values_.isEmpty() && table_.rows[row_][0] != values_[0]);
        return row_ < table_.rows.size();
    }
    QVariant value(int column) const override { return table_.rows[row_][column]; }

    /// A data file of such tables. It must outlive the reports that read it.
    using Tables = std::map<QString, Table>;
    static report::RowSourceFactory over(const Tables& tables) {
        return [&tables](const report::Query& query) {
            return std::make_unique<ListRows>(tables.at(query.text), query.values);
        };
    }

private:
    const Table& table_;
    QVariantList values_;
    size_t row_ = size_t(-1);
};
