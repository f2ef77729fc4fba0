#include "reports/SampleReports.h"

const std::vector<SampleReport>& sampleReports() {
    static const std::vector<SampleReport> all{
        {"rptPlayerReport1", Reports::rptPlayerReport1, {"All Players"}},
        {"rptPlayerReport2", Reports::rptPlayerReport2},
        {"rptPlayerReport3", Reports::rptPlayerReport3, {"", "All Divisions", "All Teams"}},
        {"rptPlayerReport3ByAge", Reports::rptPlayerReport3ByAge, {"", "Minors Baseball", "All Teams"}},
        {"rptPlayerReport4", Reports::rptPlayerReport4},
        {"rptPlayerReport5", Reports::rptPlayerReport5, {"All Schools", "All Divisions"}},
        {"rptPlayerReport6", Reports::rptPlayerReport6, {"", "T-Ball"}},
        {"rptPlayerReport7", Reports::rptPlayerReport7},
        {"rptPlayerReport8", Reports::rptPlayerReport8},
        {"rptPlayerReport9", Reports::rptPlayerReport9, {"", "All Divisions"}},
        {"rptPlayerSummary", Reports::rptPlayerSummary},
        {"rptTeamMedical", Reports::rptTeamMedical},
        {"rptPlayerRegistrationForm", Reports::rptPlayerRegistrationForm, {"", "T-Ball"}},
        {"rptPlayerBlankRegistrationForm", Reports::rptPlayerBlankRegistrationForm},
        {"rptBrackenValePlayerRegistration", Reports::rptBrackenValePlayerRegistration, {"", "T-Ball"}},
        {"rptBrackenValeBlankRegistration", Reports::rptBrackenValeBlankRegistration},
        {"rptFeeReport2", Reports::rptFeeReport2},
        {"rptFeeReport3", Reports::rptFeeReport3},
        {"rptFeeReport4", Reports::rptFeeReport4},
        {"rptFeeReport5", Reports::rptFeeReport5},
        {"rptFeeReport6", Reports::rptFeeReport6},
        {"rptFeeReport7", Reports::rptFeeReport7},
        {"rptSummaryReport2", Reports::rptSummaryReport2},
        {"rptUniformReport1", Reports::rptUniformReport1},
        {"rptUniformReport2", Reports::rptUniformReport2},
        {"rptUniformReport3", Reports::rptUniformReport3, {"", "T-Ball", "All Teams"}},
        {"rptUniformReport4", Reports::rptUniformReport4},
        {"rptUniformReport5", Reports::rptUniformReport5},
    };
    return all;
}
