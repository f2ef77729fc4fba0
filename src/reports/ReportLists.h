#pragma once

#include <QCoreApplication>
#include <vector>

#include "store/StoreContext.h"

/// What a list of the selection screen offers.
enum class ListKind {
    None,
    Players,
    Volunteers,
    RatedPlayers,     ///< players who are umpires too, by way of the work table of the ratings
    RatedVolunteers,  ///< all volunteers, by the same way
    Sponsors,
    Divisions,
    Teams,  ///< of one division
    Fields,
    Schools,
    Categories
};

class ReportLists {
    Q_DECLARE_TR_FUNCTIONS(ReportLists)

public:
    static QString label(ListKind kind);
    /// The entry that comes first and means all of them; empty where one must be chosen.
    static QString allEntry(ListKind kind);
    /// The texts to choose from, the entry for all of them first. Teams are those of the division.
    static std::vector<QString> entries(StoreContext& store, ListKind kind, std::optional<int> divisionId = {});
};
