#include "maintenance/work/SeasonBoxes.h"

#include <algorithm>

namespace {

constexpr std::array comeWithVolunteers = {SeasonBox::MarkVolunteersInactive,
                                           SeasonBox::ChangeVolunteerRegistrationDate,
                                           SeasonBox::RemoveVolunteerPlayerAssociations,
                                           SeasonBox::RemoveVolunteerPositions,
                                           SeasonBox::RemoveVolunteerCertifications,
                                           SeasonBox::ClearVolunteerRatings};

constexpr std::array comeWithDivisions = {
    SeasonBox::RemoveDivisionAssignment, SeasonBox::RemoveTeamAssignment, SeasonBox::DeleteTeams,
    SeasonBox::DeleteFieldAssignments,   SeasonBox::DeleteGameResults,    SeasonBox::ResetTeamCoachInformation,
    SeasonBox::ResetTeamSponsors};

}  // namespace

bool SeasonBoxes::isEnabled(SeasonBox box) const {
    return !isChecked(SeasonBox::DeleteAllVolunteers) ||
           std::find(comeWithVolunteers.begin(), comeWithVolunteers.end(), box) == comeWithVolunteers.end();
}

void SeasonBoxes::set(SeasonBox box, bool checked) {
    if (isChecked(box) == checked) return;
    checked_[place(box)] = checked;
    followUp(box);
}

void SeasonBoxes::followUp(SeasonBox box) {
    const bool checked = isChecked(box);
    const bool divisionsGo = isChecked(SeasonBox::DeleteDivisions);
    switch (box) {
        case SeasonBox::DeleteAllVolunteers:
            for (const SeasonBox other : comeWithVolunteers) set(other, checked);
            if (checked) set(SeasonBox::ResetTeamCoachInformation, true);  // which stays when this one goes
            break;
        case SeasonBox::DeleteDivisions:
            if (checked)
                for (const SeasonBox other : comeWithDivisions) set(other, true);
            break;
        case SeasonBox::DeleteTeams:
            if (checked) {
                set(SeasonBox::RemoveTeamAssignment, true);
                set(SeasonBox::DeleteGameResults, true);
            }
            if (divisionsGo) set(SeasonBox::DeleteTeams, true);
            break;
        case SeasonBox::DeleteFieldAssignments:
            if (divisionsGo) set(box, true);
            break;
        case SeasonBox::DeleteGameResults:
            if (divisionsGo || isChecked(SeasonBox::DeleteTeams)) set(box, true);
            break;
        case SeasonBox::RemoveDivisionAssignment:
            if (checked) set(SeasonBox::RemoveTeamAssignment, true);
            if (divisionsGo) {
                set(SeasonBox::RemoveDivisionAssignment, true);
                set(SeasonBox::RemoveTeamAssignment, true);
            }
            break;
        case SeasonBox::RemoveTeamAssignment:
            if (!checked) set(SeasonBox::RemoveDivisionAssignment, false);
            break;
        default: break;
    }
}
