#include "reports/ReportLists.h"

#include "platform/text/Collation.h"
#include "store/Housekeeping.h"

namespace {

/// The query whose column Entry holds the list's texts.
QString queryOf(ListKind kind) {
    switch (kind) {
        case ListKind::None: break;
        case ListKind::Players:
            return "SELECT ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) AS Entry "
                   "FROM tblRegistration WHERE [DeletedFlag] = False "
                   "ORDER BY [PlayerLastName], [PlayerFirstName], [PlayerBirthDate]";
        case ListKind::Volunteers:
            return "SELECT ([VolLastName] & \", \" & [VolFirstName] & \" - \" & [VolHomePhone]) AS Entry "
                   "FROM tblVolunteer WHERE [DeletedFlag] = False "
                   "ORDER BY [VolLastName], [VolFirstName], [VolHomePhone]";
        case ListKind::RatedPlayers:
            return "SELECT ([LastName] & \", \" & [FirstName] & \" - \" & [BirthDate]) AS Entry "
                   "FROM tblTempSearchList WHERE [PlayerId] <> 0 ORDER BY [LastName], [FirstName], [BirthDate]";
        case ListKind::RatedVolunteers:
            return "SELECT ([LastName] & \", \" & [FirstName] & \" - \" & [HomePhone]) AS Entry "
                   "FROM tblTempSearchList WHERE [VolId] <> 0 ORDER BY [LastName], [FirstName], [HomePhone]";
        case ListKind::Sponsors:
            return "SELECT ([SponsorName]) AS Entry FROM tblSponsor WHERE [DeletedFlag] = False ORDER BY [SponsorName]";
        case ListKind::Divisions:
            return "SELECT ([DivName]) AS Entry FROM tblDivision WHERE [DeletedFlag] = False ORDER BY [DivName]";
        case ListKind::Teams:
            return "SELECT ([TeamName]) AS Entry FROM tblTeam WHERE [DeletedFlag] = False AND [DivisionId] = %1 "
                   "ORDER BY [TeamName]";
        case ListKind::Fields:
            return "SELECT ([FieldName]) AS Entry FROM tblField WHERE [DeletedFlag] = False ORDER BY [FieldName]";
        case ListKind::Schools:
            return "SELECT ([SchoolName]) AS Entry FROM tblSchoolInfo WHERE [DeletedFlag] = False "
                   "ORDER BY [SchoolName]";
        case ListKind::Categories:
            return "SELECT ([VolPosName]) AS Entry FROM tblVolunteerPositions WHERE [DeletedFlag] = False "
                   "ORDER BY [VolPosName]";
    }
    return {};
}

/// Players who are umpires and all volunteers, who are given a birth date that stands for none.
void fillSearchList(StoreContext& store, const datafile::Database& database) {
    datafile::Transaction whole(database);
    DeleteRecords(store, TempSearchList);
    database.execute(
        "INSERT INTO tblTempSearchList (PlayerId, VolId, FirstName, MiddleInitial, LastName, BirthDate, HomePhone) "
        "SELECT PlayerId, 0, PlayerFirstName, PlayerMiddleInitial, PlayerLastName, PlayerBirthDate, PlayerPhone "
        "FROM tblRegistration WHERE PlayerIsUmpire = True AND DeletedFlag = False");
    database.execute(
        "INSERT INTO tblTempSearchList (PlayerId, VolId, FirstName, MiddleInitial, LastName, BirthDate, HomePhone) "
        "SELECT 0, VolId, VolFirstName, \"\", VolLastName, #1/1/1940#, VolHomePhone "
        "FROM tblVolunteer WHERE DeletedFlag = False");
    whole.commit();
}

}  // namespace

QString ReportLists::label(ListKind kind) {
    switch (kind) {
        case ListKind::None: break;
        case ListKind::Players:
        case ListKind::RatedPlayers: return tr("Player List");
        case ListKind::Volunteers:
        case ListKind::RatedVolunteers: return tr("Volunteer List");
        case ListKind::Sponsors: return tr("Sponsor List");
        case ListKind::Divisions: return tr("Division List");
        case ListKind::Teams: return tr("Team List");
        case ListKind::Fields: return tr("Field List");
        case ListKind::Schools: return tr("School Name List");
        case ListKind::Categories: return tr("Volunteer Category List");
    }
    return tr("(Not Used for this Report)");
}

QString ReportLists::allEntry(ListKind kind) {
    switch (kind) {
        case ListKind::Players: return tr("All Players");
        case ListKind::Divisions: return tr("All Divisions");
        case ListKind::Teams: return tr("All Teams");
        case ListKind::Fields: return tr("All Fields");
        case ListKind::Schools: return tr("All Schools");
        case ListKind::Categories: return tr("All Volunteer Categories");
        default: return {};
    }
}

std::vector<QString> ReportLists::entries(StoreContext& store, ListKind kind, std::optional<int> divisionId) {
    std::vector<QString> entries;
    QString query = queryOf(kind);
    if (kind == ListKind::Teams) query = divisionId ? query.arg(*divisionId) : QString();
    if (!query.isEmpty()) {
        const datafile::Database database = store.database();
        if (kind == ListKind::RatedPlayers || kind == ListKind::RatedVolunteers) fillSearchList(store, database);
        entries = database.readList(query, "Entry");
        placeAccented(entries);
    }
    if (const QString all = allEntry(kind); !all.isEmpty()) entries.insert(entries.begin(), all);
    return entries;
}
