#include "maintenance/merge/TableMerge.h"

#include "maintenance/merge/RowWriter.h"
#include "platform/datafile/Connection.h"
#include "registration/clsRegistration.h"

#include <QCoreApplication>

using datafile::ColumnType;
using datafile::Error;
using datafile::Statement;
using datafile::TableDef;
using datafile::toDate;
using datafile::toNumber;
using datafile::toText;
using datafile::toTime;
using datafile::Value;

namespace {

const QDate unstamped(1940, 1, 1);  ///< what a missing date stamp counts as in the local file

/// A day in a key: as text where it is none, or as `otherwise`.
QString dayText(const QString& text, const QDate& otherwise) {
    const QDate day = toDate(Value{text});
    if (!day.isValid() && !otherwise.isValid()) return text;
    return toText(datafile::fromDate(day.isValid() ? day : otherwise));
}

/// Whether a list entry of the player leads back to the same three values.
bool cutsBack(const QString& lastName, const QString& firstName, const QDate& birthDate) {
    if (!birthDate.isValid() || lastName.contains(u',')) return false;
    if (!firstName.contains(u'-')) return true;
    const PlayerKey back = PlayerKey::parse(PlayerKey{lastName, firstName, birthDate}.text());
    return back.lastName == lastName && back.firstName == firstName && back.birthDate == birthDate;
}

QString joined(const std::vector<QString>& parts) {
    QString key = parts.front();
    for (size_t i = 1; i < parts.size(); ++i) key += keySeparator + parts[i];
    return key;
}

Error incomplete(const QString& name, const char* column) {
    const QString text =
        QCoreApplication::translate("Merge", "%1 was not merged: a value is required in the column %2.");
    return {datafile::Fault::Required, text.arg(name, QLatin1String(column))};
}

QString withFiner(const QString& key, const QString& finer) { return key + keySeparator + finer; }

}  // namespace

/// Walks through a table in one of the files, reading no more columns than the decision needs.
class TableMerge::Reader {
public:
    Reader(const datafile::Database& database, const MergeTable& table, const QString& order)
        : table_(table), about_(*database.table(QString::fromLatin1(table.name))) {
        for (const char* column : table.naturalKey) keyParts_.push_back({place(column), kind(column), -1});
        for (const ForeignKey& foreign : table.foreign) references_.push_back(place(foreign.column));
        for (const char* column : table.required) required_.push_back(place(column));
        if (table.finer) finer_ = place(table.finer);
        for (KeyPart& part : keyParts_)
            for (size_t i = 0; i < references_.size(); ++i)
                if (references_[i] == part.place) part.reference = static_cast<int>(i);
        day_ = place("DateStamp");
        time_ = place("TimeStamp");
        deleted_ = place("DeletedFlag");
        const QString query = QStringLiteral("SELECT %1, rowid FROM \"%2\" NOT INDEXED ORDER BY %3rowid")
                                  .arg(columns_.join(u','), about_.name, order);
        rows_.reset(new Statement(database.prepare(query)));  // a statement is made in its place and stays there
    }

    bool next() { return rows_->step(); }
    qint64 id() const { return rows_->number(static_cast<int>(columns_.size())); }
    QDate day() const { return toDate(rows_->value(day_)); }
    int time(int otherwise) const { return static_cast<int>(toNumber(rows_->value(time_), otherwise)); }
    bool deleted() const { return rows_->number(deleted_) != 0; }
    qint64 reference(size_t number) const { return toNumber(rows_->value(references_[number])); }
    QString text(size_t keyPart) const { return rows_->text(keyParts_[keyPart].place); }
    /// What the user knows the row by; empty for a row that has no name or only binds others.
    QString name() const { return keyParts_.front().reference < 0 ? text(0) : QString(); }
    /// The first required column that is empty, or null.
    const char* missing() const {
        for (size_t i = 0; i < required_.size(); ++i)
            if (rows_->text(required_[i]).isEmpty()) return table_.required[i];
        return nullptr;
    }
    /// The natural key with these in the place of the row's own references.
    std::vector<QString> key(const std::array<qint64, mostReferences>* references, const QDate& noDay = {}) const {
        std::vector<QString> parts;
        for (const KeyPart& part : keyParts_) {
            if (part.reference >= 0)
                parts.push_back(QString::number(references ? (*references)[static_cast<size_t>(part.reference)]
                                                           : reference(static_cast<size_t>(part.reference))));
            else
                parts.push_back(part.kind == ColumnType::Date ? dayText(rows_->text(part.place), noDay)
                                                              : folded(rows_->text(part.place)));
        }
        return parts;
    }
    QString finer() const {
        if (finer_ < 0) return {};
        if (kind(table_.finer) == ColumnType::Text) return folded(rows_->text(finer_));
        return toText(datafile::fromTime(toTime(rows_->value(finer_))));
    }

private:
    struct KeyPart {
        int place;
        ColumnType kind;
        int reference;  ///< -1: none
    };
    ColumnType kind(const char* column) const { return about_.field(QString::fromLatin1(column))->type; }
    int place(const char* column) {
        const QString name = u'"' + QString::fromLatin1(column) + u'"';
        if (!columns_.contains(name)) columns_ << name;
        return static_cast<int>(columns_.indexOf(name));
    }

    const MergeTable& table_;
    TableDef about_;
    QStringList columns_;
    std::vector<KeyPart> keyParts_;
    std::vector<int> references_;
    std::vector<int> required_;
    int finer_ = -1;
    int day_ = 0;
    int time_ = 0;
    int deleted_ = 0;
    std::unique_ptr<Statement> rows_;
};

void TableMerge::readLocal() {
    local_.clear();
    for (Reader rows(work_.local, table_, {}); rows.next();) {
        const QDate day = rows.day();
        local_.add(joined(rows.key(nullptr)), {.id = rows.id(),
                                               .day = day.isValid() ? day : unstamped,
                                               .time = rows.time(table_.noTime),
                                               .deleted = rows.deleted(),
                                               .finer = rows.finer()});
    }
}

/// The translated keys of a row. Whether it is left away for want of one of them.
bool TableMerge::translate(const Reader& rows, SourceRow& row) {
    bool skipped = false;
    bool any = false;
    qint64 sourceDivision = 0;
    qint64 localDivision = 0;
    for (size_t i = 0; i < table_.foreign.size(); ++i) {
        const ForeignKey& column = table_.foreign[i];
        const qint64 source = rows.reference(i);
        const LocalId found = work_.parents.find(column, source, sourceDivision, localDivision);
        row.references[i] = found.id;
        any = any || found.id != 0;
        if (qstrcmp(column.parent, "tblDivision") == 0) sourceDivision = source, localDivision = found.id;
        const bool waits = source != 0 && found.id == 0 && work_.parents.isIncomplete(column.parent);
        incomplete_ = incomplete_ || waits;
        switch (column.unknown) {
            case Unknown::Zero: skipped = skipped || waits; break;
            case Unknown::Skips: skipped = skipped || found.id == 0; break;
            case Unknown::SkipsUnlessZero: skipped = skipped || (found.id == 0 && source != 0); break;
            case Unknown::SkipsUnlessLive: skipped = skipped || !found.live; break;
        }
    }
    return skipped || (table_.needsReference && !any);
}

void TableMerge::readSource(const Failed& failed) {
    QString order;
    for (const char* column : table_.order) order += u'"' + QString::fromLatin1(column) + QStringLiteral("\",");
    const bool isTeam = qstrcmp(table_.name, "tblTeam") == 0;
    const bool asText =
        table_.match == Match::PlayerText;  // a day that is none is written as today, but looked for as it is
    const QDate noDay = asText ? QDate() : work_.context.clock.today();
    const bool hasTwins = table_.match == Match::LiveOrDeletedAlike || table_.match == Match::LiveOrReused;
    for (Reader rows(work_.source, table_, order); rows.next();) {
        SourceRow& row = source_.emplace_back();
        row.id = rows.id();
        row.day = rows.day();
        row.time = rows.time(-1);
        row.deleted = rows.deleted();
        const char* missing = rows.missing();
        row.skipped = translate(rows, row) || missing;
        if (missing && !row.deleted && !rows.name().isEmpty()) failed(incomplete(rows.name(), missing));
        std::vector<QString> key = rows.key(&row.references, noDay);
        row.key = joined(key);
        row.finer = rows.finer();
        if (table_.finer && !row.skipped) finerOfSource_.insert(withFiner(row.key, row.finer));
        if (hasTwins && !row.skipped && !row.deleted) liveOfSource_.insert(row.key);
        if (isTeam) row.teamName = key.back(), row.sourceDivision = rows.reference(0);
        if (!asText) continue;
        const QDate birthDate = datafile::toDate(Value{key.back()});
        if (cutsBack(rows.text(0), rows.text(1), birthDate)) continue;
        if (!birthDate.isValid()) key.back() = toText(datafile::fromDate(work_.context.clock.today()));
        row.exactKey = joined(key);
    }
}

bool TableMerge::isNewer(const SourceRow& row, const LocalRows::Row& local) {
    if (!row.day.isValid() || row.day < local.day) return false;
    return row.day > local.day || row.time > local.time;  // without a time it is below any
}

/// Saved at one time: of several local rows with one key this is the row that was merged before.
bool TableMerge::isCopy(const SourceRow& row, const LocalRows::Row& local) {
    return row.day == local.day && row.time == local.time && row.deleted == local.deleted;
}

TableMerge::Choice TableMerge::choose(const SourceRow& row) const {
    if (!row.exactKey.isEmpty()) return {local_.find(row.exactKey), true};
    if (table_.finer) {
        const int same = local_.find(row.key, [&](const LocalRows::Row& local) { return local.finer == row.finer; });
        if (same >= 0) return {same, false};
        return {local_.find(row.key,
                            [&](const LocalRows::Row& local) {
                                return !finerOfSource_.contains(withFiner(row.key, local.finer));
                            }),
                false};
    }
    const bool liveOnly = table_.match == Match::LiveOrDeletedAlike && !row.deleted;
    int found = local_.find(row.key, [&](const LocalRows::Row& local) { return isCopy(row, local); });
    if (found < 0)
        found = local_.find(row.key, [&](const LocalRows::Row& local) { return !liveOnly || !local.deleted; });
    return {found, table_.match == Match::LiveOrReused && found >= 0 && local_.row(found).deleted};
}

/// What the merge knows of a row once it stands in the local file.
LocalRows::Row TableMerge::asWritten(const SourceRow& row) const {
    const Clock& clock = work_.context.clock;
    const bool now = table_.stampedNow;
    return {.day = row.day.isValid() && !now ? row.day : clock.today(),
            .time = row.time >= 0 && !now ? row.time : clock.secondsSinceMidnight(),
            .deleted = row.deleted,
            .finer = row.finer};
}

void TableMerge::decide() {
    for (size_t i = 0; i < source_.size(); ++i) {
        const SourceRow& row = source_[i];
        if (row.skipped || (row.deleted && liveOfSource_.contains(row.key))) continue;
        const Choice choice = choose(row);
        if (choice.local < 0) {
            if (row.deleted && !table_.addsDeleted) continue;
            writes_.push_back({i, local_.add(row.exactKey.isEmpty() ? row.key : row.exactKey, asWritten(row))});
            continue;
        }
        LocalRows::Row& local = local_.row(choice.local);
        if (table_.existing == Existing::Stays) continue;
        if (table_.existing == Existing::OlderYields && !choice.wins && !isNewer(row, local)) continue;
        const qint64 id = local.id;
        const int next = local.next;
        local = asWritten(row);
        local.id = id;
        local.next = next;
        writes_.push_back({i, choice.local});
    }
}

void TableMerge::write(const Failed& failed, const std::function<void(size_t)>& progress) {
    constexpr size_t often = 256;
    RowWriter writer(work_, table_);
    for (size_t i = 0; i < writes_.size(); ++i) {
        const SourceRow& row = source_[writes_[i].source];
        LocalRows::Row& local = local_.row(writes_[i].local);
        try {
            const qint64 id = writer.write(row.id, {row.references.data(), table_.foreign.size()}, local.id);
            local.id = id;
        } catch (const Error& error) {
            if (!isRefusal(error.fault())) throw;
            incomplete_ = true;
            failed(error);
        }
        if (progress && i % often == 0) progress(i);
    }
}

void TableMerge::drop() {
    incomplete_ = true;
    writes_.clear();
    local_.clear();
    try {
        readLocal();
    } catch (const Error&) {
        local_.clear();  // then no row of it is found, and rows that belong to one wait
    }
}

void TableMerge::remember() {
    work_.parents.setIncomplete(table_.name, incomplete_);
    if (!table_.id) return;
    const auto localId = [this](const QString& key) {
        const int place = local_.find(key);
        return place < 0 ? LocalId{} : LocalId{local_.row(place).id, !local_.row(place).deleted};
    };
    for (const SourceRow& row : source_) {
        if (row.teamName.isNull())
            work_.parents.remember(table_.name, row.id, localId(row.key));
        else
            work_.parents.rememberTeam(row.id, row.sourceDivision, row.teamName);
    }
    if (qstrcmp(table_.name, "tblTeam") == 0)
        for (const QString& key : local_.keys()) work_.parents.rememberLocalTeam(key, localId(key));
}
