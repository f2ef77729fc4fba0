#pragma once

/// Who gets a mailing label, and on which label of the first sheet it begins.
struct LabelOptions {
    /// Players; volunteers and sponsors have two of their own, with the first two numbers.
    enum Choice {
        Active = 0,
        Inactive = 1,
        Family = 2,    ///< one label for all players of one last name and address
        AgeRange = 3,  ///< by the age that is stored
        All = 99       ///< unless something else was chosen
    };
    enum Volunteers { ActiveVolunteers = 0, InactiveVolunteers = 1 };
    enum Sponsors { AssignedSponsors = 0, UnassignedSponsors = 1 };
    enum Status { AnyStatus = 0, OnlyActive = 1, OnlyInactive = 2 };

    int choice = All;
    int status = AnyStatus;  ///< of the players of an age range
    int lowerAge = 0;        ///< included, as is the upper one
    int upperAge = 0;
    int skip = 0;  ///< labels already used
};
