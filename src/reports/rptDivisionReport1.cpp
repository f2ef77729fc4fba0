#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptDivisionReport1(const ReportInput& input) {
    ReportDefinition record = headed(input, tr("Division Report"));
    record.noData = noRecords();
    record.query = QueryText(
                       "SELECT DivName, OfficialDivName, DivSport, DivGender, DivMinAge, DivMaxAge, "
                       "DivAgeCutOffMonth, DivAgeCutOffDay, DivDifficultyRating, DivRegistrationFee, DivUmpPlatePay, "
                       "DivUmpBasePay, DivNbrOfUmpsRequired, DivCertUmpsRequired, DivComments FROM tblDivision")
                       .where("DeletedFlag = False")
                       .whereChosen("DivisionId", input.divisionId)
                       .orderBy("DivName");
    const auto left = [](const QString& caption, const Field& field, double share) {
        return Column{.caption = caption, .field = field, .share = share, .alignment = Alignment::Left};
    };
    record.lines = {
        Line{{.field = column("DivName"), .share = 50, .bold = true, .larger = 2},
             left(tr("Official Name:"), column("OfficialDivName"), 50)},
        Line{left(tr("Sport:"), column("DivSport"), 25), left(tr("Gender:"), column("DivGender"), 25),
             left(tr("Ages:"), joined({"DivMinAge", "DivMaxAge"}, QStringLiteral(" - ")), 25),
             left(tr("Age Cut-off:"), joined({"DivAgeCutOffMonth", "DivAgeCutOffDay"}, QStringLiteral("/")), 25)},
        Line{left(tr("Registration Fee:"), money("DivRegistrationFee"), 50),
             left(tr("Difficulty Rating:"), column("DivDifficultyRating"), 50)},
        Line{left(tr("Umpires Required:"), column("DivNbrOfUmpsRequired"), 25),
             left(tr("Certified:"), yesIsZero("DivCertUmpsRequired"), 25),
             left(tr("Plate Pay:"), money("DivUmpPlatePay"), 25), left(tr("Base Pay:"), money("DivUmpBasePay"), 25)},
        Line{{tr("Comments:"), column("DivComments")}}.ifFilled(),
    };
    return record;
}
