#include "reports/Reports.h"

using namespace report;

/// One field, or all of them where none is named.
LeagueReport Reports::rptFieldReport1(const ReportInput& input) {
    const QString& name = input.lists[0];
    const bool all = meansAll(name, ListKind::Fields);
    ReportDefinition record = headed(input, tr("Field Report"));
    record.noData = all ? noRecords()
                        : NoData{tr("Field Report Error"),
                                 tr("No Field Selected.  Cannot") + u'\n' + tr("display Field information.")};
    QueryText fields = QueryText(
                           "SELECT FieldName, FieldLeagueAssociation, FieldStreet1, FieldStreet2, FieldCity, "
                           "FieldStateId, FieldPostalCode, FieldCountryCode, FieldContactName, FieldContactPhoneArea, "
                           "FieldContactPhone, FieldLights, FieldMultiPurpose, FieldDirections, FieldComments "
                           "FROM tblField")
                           .where("DeletedFlag = False");
    if (!all) fields.where("FieldName = ?", {name});
    record.query = fields.orderBy("FieldName");
    record.lines = {
        Line{{.field = column("FieldName"), .share = 50, .bold = true, .larger = 2},
             {tr("League Association:"), column("FieldLeagueAssociation"), 50}},
        Line{{.field = joined({"FieldStreet1", "FieldStreet2"}), .share = 50},
             {.field = cityLine("FieldCity", "FieldStateId", "FieldPostalCode", "FieldCountryCode"), .share = 50}}
            .ifFilled(),
        Line{{tr("Contact Person:"), column("FieldContactName"), 50},
             {tr("Phone:"), phone("FieldContactPhoneArea", "FieldContactPhone"), 50}},
        Line{{tr("MultiPurpose:"), yesIsZero("FieldMultiPurpose"), 50}, {tr("Lights:"), yesIsZero("FieldLights"), 50}},
        Line{{tr("Directions:"), column("FieldDirections")}}.ifFilled(),
        Line{{tr("Comments:"), column("FieldComments")}}.ifFilled(),
    };
    return record;
}
