#include "store/Housekeeping.h"

#include <QFile>

using datafile::Database;

namespace {

/// The stamps of a save, as the beginning of an UPDATE's list.
QString freshStamps(const StoreContext& context) {
    return QStringLiteral("[DateStamp] = %1, [TimeStamp] = %2")
        .arg(datafile::quoted(context.clock.today()))
        .arg(context.clock.secondsSinceMidnight());
}

/// The condition keeps the engine from writing to a table that is empty anyhow.
QString allOf(const char* table) { return QStringLiteral("DELETE FROM %1 WHERE True").arg(QLatin1String(table)); }

QString statementFor(const StoreContext& context, int kind, const QString& text) {
    switch (kind) {
        case InactivePlayers:
            return QStringLiteral(
                       "UPDATE tblRegistration SET %1, [DeletedFlag] = True WHERE tblRegistration![PlayerActive] = "
                       "False")
                .arg(freshStamps(context));
        case InactiveVolunteers:
            return QStringLiteral(
                       "UPDATE tblVolunteer SET %1, [DeletedFlag] = True WHERE tblVolunteer![VolActive] = False")
                .arg(freshStamps(context));
        case Schedule: return allOf("tblSchedule");
        case TempResults: return allOf("tblTempResults");
        case TempSearchList: return allOf("tblTempSearchList");
        case TempFeeReport: return allOf("tblTempFeeReport");
        case DivisionSchedule:
            if (text.isEmpty()) return {};
            return QStringLiteral("DELETE FROM tblSchedule WHERE [Division] = ") + datafile::quoted(text) +
                   QStringLiteral("  AND [DeletedFlag] = False");
        case LostTeams:
            return QStringLiteral("UPDATE tblRegistration SET [PlayerTeamId] = 0, ") + freshStamps(context) +
                   QStringLiteral(
                       " WHERE [PlayerTeamId] <> 0 AND [PlayerTeamId] not in (Select [TeamId] from tblTeam ORDER BY "
                       "[TeamId])");
        case DeletedRows: return QStringLiteral("DELETE FROM [%1] WHERE [DeletedFlag] = True ").arg(text);
        case TempFamilyLabels: return allOf("tblTempFamilyLabels");
        case EquipmentAvailable: return allOf("tblEquipmentAvailable");
        default: return {};
    }
}

}  // namespace

void DeleteRecords(StoreContext& context, int kind, const QString& text) {
    const QString statement = statementFor(context, kind, text);
    if (!statement.isEmpty()) context.database().execute(statement);
}

QStringList purgedTables() {
    return {"tblAbilityRating",
            "tblEquipmentAssignment",
            "tblRegistration",
            "tblRegistrationVolunteer",
            "tblVolToPosition",
            "tblVolunteerCertifications",
            "tblVolunteer",
            "tblResults",
            "tblTeamVolunteer",
            "tblTeamField",
            "tblTeam",
            "tblDivision",
            "tblEquipment",
            "tblField",
            "tblFieldAvailability",
            "tblInsurance",
            "tblPantSize",
            "tblRating",
            "tblHatSize",
            "tblSchedule",
            "tblSchoolInfo",
            "tblShirtSize",
            "tblShoeSize",
            "tblSocksSize",
            "tblSponsorPreviousPledge",
            "tblSponsor",
            "tblVendor",
            "tblVolunteerPositions"};
}

void ClearUpgradeWork(StoreContext& context) {
    DeleteRecords(context, TempSearchList);
    DeleteRecords(context, TempResults);
}

void CompactDataFile(StoreContext& context, const datafile::Progress& progress) {
    const QString& path = context.dataFilePath;
    const QString compacted = path.chopped(4) + QStringLiteral(".CPT");
    QFile::remove(compacted);  // of a program that was ended while it compacted
    try {
        context.workspace.compactDatabase(path, compacted, progress);
        context.workspace.replaceDatabase(path, compacted);
    } catch (...) {
        QFile::remove(compacted);
        throw;
    }
}
