#pragma once

#include <QString>
#include <QVariant>
#include <functional>
#include <memory>

namespace report {

/// A query text with the values of its placeholders, in order.
struct Query {
    QString text;
    QVariantList values{};
};

/// The rows of one query, read once from first to last. Implemented over whatever holds the data.
class RowSource {
public:
    virtual ~RowSource() = default;
    /// Position of a column by its name, without regard to case; -1 where the query has no such column.
    virtual int column(const QString& name) const = 0;
    virtual int columnCount() const = 0;
    /// Steps to the next row, to the first one on the first call. False behind the last row.
    virtual bool next() = 0;
    /// A value of the row stepped to.
    virtual QVariant value(int column) const = 0;
};

using RowSourceFactory = std::function<std::unique_ptr<RowSource>(const Query&)>;

}  // namespace report
