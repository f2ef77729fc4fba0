#include "reports/Reports.h"

#include "platform/text/Dates.h"
#include "store/AgeRule.h"

report::ReportDefinition Reports::headed(const ReportInput& input, const QString& title) {
    const QString& format = input.globals.defaultDateFormat;
    report::ReportDefinition definition;
    definition.title = title;
    definition.organization = input.globals.organizationName;
    definition.asOf = formatDate(input.today, format.isEmpty() ? QStringLiteral("M/d/yy") : format);
    definition.footer = title;
    return definition;
}

report::Field Reports::playerAddress() {
    return report::computed([](const report::Row& row) {
        QStringList lines{row.text("PlayerAddress1"), row.text("PlayerAddress2")};
        lines.removeAll(QString());
        return lines.join(QStringLiteral(", "));
    });
}

/// "Ann & Bob Smith" for two of one name, "Ann Smith & Bob Jones" for others.
report::Field Reports::playerGuardians() {
    return report::computed([](const report::Row& row) {
        const QString lastName = row.text("PlayerDadLastName");
        const bool oneName = lastName == row.text("PlayerMomLastName") && !row.text("PlayerMomFirstName").isEmpty();
        QStringList guardians;
        for (const char* which : {"Dad", "Mom"}) {
            const QString column = QStringLiteral("Player") % QLatin1String(which);
            const QString first = row.text(column % QStringLiteral("FirstName"));
            const QString last = row.text(column % QStringLiteral("LastName"));
            const bool firstAlone = oneName && which[0] == 'D';
            const QString name = firstAlone ? first : QString(first % u' ' % last).trimmed();
            if (!name.isEmpty()) guardians << name;
        }
        return guardians.join(QStringLiteral(" & "));
    });
}

report::Field Reports::playerAge(const ReportInput& input) {
    const CutOff defaults{input.globals.defaultAgeCutoffMonth, input.globals.defaultAgeCutoffDay};
    return report::computed([defaults, season = input.globals.currentSeasonYear](const report::Row& row) -> QVariant {
        const QDate birth = QDate::fromString(row.text("PlayerBirthDate").left(10), Qt::ISODate);
        if (!birth.isValid()) return {};
        const CutOff cutOff = cutOffByField({row.text("DivAgeCutOffMonth"), row.text("DivAgeCutOffDay")}, defaults);
        return CalculateAge(shortDate(birth), cutOff.month, cutOff.day, season);
    });
}
