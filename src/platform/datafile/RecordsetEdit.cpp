#include "platform/datafile/Recordset.h"

#include "platform/datafile/Connection.h"
#include "platform/datafile/TableSql.h"

#include <QCoreApplication>
#include <limits>

// How a cursor adds, changes and removes rows.

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }

Value wholeNumber(const Value& value, const QString& column, qint64 least, qint64 most) {
    if (const auto* whole = std::get_if<qint64>(&value); whole && *whole >= least && *whole <= most) return value;
    if (isNull(value) || toText(value).trimmed().isEmpty()) return {};
    bool ok = false;
    const double number = toText(value).trimmed().toDouble(&ok);
    if (!ok || number < static_cast<double>(least) || number > static_cast<double>(most))
        throw Error(Fault::NotAllowed, tr("\"%1\" is no number for the column %2.").arg(toText(value), column));
    return Value{qRound64(number)};
}

Value converted(const Value& value, ColumnType type, const QString& column) {
    switch (type) {
        case ColumnType::AutoKey:
        case ColumnType::Long:
            return wholeNumber(value, column, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
        case ColumnType::Integer:
            return wholeNumber(value, column, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max());
        case ColumnType::Boolean: return Value{qint64{toNumber(value) != 0}};
        case ColumnType::Double: {
            const QString text = toText(value).trimmed();
            bool ok = text.isEmpty();
            const double number = ok ? 0 : text.toDouble(&ok);
            if (!ok) throw Error(Fault::NotAllowed, tr("\"%1\" is no number for the column %2.").arg(text, column));
            return text.isEmpty() ? Value{} : Value{number};
        }
        case ColumnType::Date:
            if (isNull(value) || value == Value{QString()}) return {};
            if (!toDate(value).isValid() && !toTime(value).isValid())
                throw Error(Fault::NotAllowed, tr("\"%1\" is no date for the column %2.").arg(toText(value), column));
            return value;
        case ColumnType::Text: return isNull(value) ? value : Value{toText(value)};
    }
    return value;
}

}  // namespace

void Recordset::addNew() {
    refreshAfterReplacement();
    if (type_ == Type::Snapshot) throw Error(Fault::State, tr("These rows cannot be changed."));
    mode_ = EditMode::Add;
    pending_.clear();
}

void Recordset::edit() {
    refreshAfterReplacement();
    if (type_ == Type::Snapshot) throw Error(Fault::State, tr("These rows cannot be changed."));
    if (place_ != Place::Row) throw Error(Fault::NoCurrentRecord, tr("There is no current record."));
    mode_ = EditMode::Edit;
    pending_.clear();
}

void Recordset::set(int field, Value value) {
    if (mode_ == EditMode::None) throw Error(Fault::State, tr("No row is being edited."));
    const Field& about = fields_[static_cast<size_t>(field)];
    if (!about.own || about.type == ColumnType::AutoKey)
        throw Error(Fault::State, tr("The column %1 cannot be set.").arg(about.name));
    Value fitting = converted(value, about.type, about.name);
    for (auto& [set, held] : pending_)
        if (set == field) {
            held = std::move(fitting);
            return;
        }
    pending_.emplace_back(field, std::move(fitting));
}

void Recordset::update() {
    if (mode_ == EditMode::None) throw Error(Fault::State, tr("No row is being edited."));
    connection_->write([this] { writeRow(); });
    lastModified_ = mode_ == EditMode::Edit ? current_ : connection_->lastKey();
    if (mode_ == EditMode::Add && keys_) keys_->push_back(lastModified_);
    if (place_ == Place::Empty && mode_ == EditMode::Add) place_ = Place::After;
    mode_ = EditMode::None;
    rowLoaded_ = false;
}

void Recordset::addRows(const QStringList& columns, const std::vector<Values>& rows) {
    addNew();
    mode_ = EditMode::None;
    std::vector<const Field*> wanted;
    for (const QString& column : columns) wanted.push_back(&fields_[static_cast<size_t>(field(column))]);
    QStringList names;
    for (const QString& column : columns) names << sql::identifier(column);
    const QString text = insertSql(names);
    connection_->write([&] {
        Statement add(*connection_, text);
        for (const Values& row : rows) {
            add.reset();
            for (size_t i = 0; i < wanted.size(); ++i) add.bind(converted(row[i], wanted[i]->type, wanted[i]->name));
            add.run();
        }
    });
}

QString Recordset::insertSql(const QStringList& names) const {
    const QString table = sql::identifier(query_.table);
    if (names.isEmpty()) return QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(table);
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(table, names.join(u','), QStringLiteral("?,").repeated(names.size()).chopped(1));
}

/// The statement that writes the columns set now. Row after row it is the same one.
const QString& Recordset::writeSql() {
    const bool same = mode_ == written_.mode &&
                      std::equal(pending_.begin(), pending_.end(), written_.fields.begin(), written_.fields.end(),
                                 [](const auto& column, int field) { return column.first == field; });
    if (same) return written_.sql;
    written_.mode = mode_;
    written_.fields.clear();
    QStringList names;
    for (const auto& [field, value] : pending_) {
        written_.fields.push_back(field);
        names << sql::identifier(fields_[static_cast<size_t>(field)].name);
    }
    written_.sql = mode_ == EditMode::Add
                       ? insertSql(names)
                       : QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = ?")
                             .arg(sql::identifier(query_.table), names.join(QStringLiteral(" = ?, ")));
    return written_.sql;
}

void Recordset::writeRow() {
    if (mode_ == EditMode::Edit && pending_.empty()) return;
    const qint64 before = connection_->changes();
    Statement write(*connection_, writeSql());
    for (const auto& [field, value] : pending_) write.bind(value);
    if (mode_ == EditMode::Edit) write.bind(Value{current_});
    write.run();
    if (mode_ == EditMode::Edit && connection_->changes() == before) refuseRemoved();
}

void Recordset::remove() {
    refreshAfterReplacement();
    if (type_ == Type::Snapshot) throw Error(Fault::State, tr("These rows cannot be changed."));
    if (place_ != Place::Row) throw Error(Fault::NoCurrentRecord, tr("There is no current record."));
    const int at = position();
    connection_->write([this] {
        Statement row(*connection_,
                      QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(sql::identifier(query_.table)));
        row.bind(Value{current_}).run();
    });
    keys_->erase(keys_->begin() + at);
    aheadEnd_ = 0;
    position_ = at;
    place_ = Place::Gap;
    rowLoaded_ = false;
    mode_ = EditMode::None;
}

}  // namespace datafile
