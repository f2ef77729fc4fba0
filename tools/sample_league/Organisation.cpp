#include "sample_league/League.h"

namespace sample {

namespace {

void addPreferences(League& league) {
    const Saved saved{league.upToToday(league.day(1, 5)), 20 * 3600};
    const City& home = league.names.cities[5];
    Rows(league.database, "tblOptions")
        .add({{"OptionId", 1},
              {"OrganizationName", "Kestrel Valley Youth Baseball"},
              {"OrgAffiliation", "Little League"},
              {"Address1", "P.O. Box 412"},
              {"City", home.name},
              {"StateId", home.state},
              {"PostalCode", home.zip},
              {"CountryCode", "USA"},
              {"DaytimePhone", "(503) 555-0140"},
              {"EveningPhone", "(503) 555-0199"},
              {"EmailAddress", "registrar@kestrelvalley.example"},
              {"LastBackupDate", league.options.today.addDays(-5)},
              {"LastCompactDate", league.options.today.addDays(-19)},
              {"CurrentSeasonYear", QString::number(league.options.season)},
              {"ShowSplashScreen", false}},
             saved);
    Rows(league.database, "tblDefaults")
        .add({{"DefaultsId", 1},
              {"DefaultPlayerFee", "110.00"},
              {"DefaultSponsorFee", "300.00"},
              {"DefaultFundRaiserFee", "25.00"},
              {"DefaultTeamFee", "150.00"},
              {"DefaultCity", home.name},
              {"DefaultStateId", home.state},
              {"DefaultPostalCode", home.zip},
              {"DefaultAreaCode", home.area},
              {"DefaultDateFormat", "MM/dd/yy"},
              {"DefaultAgeCutoffMonth", "8"},
              {"DefaultAgeCutoffDay", "1"},
              {"RegCustomFieldLabel1", "Wants to Play With"},
              {"RegCustomFieldLabel2", "Carpool Area"},
              {"RegCustomFieldLabel3", "Picture Package"},
              {"RegCustomFieldLabel4", "Bats (L/R/Switch)"},
              {"RegCustomFieldLabel5", "Last Season's Team"},
              {"RegCustomFieldLabel6", "All-Star Tournament?"},
              {"VolCustomFieldLabel1", "Background Check Date"},
              {"VolCustomFieldLabel2", "Shed Key Number"},
              {"VolCustomFieldLabel3", "Years of Coaching"},
              {"VolCustomFieldLabel4", "Days Not Available"},
              {"VolCustomFieldLabel5", "Languages Spoken"},
              {"VolCustomFieldLabel6", "Cap Size"}},
             saved);
}

void addSchools(League& league) {
    Rows schools(league.database, "tblSchoolInfo");
    const Saved saved{league.upToToday(league.day(1, 5)), 20 * 3600 + 900};
    for (const QString& name : league.names.schools)
        schools.add({{"SchoolName", name}, {"SchoolComments", name == "Home School" ? "Taught by the family" : ""}},
                    saved);
    schools.add({{"SchoolName", "Old Mill Elementary"}, {"SchoolComments", "Closed"}}, {saved.day, saved.second, true});
}

}  // namespace

void makeOrganisation(League& league) {
    addPreferences(league);
    addSchools(league);
}

}  // namespace sample
