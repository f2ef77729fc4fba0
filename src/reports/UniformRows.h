#pragma once

#include <QString>

/// Whose uniforms are counted together. Parents are told apart by the columns OwnerDivision and OwnerTeam.
struct SizeOwners {
    QString parents;    ///< the query of their two columns
    QString player;     ///< the same two of a row of tblRegistration
    QString staff{};    ///< and of tblTeamVolunteer, whose rows count as shirts; empty where staff are not counted
    bool bound = true;  ///< a count for each parent row, as against one for the league
};

SizeOwners eachTeam();
SizeOwners eachDivision();
SizeOwners wholeLeague();
