#include "platform/datafile/Recordset.h"

#include "platform/datafile/Connection.h"
#include "platform/datafile/TableSql.h"

#include <QCoreApplication>

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }
constexpr size_t readAheadRows = 64;

}  // namespace

void Recordset::refuseRemoved() { throw Error(Fault::NoCurrentRecord, tr("The record was removed in the meantime.")); }

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

}  // namespace datafile
