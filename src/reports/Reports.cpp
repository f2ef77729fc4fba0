#include "reports/Reports.h"

#include "platform/text/Dates.h"

using namespace report;

ReportDefinition Reports::headed(const ReportInput& input, const QString& title) {
    const QString& format = input.globals.defaultDateFormat;
    ReportDefinition definition;
    definition.title = title;
    definition.organization = input.globals.organizationName;
    definition.asOf = formatDate(input.today, format.isEmpty() ? QStringLiteral("M/d/yy") : format);
    definition.footer = title;
    return definition;
}

namespace {

Group group(const QString& key, const Field& heading, const QString& footer) {
    Group result{.key = key, .header = {{.field = heading}}};
    if (!footer.isEmpty()) result.footer = fixed(footer);
    return result;
}

}  // namespace

Group Reports::byDivision(const QString& footer) {
    return group("DivName", column("DivName").before(tr("Division:") + u' ').orElse(tr("Not Assigned to a Division")),
                 footer);
}

Group Reports::byTeam(const QString& footer) {
    return group("TeamName", column("TeamName").before(tr("Team:") + u' ').orElse(tr("Not Assigned to a Team")),
                 footer);
}

Group Reports::byField(const QString& key) {
    return group(key, column(key).before(tr("Field:") + u' ').orElse(tr("Not Assigned to a Field")), {});
}

NoData Reports::noRecords() {
    return {tr("No Data to Report"), tr("No Records available to") + u'\n' + tr("display on the report.")};
}

bool Reports::meansAll(const QString& entry, ListKind kind) {
    return entry.isEmpty() || entry == ReportLists::allEntry(kind);
}
