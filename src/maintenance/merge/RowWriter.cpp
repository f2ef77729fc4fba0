#include "maintenance/merge/RowWriter.h"

#include "platform/datafile/Connection.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

using datafile::ColumnType;
using datafile::FieldDef;
using datafile::Statement;
using datafile::toDate;
using datafile::toNumber;
using datafile::toText;
using datafile::toTime;
using datafile::Value;

namespace {

bool isOneOf(const std::vector<const char*>& names, const QString& name) {
    return std::any_of(names.begin(), names.end(), [&](const char* each) { return name == QLatin1String(each); });
}

QString quotedName(const QString& name) { return u'"' + name + u'"'; }

}  // namespace

PlayerAges::PlayerAges(MergeWork& work) : season_(work.context.globals.currentSeasonYear) {
    Statement divisions =
        work.local.prepare(QStringLiteral("SELECT DivisionId, DivAgeCutOffMonth, DivAgeCutOffDay FROM tblDivision"));
    while (divisions.step()) divisions_.insert(divisions.number(0), {divisions.text(1), divisions.text(2)});
    Statement defaults = work.local.prepare(
        QStringLiteral("SELECT DefaultAgeCutoffMonth, DefaultAgeCutoffDay FROM tblDefaults ORDER BY rowid"));
    if (defaults.step()) standard_ = {defaults.text(0), defaults.text(1)};
}

int PlayerAges::age(const QDate& birthDate, qint64 division) const {
    const CutOff cutOff = cutOffByPair(divisions_.value(division), standard_);
    return CalculateAge(shortDate(birthDate), cutOff.month, cutOff.day, season_);
}

RowWriter::RowWriter(MergeWork& work, const MergeTable& table) : work_(work), table_(table) {
    QStringList names;
    QStringList marks;
    const QString tableName = QString::fromLatin1(table.name);
    for (const FieldDef& field : work.local.table(tableName)->fields) {
        const bool known = work.source.table(tableName)->field(field.name) != nullptr;
        if (!known || field.type == ColumnType::AutoKey || isOneOf(table.neverWritten, field.name)) continue;
        if (field.name == QLatin1String("PlayerBirthDate")) birthDate_ = columns_.size();
        columns_.push_back(describe(field));
        names << quotedName(field.name);
        marks << QStringLiteral("?");
    }
    if (table.age) ages_.emplace(work);
    const QString quoted = quotedName(tableName);
    read_ = QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?").arg(names.join(u','), quoted);
    insert_ = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(quoted, names.join(u','), marks.join(u','));
    update_ = QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = ?").arg(quoted, names.join(QStringLiteral(" = ?,")));
}

RowWriter::Column RowWriter::describe(const FieldDef& field) const {
    Column column{.name = field.name, .type = field.type};
    if (isOneOf(table_.zeroUnlessNumber, field.name)) column.unlessNumber = "0";
    if (isOneOf(table_.oneUnlessNumber, field.name)) column.unlessNumber = "1";
    if (field.type == ColumnType::Date) {
        const bool isTime = table_.finer && field.name == QLatin1String(table_.finer);
        column.content = isTime ? Content::Moment : Content::Day;
    }
    if (field.name == QLatin1String("TimeStamp")) column.content = Content::Time;
    if (table_.age && field.name == QLatin1String(table_.age)) column.content = Content::Age;
    for (size_t i = 0; i < table_.foreign.size(); ++i)
        if (field.name == QLatin1String(table_.foreign[i].column))
            column.content = Content::Reference, column.reference = i;
    return column;
}

/// A missing text is an empty one, a missing day is today, a missing time is now; numbers are taken as they are.
Value RowWriter::converted(const Column& column, const Value& stored, bool adding) const {
    const Clock& clock = work_.context.clock;
    switch (column.content) {
        case Content::Day: {
            const bool now = table_.stampedNow && column.name == QLatin1String("DateStamp");
            const QDate day = toDate(stored);
            return datafile::fromDate(day.isValid() && !now ? day : clock.today());
        }
        case Content::Moment: {
            const QTime time = toTime(stored);
            const QTime now = clock.now().time();
            return datafile::fromTime(time.isValid() ? time : QTime(now.hour(), now.minute()));
        }
        case Content::Time: {
            const qint64 now = clock.secondsSinceMidnight();
            return table_.stampedNow ? Value{now} : Value{toNumber(stored, now)};
        }
        default: break;
    }
    if (column.type == ColumnType::Text) {
        const QString text = toText(stored);
        if (adding && column.unlessNumber && !isNumeric(text)) return QString::fromLatin1(column.unlessNumber);
        return text.isNull() ? QStringLiteral("") : text;
    }
    if (column.type == ColumnType::Boolean) return datafile::fromFlag(toNumber(stored) != 0);
    return datafile::isNull(stored) ? stored : Value{toNumber(stored)};
}

qint64 RowWriter::write(qint64 source, std::span<const qint64> references, qint64 local) {
    {
        Statement read = work_.source.prepare(read_);
        if (!read.bind(Value{source}).step()) return local;
        row_.clear();
        for (size_t i = 0; i < columns_.size(); ++i) {
            const Column& column = columns_[i];
            row_.push_back(column.content == Content::Reference
                               ? Value{references[column.reference]}
                               : converted(column, read.value(static_cast<int>(i)), local == 0));
        }
    }
    if (ages_)
        for (size_t i = 0; i < columns_.size(); ++i)
            if (columns_[i].content == Content::Age)
                row_[i] = qint64{ages_->age(toDate(row_[birthDate_]), references.front())};
    Statement write = work_.local.prepare(local == 0 ? insert_ : update_);
    write.bind(row_);
    if (local != 0) write.bind(Value{local});
    write.run();
    return local == 0 ? work_.local.lastKey() : local;
}
