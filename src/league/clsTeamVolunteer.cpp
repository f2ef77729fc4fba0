#include "league/clsTeamVolunteer.h"

namespace {

QString inPosition(int divisionId, int teamId, const QString& position) {
    return matches({{"DivisionId", divisionId}, {"TeamId", teamId}, {"VolPosName", position}});
}

}  // namespace

clsTeamVolunteer::clsTeamVolunteer(StoreContext& context)
    : RecordClass(context), links_(database().openRecordset("tblTeamVolunteer")) {
    open({.source = "tblVolunteer", .tag = "", .noRecords = ""});
    blank();
}

bool clsTeamVolunteer::loadHolder(bool found) {
    blank();
    VolShirtSize = found ? links_.text("VolShirtSize") : QString();
    return found && find(matches("VolId", static_cast<int>(links_.number("VolId"))), true);
}

bool clsTeamVolunteer::GetTeamVolunteerInfo(int divisionId, int teamId, const QString& position) {
    return loadHolder(standOn(links_, live(inPosition(divisionId, teamId, position))));
}

bool clsTeamVolunteer::GetTeamVolunteerInfo2(int divisionId, int teamId, const QString& position) {
    return GetTeamVolunteerInfo(divisionId, teamId, position) ||
           loadHolder(standOn(links_, deleted(inPosition(divisionId, teamId, position))));
}

bool clsTeamVolunteer::GetVolunteerRecord(const QString& listText) {
    const qsizetype comma = listText.indexOf(u',');
    if (comma < 0) return false;
    const qsizetype dash = listText.lastIndexOf(QStringLiteral(" - "));
    const QString firstName = dash > comma ? listText.mid(comma + 2, dash - comma - 2) : listText.mid(comma + 2);
    return find(matches({{"VolLastName", listText.left(comma)}, {"VolFirstName", firstName}}), true);
}

/// A row is named by volunteer and position together: where the volunteer once held the position, that row comes
/// back and the present holder's goes; otherwise the position's row passes on.
void clsTeamVolunteer::SaveVolunteerInfo(int volunteerId, int divisionId, int teamId, const QString& position,
                                         const QString& shirtSize) {
    const QString criteria = inPosition(divisionId, teamId, position);
    datafile::Transaction transaction(database());
    if (FindVolMergeRecord(volunteerId, divisionId, teamId, position)) {
        DeleteVolunteerInfo(divisionId, teamId, position);
    } else if (standOn(links_, live(criteria)) || standOn(links_, deleted(criteria))) {
        links_.edit();
        links_.set("VolId", volunteerId);
        updateStamped(links_, context().clock, false);
    }
    SaveVolunteerMergeInfo(volunteerId, divisionId, teamId, position, shirtSize, false);
    transaction.commit();
}

void clsTeamVolunteer::DeleteVolunteerInfo(int divisionId, int teamId, const QString& position) {
    if (divisionId > 0 && teamId > 0 && standOn(links_, live(inPosition(divisionId, teamId, position))))
        softDelete(links_, context().clock);
}

bool clsTeamVolunteer::FindVolMergeRecord(int volunteerId, int divisionId, int teamId, const QString& position) {
    return standOn(links_,
                   matches("VolId", volunteerId) + QStringLiteral(" AND ") + inPosition(divisionId, teamId, position));
}

void clsTeamVolunteer::SaveVolunteerMergeInfo(int volunteerId, int divisionId, int teamId, const QString& position,
                                              const QString& shirtSize, bool isDeleted) {
    if (FindVolMergeRecord(volunteerId, divisionId, teamId, position)) {
        links_.edit();
    } else {
        links_.addNew();
        links_.set("VolId", volunteerId);
        links_.set("DivisionId", divisionId);
        links_.set("TeamId", teamId);
        links_.set("VolPosName", position);
    }
    links_.set("VolShirtSize", shirtSize);
    updateStamped(links_, context().clock, isDeleted);
}
