#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptAbilityRating2(const ReportInput& input) {
    ReportDefinition record = headed(input, tr("Volunteer Ability Rating Report"));
    QueryText one = QueryText(
                        "SELECT VolLastName, VolFirstName, VolHomePhoneArea, VolHomePhone, VolEmailAddress, "
                        "VolComments AS Remarks" +
                        gradesOfStaff() +
                        " FROM tblVolunteer "
                        "LEFT JOIN tblAbilityRating ON tblAbilityRating!VolId = tblVolunteer!VolId "
                        "AND tblAbilityRating!DeletedFlag = False")
                        .where("tblVolunteer!DeletedFlag = False");
    record.query = whereVolunteer(one, input.lists[0]).orderBy("VolLastName, VolFirstName");
    record.lines = {Line{{.field = lastFirst("VolLastName", "VolFirstName"), .share = 40, .bold = true, .larger = 2},
                         {tr("Phone:"), phone("VolHomePhoneArea", "VolHomePhone"), 25},
                         {tr("Email:"), column("VolEmailAddress"), 35}}};
    const std::vector<Line> grades = staffGrades(tr("Unknown"));
    record.lines.insert(record.lines.end(), grades.begin(), grades.end());
    record.lines.push_back(Line{{tr("Comments:"), column("Remarks")}}.spaced().ifFilled());
    return record;
}
