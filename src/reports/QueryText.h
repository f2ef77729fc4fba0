#pragma once

#include <optional>

#include "platform/report/RowSource.h"

/// A query put together from its clauses: `QueryText("SELECT ... FROM ...").where("A = ?", {1}).orderBy("B")`.
class QueryText {
public:
    explicit QueryText(QString select) : text_(std::move(select)) {}

    /// One more condition that the rows must meet.
    QueryText& where(const QString& condition, const QVariantList& values = {}) {
        text_ += (conditions_++ == 0 ? QLatin1String(" WHERE ") : QLatin1String(" AND ")) + condition;
        values_ += values;
        return *this;
    }
    /// Only the rows with that id, where one was chosen.
    QueryText& whereChosen(const QString& column, std::optional<int> id) {
        return id ? where(column + QLatin1String(" = ?"), {*id}) : *this;
    }
    /// By columns with ", " between them. Names stand in the order of the program's lists, accented letters beside
    /// their plain ones.
    report::Query orderBy(const QString& columns) const {
        QStringList order = columns.split(QStringLiteral(", "));
        for (QString& column : order)
            if (column.endsWith(QLatin1String("Name"))) column += QLatin1String(" COLLATE Names");
        return {text_ + QLatin1String(" ORDER BY ") + order.join(QStringLiteral(", ")), values_};
    }

private:
    QString text_;
    QVariantList values_;
    int conditions_ = 0;
};
