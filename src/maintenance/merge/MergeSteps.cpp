#include "maintenance/merge/MergeSteps.h"

#include <QtGlobal>

namespace {

MergeTable byName(const char* table, const char* name, const char* id, std::vector<const char*> order = {}) {
    return {.name = table, .naturalKey = {name}, .id = id, .order = std::move(order), .required = {name}};
}

MergeTable size(const char* table, const char* name, const char* text) {
    return {.name = table, .naturalKey = {text}, .order = {name}, .required = {name, text}};
}

ForeignKey team(const char* column, Unknown unknown = Unknown::Zero) {
    return {column, "tblTeam", unknown, "DivisionId"};
}

MergeStep sponsors() {
    MergeTable table = byName("tblSponsor", "SponsorName", "SponsorId", {"SponsorName"});
    table.addsDeleted = false;
    return {QT_TRANSLATE_NOOP("Merge", "Merging Sponsor Registrations..."), {table}};
}

MergeStep pledges() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Sponsor Previous Pledges..."),
            {{.name = "tblSponsorPreviousPledge",
              .naturalKey = {"SponsorId", "PreviousPledgeYear"},
              .foreign = {{"SponsorId", "tblSponsor", Unknown::Skips}}}}};
}

MergeStep divisions() {
    MergeTable table = byName("tblDivision", "DivName", "DivisionId", {"DivName"});
    table.match = Match::LiveOrDeletedAlike;
    table.oneUnlessNumber = {"DivAgeCutOffMonth", "DivAgeCutOffDay"};
    return {QT_TRANSLATE_NOOP("Merge", "Merging Divisions..."), {table}};
}

MergeStep teams() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Team Records..."),
            {{.name = "tblTeam",
              .naturalKey = {"DivisionId", "TeamName"},
              .id = "TeamId",
              .order = {"TeamName"},
              .foreign = {{"DivisionId", "tblDivision"}, {"SponsorId", "tblSponsor"}},
              .required = {"TeamName"},
              .zeroUnlessNumber = {"TeamFeeAmount", "TeamFeePaid"},
              .match = Match::LiveOrReused}}};
}

MergeStep players() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Player Records...This could take a few minutes"),
            {{.name = "tblRegistration",
              .naturalKey = {"PlayerLastName", "PlayerFirstName", "PlayerBirthDate"},
              .id = "PlayerId",
              .order = {"PlayerLastName", "PlayerFirstName", "PlayerBirthDate"},
              .foreign = {{"PlayerDivisionId", "tblDivision"},
                          {"PlayerTeamId", "tblTeam", Unknown::Zero, "PlayerDivisionId", true}},
              .required = {"PlayerLastName", "PlayerFirstName"},
              .match = Match::PlayerText,
              .age = "PlayerAge",
              .addsDeleted = false,
              .noTime = 0}}};
}

MergeStep volunteers() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Volunteer Records..."),
            {{.name = "tblVolunteer",
              .naturalKey = {"VolLastName", "VolFirstName", "VolHomePhone"},
              .id = "VolId",
              .order = {"VolLastName", "VolFirstName", "VolHomePhone"},
              .required = {"VolLastName", "VolFirstName", "VolHomePhone"},
              .addsDeleted = false}}};
}

/// A person is rated as a player or as a volunteer; the other key is 0. Comments stand with the person.
MergeStep abilityRatings() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Ability Rating Records..."),
            {{.name = "tblAbilityRating",
              .naturalKey = {"PlayerId", "VolId"},
              .foreign = {{"PlayerId", "tblRegistration", Unknown::SkipsUnlessZero},
                          {"VolId", "tblVolunteer", Unknown::SkipsUnlessZero}},
              .neverWritten = {"PlayerComments", "VolunteerComments"},
              .needsReference = true}}};
}

MergeStep certifications() {
    MergeTable table = byName("tblCertifications", "CertificationName", "CertificationId", {"CertificationName"});
    table.required.push_back("CertifyingOrganization");
    return {QT_TRANSLATE_NOOP("Merge", "Merging Certification Records..."), {table}};
}

MergeStep equipment() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Equipment Records..."),
            {{.name = "tblEquipment",
              .naturalKey = {"ItemName", "Description"},
              .id = "EquipId",
              .foreign = {{"VendorId", "tblVendor"}, {"InsuranceId", "tblInsurance"}},
              .required = {"ItemName"}}}};
}

MergeStep equipmentAssignments() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Equipment Assignments..."),
            {{.name = "tblEquipmentAssignment",
              .naturalKey = {"DivisionId", "TeamId", "PlayerId", "VolId", "EquipmentId"},
              .foreign = {{"DivisionId", "tblDivision"},
                          team("TeamId"),
                          {"PlayerId", "tblRegistration"},
                          {"VolId", "tblVolunteer"},
                          {"EquipmentId", "tblEquipment"}},
              .zeroUnlessNumber = {"DistributionQuantity", "ReturnQuantity"}}}};
}

MergeStep sizes() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Uniform Size Records..."),
            {size("tblHatSize", "HatSize", "HatSizeText"), size("tblPantSize", "PantSize", "PantSizeText"),
             size("tblShirtSize", "ShirtSize", "ShirtSizeText"), size("tblShoeSize", "ShoeSize", "ShoeSizeText"),
             size("tblSocksSize", "SocksSize", "SocksSizeText")}};
}

/// Two games of the same teams on one day are told apart by their times.
MergeStep results() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Division Results..."),
            {{.name = "tblResults",
              .naturalKey = {"DivisionId", "HomeTeamId", "VisitorTeamId", "GameDate"},
              .foreign = {{"DivisionId", "tblDivision"}, team("HomeTeamId"), team("VisitorTeamId")},
              .existing = Existing::Yields,
              .finer = "GameTime"}}};
}

MergeStep teamFields() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Field Assignment Records..."),
            {{.name = "tblTeamField",
              .naturalKey = {"DivisionId", "FieldId"},
              .foreign = {{"FieldId", "tblField", Unknown::Skips}, {"DivisionId", "tblDivision"}},
              .existing = Existing::Stays}}};
}

MergeStep guardianLinks() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Vol. Position Requests...Could take a few minutes"),
            {{.name = "tblRegistrationVolunteer",
              .naturalKey = {"VolId", "PlayerId", "VolGender"},
              .order = {"VolId", "PlayerId"},
              .foreign = {{"VolId", "tblVolunteer", Unknown::Skips}, {"PlayerId", "tblRegistration", Unknown::Skips}},
              .required = {"VolGender"},
              .existing = Existing::Stays,
              .addsDeleted = false}}};
}

/// One position of a team has one live row at most: of several the one that was saved last stays.
constexpr char onePersonAPosition[] =
    "UPDATE tblTeamVolunteer SET DeletedFlag = 1, DateStamp = ?, TimeStamp = ? WHERE DeletedFlag = 0 AND EXISTS ("
    "SELECT 1 FROM tblTeamVolunteer AS other WHERE other.TeamId = tblTeamVolunteer.TeamId AND "
    "other.VolPosName = tblTeamVolunteer.VolPosName AND other.DivisionId = tblTeamVolunteer.DivisionId AND "
    "other.DeletedFlag = 0 AND (ifnull(other.DateStamp, '1940-01-01'), ifnull(other.TimeStamp, 1), other.rowid) > "
    "(ifnull(tblTeamVolunteer.DateStamp, '1940-01-01'), ifnull(tblTeamVolunteer.TimeStamp, 1), "
    "tblTeamVolunteer.rowid))";

MergeStep staff() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Team Volunteer Records..."),
            {{.name = "tblTeamVolunteer",
              .naturalKey = {"VolId", "DivisionId", "TeamId"},
              .foreign = {{"VolId", "tblVolunteer", Unknown::Skips},
                          {"DivisionId", "tblDivision", Unknown::SkipsUnlessLive},
                          team("TeamId", Unknown::SkipsUnlessLive)},
              .existing = Existing::Yields,
              .finer = "VolPosName",
              .stampedNow = true}},
            onePersonAPosition};
}

MergeStep positionLinks() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Vol. Position Assignments...Could take a few minutes"),
            {{.name = "tblVolToPosition",
              .naturalKey = {"VolId", "PlayerId", "VolPosId"},
              .foreign = {{"VolId", "tblVolunteer", Unknown::Skips},
                          {"PlayerId", "tblRegistration", Unknown::SkipsUnlessZero},
                          {"VolPosId", "tblVolunteerPositions", Unknown::Skips}}}}};
}

MergeStep certificationLinks() {
    return {QT_TRANSLATE_NOOP("Merge", "Merging Volunteer Certification Records"),
            {{.name = "tblVolunteerCertifications",
              .naturalKey = {"VolId", "CertificationId"},
              .foreign = {{"VolId", "tblVolunteer", Unknown::Skips},
                          {"CertificationId", "tblCertifications", Unknown::Skips}}}}};
}

}  // namespace

std::vector<MergeStep> mergeSteps() {
    return {
        sponsors(),
        pledges(),
        divisions(),
        teams(),
        players(),
        volunteers(),
        abilityRatings(),
        certifications(),
        {QT_TRANSLATE_NOOP("Merge", "Merging Difficulty Ratings..."),
         {byName("tblDifficultyRating", "DifficultyRatingText", nullptr, {"DifficultyRatingText"})}},
        {QT_TRANSLATE_NOOP("Merge", "Merging Insurance Records..."),
         {byName("tblInsurance", "InsAgencyName", "InsId", {"InsAgencyName"})}},
        {QT_TRANSLATE_NOOP("Merge", "Merging Vendor Records..."),
         {byName("tblVendor", "VendorName", "VendorId", {"VendorName"})}},
        equipment(),
        equipmentAssignments(),
        {QT_TRANSLATE_NOOP("Merge", "Merging Field Records..."),
         {byName("tblField", "FieldName", "FieldId", {"FieldName"})}},
        sizes(),
        {QT_TRANSLATE_NOOP("Merge", "Merging Ratings Records..."),
         {byName("tblRating", "RatingText", nullptr, {"RatingText"})}},
        results(),
        {QT_TRANSLATE_NOOP("Merge", "Merging School Name Records..."),
         {byName("tblSchoolInfo", "SchoolName", nullptr)}},
        teamFields(),
        guardianLinks(),
        staff(),
        {QT_TRANSLATE_NOOP("Merge", "Merging Position Type Records..."),
         {byName("tblVolunteerPositions", "VolPosName", "VolPosId")}},
        positionLinks(),
        certificationLinks(),
    };
}
