#pragma once

#include "sample_league/Family.h"

namespace sample {

/// Adds volunteers. Their keys come from one place so that parents and others read alike.
class VolunteerRows {
public:
    explicit VolunteerRows(const League& league) : league_(league), rows_(league.database, "tblVolunteer") {}
    /// The key of the new row.
    int add(Chance& chance, const Family& family, const Parent& person, QDate registered, bool active, bool deleted);

private:
    const League& league_;
    Rows rows_;
};

}  // namespace sample
