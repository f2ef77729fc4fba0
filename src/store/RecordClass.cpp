#include "store/RecordClass.h"

#include <QCoreApplication>

using datafile::Recordset;

namespace {

constexpr char programName[] = "Kestrelmoor";
constexpr char notFoundTitle[] = "Record Not Found...";

}  // namespace

QString live(const QString& criteria) { return QStringLiteral("DeletedFlag = False AND ") + criteria; }
QString deleted(const QString& criteria) { return QStringLiteral("DeletedFlag = True AND ") + criteria; }
QString matches(const char* column, const QString& text) {
    return QLatin1String(column) + QStringLiteral(" = ") + datafile::quoted(text);
}
QString matches(const char* column, int number) {
    return QLatin1String(column) + QStringLiteral(" = ") + QString::number(number);
}

QString matches(const ColumnValues& values) {
    QStringList criteria;
    for (const auto& [column, value] : values)
        criteria << std::visit([name = column](const auto& wanted) { return matches(name, wanted); }, value);
    return criteria.join(QStringLiteral(" AND "));
}

void RecordClass::open(RecordRules rules) {
    rules_ = std::move(rules);
    main_.emplace(database_.openRecordset(QString::fromLatin1(rules_.source)));
    const datafile::TableDef* table = nullptr;
    for (const QString& name : database_.tableNames())
        if (QString::fromLatin1(rules_.source).split(u' ').contains(name)) table = database_.table(name);
    for (Column* column : columns_) {
        column->field_ = main_->field(QString::fromLatin1(column->name_));
        const datafile::FieldDef* field = table ? table->field(QString::fromLatin1(column->name_)) : nullptr;
        column->size_ = field ? field->size : 0;
    }
    blank();
    clearFlags();
    load();
}

template <class Kind>
Kind* RecordClass::find(const char* name) const {
    for (Column* column : columns_)
        if (qstricmp(column->name_, name) == 0) return dynamic_cast<Kind*>(column);
    return nullptr;
}

void RecordClass::clearFlags() {
    dirty_ = new_ = false;
    for (Column* column : columns_) column->assigned_ = false;
}

void RecordClass::load() {
    if (main_->bof() || main_->eof()) return;
    if (!rules_.loadsDeleted && main_->flag(QStringLiteral("DeletedFlag"))) return blank();
    const datafile::Values& row = main_->row();
    for (Column* column : columns_) column->read(row[static_cast<size_t>(column->field_)]);
}

void RecordClass::blank() {
    for (Column* column : columns_) column->blank();
}

void RecordClass::assignAll() {
    for (Column* column : columns_) column->assigned_ = true;
    dirty_ = true;
}

void RecordClass::newRecord() {
    blank();
    clearFlags();
    new_ = true;
}

void RecordClass::undo() {
    clearFlags();
    load();
}

void RecordClass::move(int code) {
    switch (code) {
        case MoveFirst: main_->moveFirst(); break;
        case MoveLast: main_->moveLast(); break;
        case MoveNext:
            main_->moveNext();
            if (main_->eof()) main_->moveLast();
            break;
        case MovePrevious:
            main_->movePrevious();
            if (main_->bof()) main_->moveFirst();
            break;
        default: raise(firstRecordError);
    }
    load();
}

QString RecordClass::errorText(quint32 number) const {
    if (number == firstRecordError) return QString::fromLatin1(rules_.badMove);
    if (number == firstRecordError + 1)
        return QStringLiteral("There are no records in the %1Enter Data and Press the Add key to add a new one.")
            .arg(QLatin1String(rules_.noRecords));
    const size_t required = number - firstRecordError - 2;
    const bool known = required < rules_.required.size() && rules_.required[required].column;
    return known ? QString::fromLatin1(rules_.required[required].message)
                 : QStringLiteral("There is no message for this error.");
}

void RecordClass::raise(quint32 number) const {
    throw RecordError(number, QLatin1String(programName) + QLatin1String(rules_.tag), errorText(number));
}

bool RecordClass::isValid(bool showError) const {
    for (size_t i = 0; i < rules_.required.size(); ++i) {
        const Required& rule = rules_.required[i];
        if (!rule.column || !rule.raised || rule.column->isFilled()) continue;
        if (showError) raise(firstRecordError + 2 + static_cast<quint32>(i));
        return false;
    }
    return true;
}

void RecordClass::save(StampSource stamps) {
    if (!isChanged() || !isValid(false)) return;
    const bool adding = new_ || (main_->bookmark() == 0 && main_->recordCount() == 0);
    beforeWrite(adding, stamps);
    if (!adding) {
        main_->edit();
    } else {
        const QString twin = twinCriteria();
        const bool revive = !twin.isEmpty() && find(twin, false);
        if (revive)
            main_->edit();
        else
            main_->addNew();
    }
    write(adding, stamps);
    main_->update();
    main_->setBookmark(main_->lastModified());
    for (Column* column : columns_)
        if (auto* key = dynamic_cast<Key*>(column)) key->read(main_->value(key->field_));
    clearFlags();
}

void RecordClass::write(bool adding, StampSource stamps) {
    auto* day = find<Day>("DateStamp");
    auto* time = find<Whole>("TimeStamp");
    auto* deleted = find<Flag>("DeletedFlag");
    if (stamps == StampSource::Fresh) {
        if (day) day->value_ = context_.clock.today(), day->assigned_ = true;
        if (time) time->value_ = context_.clock.secondsSinceMidnight(), time->assigned_ = true;
        if (deleted && adding) deleted->value_ = false;
    } else {
        for (Column* column : {static_cast<Column*>(day), static_cast<Column*>(time), static_cast<Column*>(deleted)})
            if (column) column->assigned_ = true;
    }
    for (Column* column : columns_)
        if ((adding || column->assigned_) && column->isWritten()) main_->set(column->field_, column->stored(adding));
}

QString RecordClass::keyCriteria() const {
    ColumnValues values;
    for (const Text* column : rules_.naturalKey) values.emplace_back(column->name(), (*column)());
    return matches(values);
}

QString RecordClass::twinCriteria() const { return rules_.naturalKey.empty() ? QString() : deleted(keyCriteria()); }

bool RecordClass::isKeyTaken() {
    const auto& key = rules_.naturalKey;
    const bool renamed = std::any_of(key.begin(), key.end(), [](const Text* column) { return column->assigned(); });
    if (key.empty() || !(new_ || renamed)) return false;
    const auto own = main_->bookmark();
    const bool taken = find(live(keyCriteria()), false) && (new_ || main_->bookmark() != own);
    if (own != 0) main_->setBookmark(own);
    return taken;
}

void RecordClass::deleteRecord() {
    main_->edit();
    whileDeleting(*main_);
    updateStamped(*main_, context_.clock, true);
    clearFlags();
    loadNeighbour();
}

void RecordClass::removeRecord() {
    main_->remove();
    clearFlags();
    blank();
    loadNeighbour();
}

void RecordClass::loadNeighbour() {
    if (main_->bookmark() != 0 && main_->recordCount() == 1) return blank();  // the deleted row itself
    main_->movePrevious();
    if (main_->bof()) main_->moveFirst();
    load();
}

void RecordClass::requery() {
    const auto row = main_->bookmark();
    main_->requery();
    if (row) main_->setBookmark(row);
}

bool RecordClass::find(const QString& criteria, bool loadRow) {
    main_->findFirst(criteria);
    if (main_->noMatch()) return false;
    if (loadRow) load();
    return true;
}

bool RecordClass::findOrTell(const QString& criteria, const QString& name, bool show, bool loadRow,
                             const FindTexts& texts) {
    const bool empty = main_->bof() && main_->eof();
    if (!empty && find(criteria, loadRow)) return true;
    if (show) {
        QString text = QString::fromLatin1(empty ? texts.onEmpty : texts.onMiss);
        context_.dialogs.warning(QString::fromLatin1(texts.title), text.replace(QStringLiteral("%1"), name));
    }
    return false;
}

bool RecordClass::firstOrTell(bool show, bool loadRow, const FindTexts& texts) {
    if (main_->recordCount() == 0) {
        if (show) context_.dialogs.warning(QString::fromLatin1(texts.title), QString::fromLatin1(texts.onEmpty));
        return false;
    }
    main_->moveFirst();
    if (loadRow) load();
    return true;
}

bool RecordClass::findOrTell(const QString& criteria, const QString& name, bool show, bool loadRow) {
    return findOrTell(criteria, name, show, loadRow,
                      {notFoundTitle, "No Records Found for %1.", "No Records found for %1."});
}

bool RecordClass::findOrTell(const QString& criteria, bool show, bool loadRow) {
    return findOrTell(criteria, {}, show, loadRow, {notFoundTitle, "No Records found.", "No Records found."});
}

bool RecordClass::findByName(const QString& name, bool show, bool loadRow) {
    return findOrTell(live(matches(rules_.naturalKey.front()->name(), name)), name, show, loadRow);
}

bool RecordClass::findAnyByName(const QString& name, bool show, bool loadRow) {
    return findOrTell(matches(rules_.naturalKey.front()->name(), name), name, show, loadRow);
}

bool RecordClass::findDeletedByName(const QString& name) {
    return find(deleted(matches(rules_.naturalKey.front()->name(), name)), false);
}

bool RecordClass::findById(const Key& key, int id, bool show, bool loadRow) {
    return findOrTell(live(matches(key.name(), id)), show, loadRow);
}

void RecordClass::softDeleteRows(const QString& query) {
    datafile::Transaction transaction(database_);
    Recordset rows = database_.openRecordset(query);
    softDeleteAll(rows, context_.clock);
    transaction.commit();
}

bool standOn(Recordset& rows, const QString& criteria) {
    rows.findFirst(criteria);
    return !rows.noMatch();
}

void updateStamped(Recordset& row, Clock& clock, bool deleted) {
    row.set(QStringLiteral("DateStamp"), clock.today());
    row.set(QStringLiteral("TimeStamp"), clock.secondsSinceMidnight());
    row.set(QStringLiteral("DeletedFlag"), deleted);
    row.update();
    if (row.bookmark() != row.lastModified()) row.setBookmark(row.lastModified());
}

void addOrRevive(Recordset& rows, Clock& clock, const ColumnValues& values) {
    const QString criteria = matches(values);
    if (standOn(rows, live(criteria))) return;
    if (standOn(rows, deleted(criteria))) {
        rows.edit();
    } else {
        rows.addNew();
        for (const auto& [column, value] : values)
            std::visit([&rows, name = QLatin1String(column)](const auto& each) { rows.set(name, each); }, value);
    }
    updateStamped(rows, clock, false);
}

void softDelete(Recordset& row, Clock& clock) {
    row.edit();
    updateStamped(row, clock, true);
}

void softDeleteAll(Recordset& rows, Clock& clock) {
    for (; !rows.eof(); rows.moveNext()) softDelete(rows, clock);
}

QString freshStamps(const Clock& clock) {
    return QStringLiteral("[DateStamp] = %1, [TimeStamp] = %2")
        .arg(datafile::quoted(clock.today()))
        .arg(clock.secondsSinceMidnight());
}
