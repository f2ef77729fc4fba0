#include "reports/StoreRows.h"

#include <QDate>

namespace {

/// A value as a literal of the dialect.
QString literal(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::UnknownType: return QStringLiteral("NULL");
        case QMetaType::Bool: return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
        case QMetaType::Int:
        case QMetaType::LongLong: return QString::number(value.toLongLong());
        case QMetaType::Double: return QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest);
        case QMetaType::QDate: return datafile::quoted(value.toDate());
        default: return datafile::quoted(value.toString());
    }
}

/// The query with its values in the place of the question marks, but for those inside a text or a name in brackets. A
/// mark without a value stays and is refused by the data file.
QString filledIn(const report::Query& query) {
    QString text;
    qsizetype used = 0;
    QChar closing;
    for (const QChar c : query.text) {
        if (!closing.isNull()) {
            if (c == closing) closing = QChar();
        } else if (c == u'"' || c == u'\'') {
            closing = c;
        } else if (c == u'[') {
            closing = u']';
        } else if (c == u'?' && used < query.values.size()) {
            text += literal(query.values[used++]);
            continue;
        }
        text += c;
    }
    return text;
}

QVariant variantOf(const datafile::Value& value) {
    return std::visit(
        [](const auto& held) {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::monostate>)
                return QVariant();
            else
                return QVariant(held);
        },
        value);
}

class StoreRows final : public report::RowSource {
public:
    explicit StoreRows(datafile::Recordset rows) : rows_(std::move(rows)) {}

    int column(const QString& name) const override {
        for (int field = 0; field < rows_.fieldCount(); ++field)
            if (rows_.fieldName(field).compare(name, Qt::CaseInsensitive) == 0) return field;
        return -1;
    }
    int columnCount() const override { return rows_.fieldCount(); }
    bool next() override {
        if (started_) rows_.moveNext();
        started_ = true;
        return !rows_.eof();
    }
    QVariant value(int column) const override { return variantOf(rows_.value(column)); }

private:
    mutable datafile::Recordset rows_;  ///< reads a row when it is first asked for a value
    bool started_ = false;
};

}  // namespace

report::RowSourceFactory storeRows(const datafile::Database& database) {
    return [database](const report::Query& query) -> std::unique_ptr<report::RowSource> {
        return std::make_unique<StoreRows>(database.openRecordset(filledIn(query)));
    };
}
