#pragma once

#include <array>
#include <bitset>

/// What a new season can do to the data file, each behind its own check box. In the order of the screen.
enum class SeasonBox {
    MarkPlayersInactive,
    ChangePlayerRegistrationDate,
    RemoveUmpireCheck,
    RemoveOtherFeesAmount,
    ClearFeePaidAmount,
    RemoveTryoutNumber,
    RemoveDivisionAssignment,
    RemoveTeamAssignment,
    IncreaseYearsExperience,
    IncreaseGradeLevel,
    ClearPlayerRatings,
    RemovePlayerComments,
    MarkVolunteersInactive,
    ChangeVolunteerRegistrationDate,
    RemoveVolunteerPlayerAssociations,
    RemoveVolunteerPositions,
    RemoveVolunteerCertifications,
    ClearVolunteerRatings,
    DeleteAllVolunteers,
    DeleteDivisions,
    DeleteTeams,
    DeleteFieldAssignments,
    ResetTeamCoachInformation,
    ResetTeamSponsors,
    DeleteEquipmentAssignments,
    DeleteGameResults
};
inline constexpr size_t seasonBoxCount = 26;

/// The boxes as the user checks them. One may check, free or hold others, and those further ones in turn.
class SeasonBoxes {
public:
    bool isChecked(SeasonBox box) const { return checked_[place(box)]; }
    /// The boxes that come with the deletion of all volunteers are not for the user while that is checked.
    bool isEnabled(SeasonBox box) const;
    bool any() const { return checked_.any(); }
    /// Checks or unchecks a box, with all that follows from it. It may refuse, and stay checked.
    void set(SeasonBox box, bool checked);

private:
    static size_t place(SeasonBox box) { return static_cast<size_t>(box); }
    void followUp(SeasonBox box);

    std::bitset<seasonBoxCount> checked_;
};
