#include "maintenance/work/SeasonGrades.h"

#include "platform/text/Numbers.h"
#include "store/RecordClass.h"

using datafile::Database;
using datafile::quoted;

namespace {

QString oneMore(const QString& number) { return QString::number(*toNumber(number) + 1, 'g', 15); }

/// One UPDATE that gives every player's `column` its next value: a case for each number in use, and `otherwise` for
/// what is none. The player, and all behind them, to whom the column is too narrow for the new value stay as they are.
void raise(StoreContext& context, const Database& database, const QString& column, QString (*next)(const QString&),
           const QString& further) {
    QString cases;
    QStringList tooWide;
    const int width = database.table("tblRegistration")->field(column)->size;
    for (const QString& value : database.readList(
             QStringLiteral("SELECT DISTINCT [%1] FROM tblRegistration WHERE [%1] <> \"\"").arg(column), column)) {
        const QString raised = next(value);
        if (!isNumeric(value) && raised == next({})) continue;
        if (raised.size() > width) tooWide << quoted(value);
        cases += QStringLiteral(" WHEN %1 THEN %2").arg(quoted(value), quoted(raised));
    }
    const QString raised = QStringLiteral("CASE [%1]%2 ELSE %3 END").arg(column, cases, quoted(next({})));
    QString until;
    if (!tooWide.isEmpty())
        until =
            QStringLiteral(" WHERE [PlayerId] < %1")
                .arg(database
                         .openRecordset(QStringLiteral("SELECT Min([PlayerId]) AS Lowest FROM tblRegistration WHERE "
                                                       "[%1] IN (%2)")
                                            .arg(column, tooWide.join(u',')))
                         .number("Lowest"));
    database.execute(
        QStringLiteral("UPDATE tblRegistration SET [%1] = %2, %3%4%5")
            .arg(column, cases.isEmpty() ? quoted(next({})) : raised, further, freshStamps(context.clock), until));
}

}  // namespace

QString nextGrade(const QString& grade) {
    if (grade == u"12") return QStringLiteral("0");
    if (grade == u"0") return grade;
    if (isNumeric(grade)) return oneMore(grade);
    return grade.compare(u'K', Qt::CaseInsensitive) == 0 ? QStringLiteral("1") : QString();
}

QString nextExperience(const QString& years) { return isNumeric(years) ? oneMore(years) : QStringLiteral("1"); }

void increaseGrades(StoreContext& context, const Database& database, const QString&) {
    raise(context, database, QStringLiteral("PlayerGradeLevel"), &nextGrade,
          QStringLiteral("[PlayerSchoolName] = CASE [PlayerGradeLevel] WHEN \"12\" THEN \"\" ELSE [PlayerSchoolName] "
                         "END, "));
}

void increaseExperience(StoreContext& context, const Database& database, const QString&) {
    raise(context, database, QStringLiteral("PlayerYearsExperience"), &nextExperience, {});
}
