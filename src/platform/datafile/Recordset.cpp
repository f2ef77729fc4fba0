#include "platform/datafile/Recordset.h"

#include "platform/datafile/Connection.h"
#include "platform/datafile/TableSql.h"

#include <QCoreApplication>
#include <limits>

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }
constexpr size_t readAheadRows = 64;

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
            if (toText(value).isEmpty()) return {};
            if (!toDate(value).isValid() && !toTime(value).isValid())
                throw Error(Fault::NotAllowed, tr("\"%1\" is no date for the column %2.").arg(toText(value), column));
            return value;
        case ColumnType::Text: return isNull(value) ? value : Value{toText(value)};
    }
    return value;
}

[[noreturn]] void refuseRemoved() {
    throw Error(Fault::NoCurrentRecord, tr("The record was removed in the meantime."));
}

}  // namespace

Recordset::Recordset(std::shared_ptr<Connection> connection, const QString& source, Type type)
    : connection_(std::move(connection)), type_(type) {
    const bool isName = connection_->table(source) != nullptr;
    shape_ = dialect::shapeOf(isName ? QStringLiteral("SELECT * FROM [%1]").arg(source) : source);
    open();
}

void Recordset::open() {
    epoch_ = connection_->epoch();
    query_ = dialect::translateQuery(shape_.text, [this](const QString& name) { return connection_->table(name); });
    if (query_.table.isEmpty()) type_ = Type::Snapshot;
    if (type_ == Type::Dynaset) {
        rowSql_ =
            QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?").arg(query_.columns, sql::identifier(query_.table));
        blockSql_ = QStringLiteral("SELECT %1, rowid FROM %2 WHERE rowid IN (%3)")
                        .arg(query_.columns, sql::identifier(query_.table),
                             QStringLiteral("?,").repeated(qsizetype{readAheadRows}).chopped(1));
    }
    describe();
    requery();
}

void Recordset::describe() {
    Statement statement(*connection_, type_ == Type::Dynaset ? rowSql_ : query_.whole);
    const TableDef* table = query_.table.isEmpty() ? nullptr : connection_->table(query_.table);
    fields_.clear();
    fieldByName_.clear();
    for (int i = 0; i < statement.columns(); ++i) {
        const QString name = statement.name(i);
        const QString type = statement.declaredType(i);
        const FieldDef* own = table ? table->field(name) : nullptr;
        const ColumnType kind =
            own ? own->type
                : sql::readColumn(name, type.isEmpty() ? QStringLiteral("TEXT") : type, false, {}, false, {}).type;
        fields_.push_back({name, kind, own != nullptr});
        if (!fieldByName_.contains(name.toLower())) fieldByName_.insert(name.toLower(), i);
    }
}

int Recordset::field(const QString& name) const {
    const auto found = fieldByName_.constFind(name.toLower());
    if (found == fieldByName_.cend())
        throw Error(Fault::Statement, tr("There is no column %1 in %2.").arg(name, shape_.text));
    return *found;
}

QString Recordset::rowsOf(const char* wanted, const QString& criteria) const {
    QString text = QStringLiteral("SELECT %1 FROM %2").arg(QLatin1String(wanted), sql::identifier(query_.table));
    if (!query_.where.isEmpty()) text += QStringLiteral(" WHERE (") + query_.where + u')';
    if (!criteria.isEmpty())
        text += (query_.where.isEmpty() ? QStringLiteral(" WHERE (") : QStringLiteral(" AND (")) + criteria + u')';
    return text;
}

QString Recordset::keyQuery(const QString& criteria, const char* ending) const {
    QString text = rowsOf("rowid", criteria);
    if (!query_.orderBy.isEmpty())
        text += QStringLiteral(" ORDER BY ") + query_.orderBy;
    else if (criteria.isEmpty())
        text += QStringLiteral(" ORDER BY rowid");
    return text + QLatin1String(ending);
}

Values Recordset::keyValues(const Values& criteria) const {
    const auto from = shape_.values.begin() + query_.columnValues;
    Values values(from, from + query_.whereValues);
    values.insert(values.end(), criteria.begin(), criteria.end());
    values.insert(values.end(), from + query_.whereValues, from + query_.whereValues + query_.orderValues);
    return values;
}

void Recordset::requery() {
    if (epoch_ != connection_->epoch()) return open();
    keys_.reset();
    aheadEnd_ = 0;
    rowLoaded_ = false;
    mode_ = EditMode::None;
    position_ = -1;
    if (type_ == Type::Snapshot) {
        readSnapshot();
        place_ = snapshot_.empty() ? Place::Empty : Place::Row;
        position_ = place_ == Place::Row ? 0 : -1;
        current_ = position_ + 1;
        return;
    }
    Statement first(*connection_, keyQuery({}, " LIMIT 1"));
    place_ = first.bind(keyValues()).step() ? Place::Row : Place::Empty;
    current_ = place_ == Place::Row ? first.number(0) : 0;
    position_ = place_ == Place::Row ? 0 : -1;
}

void Recordset::readSnapshot() {
    snapshot_.clear();
    Statement statement(*connection_, query_.whole);
    statement.bind(shape_.values);
    while (statement.step()) {
        Values& row = snapshot_.emplace_back();
        row.reserve(fields_.size());
        for (int i = 0; i < statement.columns(); ++i) row.push_back(statement.value(i));
    }
    keys_.emplace(snapshot_.size());
    for (size_t i = 0; i < snapshot_.size(); ++i) (*keys_)[i] = static_cast<qint64>(i) + 1;
}

/// After the file was replaced, keys and columns are taken anew; the row is kept when its key is still there.
void Recordset::refreshAfterReplacement() {
    if (epoch_ == connection_->epoch()) return;
    const qint64 key = current_;
    findSql_.clear();
    open();
    if (type_ == Type::Snapshot) return;
    takeKeys();
    if (std::find(keys_->begin(), keys_->end(), key) != keys_->end()) standOn(key);
}

void Recordset::takeKeys() {
    if (keys_) return;
    keys_.emplace();
    Statement statement(*connection_, keyQuery({}, ""));
    statement.bind(keyValues());
    while (statement.step()) keys_->push_back(statement.number(0));
}

void Recordset::standOn(qint64 key) {
    current_ = key;
    place_ = Place::Row;
    position_ = -1;
    rowLoaded_ = false;
}

int Recordset::position() {
    takeKeys();
    if (position_ < 0) {
        const auto found = std::find(keys_->begin(), keys_->end(), current_);
        if (found == keys_->end())
            keys_->push_back(current_), position_ = static_cast<int>(keys_->size()) - 1;
        else
            position_ = static_cast<int>(found - keys_->begin());
    }
    return position_;
}

void Recordset::moveFirst() {
    refreshAfterReplacement();
    mode_ = EditMode::None;
    if (!keys_) return requery();
    place_ = keys_->empty() ? Place::Empty : Place::Row;
    if (place_ == Place::Row) standOn(keys_->front()), position_ = 0;
}

void Recordset::moveLast() {
    refreshAfterReplacement();
    mode_ = EditMode::None;
    takeKeys();
    place_ = keys_->empty() ? Place::Empty : Place::Row;
    if (place_ == Place::Row) standOn(keys_->back()), position_ = static_cast<int>(keys_->size()) - 1;
}

void Recordset::moveNext() {
    refreshAfterReplacement();
    mode_ = EditMode::None;
    if (place_ == Place::Empty || place_ == Place::After)
        throw Error(Fault::NoCurrentRecord, tr("There is no current record."));
    takeKeys();
    const int next = place_ == Place::Before ? 0 : place_ == Place::Gap ? position_ : position() + 1;
    ++sequentialMoves_;
    if (next >= static_cast<int>(keys_->size())) {
        place_ = keys_->empty() ? Place::Empty : Place::After;
        return;
    }
    standOn((*keys_)[static_cast<size_t>(next)]);
    position_ = next;
}

void Recordset::movePrevious() {
    refreshAfterReplacement();
    mode_ = EditMode::None;
    sequentialMoves_ = 0;
    if (place_ == Place::Empty || place_ == Place::Before)
        throw Error(Fault::NoCurrentRecord, tr("There is no current record."));
    takeKeys();
    const int previous = (place_ == Place::After ? static_cast<int>(keys_->size())
                          : place_ == Place::Gap ? position_
                                                 : position()) -
                         1;
    if (previous < 0) {
        place_ = keys_->empty() ? Place::Empty : Place::Before;
        return;
    }
    standOn((*keys_)[static_cast<size_t>(previous)]);
    position_ = previous;
}

void Recordset::findFirst(const QString& criteria) {
    refreshAfterReplacement();
    const dialect::Shape shape = dialect::shapeOf(criteria);
    if (type_ == Type::Snapshot) return findInSnapshot(shape);
    QString& statement = findSql_[shape.text];
    if (statement.isEmpty())
        statement =
            keyQuery(dialect::translate(
                         shape.text, [this](const QString& name) { return connection_->table(name); }, query_.table),
                     " LIMIT 1");
    Statement find(*connection_, statement);
    noMatch_ = !find.bind(keyValues(shape.values)).step();
    if (noMatch_) return;
    mode_ = EditMode::None;
    sequentialMoves_ = 0;
    standOn(find.number(0));
}

/// The rows as they were when the snapshot was taken are searched, in a table that lives no longer than this call.
void Recordset::findInSnapshot(const dialect::Shape& shape) {
    QStringList columns;
    QStringList marks;
    for (int i = 0; i < fieldCount(); ++i) {
        const bool repeated = fieldByName_.value(fieldName(i).toLower()) != i;
        columns << sql::identifier(repeated ? fieldName(i) + u' ' + QString::number(i) : fieldName(i)) +
                       QStringLiteral(" COLLATE NOCASE");
        marks << QStringLiteral("?");
    }
    Statement(*connection_, QStringLiteral("DROP TABLE IF EXISTS temp.searched")).run();
    Statement(*connection_, QStringLiteral("CREATE TEMP TABLE searched (%1)").arg(columns.join(u','))).run();
    {
        const QString add = QStringLiteral("INSERT INTO searched VALUES (%1)").arg(marks.join(u','));
        for (const Values& row : snapshot_) Statement(*connection_, add).bind(row).run();
        const QString wanted =
            dialect::translate(shape.text, [this](const QString& name) { return connection_->table(name); });
        Statement find(*connection_, QStringLiteral("SELECT rowid FROM searched WHERE %1 LIMIT 1").arg(wanted));
        noMatch_ = !find.bind(shape.values).step();
        if (!noMatch_) standOn(find.number(0)), position_ = static_cast<int>(current_) - 1;
    }
    Statement(*connection_, QStringLiteral("DROP TABLE temp.searched")).run();
}

int Recordset::recordCount() {
    refreshAfterReplacement();
    if (keys_) return static_cast<int>(keys_->size());
    Statement count(*connection_, rowsOf("count(*)", {}));
    count.bind(shape_.values, static_cast<size_t>(query_.columnValues), static_cast<size_t>(query_.whereValues)).step();
    return static_cast<int>(count.number(0));
}

int Recordset::absolutePosition() { return place_ == Place::Row ? position() : -1; }

void Recordset::setBookmark(Bookmark row) {
    refreshAfterReplacement();
    mode_ = EditMode::None;
    sequentialMoves_ = 0;
    standOn(row);
}

const Values& Recordset::row() {
    refreshAfterReplacement();
    if (place_ != Place::Row) throw Error(Fault::NoCurrentRecord, tr("There is no current record."));
    if (!rowLoaded_ || (type_ == Type::Dynaset && rowChanges_ != connection_->changes())) loadRow();
    return row_;
}

void Recordset::loadRow() {
    rowChanges_ = connection_->changes();
    if (type_ == Type::Snapshot) {
        row_ = snapshot_[static_cast<size_t>(current_ - 1)];
        rowLoaded_ = true;
        return;
    }
    if (sequentialMoves_ >= 2 && position_ >= 0) return readAhead();
    Statement statement(*connection_, rowSql_);
    statement.bind(shape_.values, 0, static_cast<size_t>(query_.columnValues));
    if (!statement.bind(Value{current_}).step()) refuseRemoved();
    readRow(statement, row_);
    rowLoaded_ = true;
}

void Recordset::readRow(const Statement& statement, Values& into) const {
    into.resize(fields_.size());
    for (int i = 0; i < fieldCount(); ++i) into[static_cast<size_t>(i)] = statement.value(i);
}

/// A walk through many rows reads them in blocks, each in one go; any write makes the block stale.
void Recordset::readAhead() {
    const size_t at = static_cast<size_t>(position_);
    if (at < aheadNext_ || at >= aheadEnd_ || aheadChanges_ != connection_->changes()) readBlock(at);
    aheadNext_ = at + 1;
    std::swap(row_, ahead_[at - aheadFrom_]);
    if (row_.empty()) refuseRemoved();
    rowLoaded_ = true;
}

void Recordset::readBlock(size_t at) {
    ahead_.resize(readAheadRows);
    for (Values& row : ahead_) row.clear();
    const auto from = keys_->begin() + static_cast<std::ptrdiff_t>(at);
    const size_t count = std::min(readAheadRows, keys_->size() - at);
    aheadFrom_ = at;
    aheadEnd_ = at;
    aheadChanges_ = connection_->changes();
    Statement statement(*connection_, blockSql_);
    statement.bind(shape_.values, 0, static_cast<size_t>(query_.columnValues));
    for (size_t i = 0; i < readAheadRows; ++i)
        statement.bind(Value{from[static_cast<std::ptrdiff_t>(std::min(i, count - 1))]});
    while (statement.step()) {
        const auto place = std::find(from, from + static_cast<std::ptrdiff_t>(count), statement.number(fieldCount()));
        readRow(statement, ahead_[static_cast<size_t>(place - from)]);
    }
    aheadEnd_ = at + count;
}

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
        for (const Values& row : rows) {
            Statement add(*connection_, text);
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
