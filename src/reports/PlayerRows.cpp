#include "platform/text/Dates.h"
#include "reports/Reports.h"
#include "store/AgeRule.h"

using namespace report;

QueryText Reports::players(Needs parents, const QString& moreColumns) {
    const QString select =
        "SELECT PlayerId, PlayerDivisionId, PlayerTeamId, PlayerLastName, PlayerFirstName, PlayerMiddleInitial, "
        "PlayerBirthDate, PlayerGender, PlayerAddress1, PlayerAddress2, PlayerCity, PlayerStateId, PlayerPostalCode, "
        "PlayerCountryCode, PlayerPhoneArea, PlayerPhone, PlayerSchoolName, PlayerJerseyNumber, "
        "PlayerDadLastName, PlayerDadFirstName, PlayerDadPhoneArea, PlayerDadPhone, PlayerDadWorkPhoneArea, "
        "PlayerDadWorkPhone, PlayerDadMobilePhoneArea, PlayerDadMobilePhone, "
        "PlayerMomLastName, PlayerMomFirstName, PlayerMomPhoneArea, PlayerMomPhone, PlayerMomWorkPhoneArea, "
        "PlayerMomWorkPhone, PlayerMomMobilePhoneArea, PlayerMomMobilePhone, "
        "DivName, DivAgeCutOffMonth, DivAgeCutOffDay, DivMinAge, DivMaxAge, TeamName%1 "
        "FROM tblRegistration "
        "%2 JOIN tblDivision ON tblRegistration!PlayerDivisionId = tblDivision!DivisionId "
        "AND tblDivision!DeletedFlag = False "
        "%3 JOIN tblTeam ON tblRegistration!PlayerTeamId = tblTeam!TeamId AND tblTeam!DeletedFlag = False";
    const QString division = parents == Needs::Nothing ? "LEFT" : "INNER";
    const QString team = parents == Needs::Team ? "INNER" : "LEFT";
    const QString more = moreColumns.isEmpty() ? QString() : QString(", " + moreColumns);
    return QueryText(select.arg(more, division, team)).where("tblRegistration!DeletedFlag = False");
}

QueryText Reports::activePlayers(Needs parents, const QString& moreColumns) {
    return players(parents, moreColumns).where("PlayerActive = True");
}

QueryText& Reports::wherePlayer(QueryText& query, const QString& entry) {
    if (entry == ReportLists::allEntry(ListKind::Players)) return query;
    return query.where("([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) = ?", {entry});
}

ReportDefinition Reports::playerList(const ReportInput& input, const QString& title) {
    ReportDefinition list = headed(input, title);
    list.landscape = true;
    list.points = 8.5;
    list.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 16, {}, Total::Count},
        {tr("Birth Date"), date("PlayerBirthDate"), 9, Alignment::Right},
        {tr("Age"), playerAge(input), 4, Alignment::Center},
        {tr("Gender"), column("PlayerGender"), 6.5},
        {tr("Address"), playerAddress(), 20},
        {tr("City"), column("PlayerCity"), 11},
        {tr("Zip/Postal"), column("PlayerPostalCode"), 10},
        {tr("Phone"), phone("PlayerPhoneArea", "PlayerPhone"), 12},
        {tr("Guardians"), guardianNames(), 18},
        {tr("Guardian Phones"), guardianPhones(), 13},
    };
    list.totals = fixed(tr("Players:"));
    return list;
}

ReportDefinition Reports::playerStatusList(const ReportInput& input, const QString& title) {
    ReportDefinition list = playerList(input, title);
    list.columns.resize(list.columns.size() - 2);
    list.columns.push_back({tr("Division"), column("DivName").orElse(tr("Not Assigned to a Division")), 16});
    list.columns.push_back({tr("Guardians"), playerGuardians(), 20});
    return list;
}

Field Reports::playerAddress() { return joined({"PlayerAddress1", "PlayerAddress2"}); }

Field Reports::playerCity() { return cityLine("PlayerCity", "PlayerStateId", "PlayerPostalCode", "PlayerCountryCode"); }

/// "Ann & Bob Smith" for two of one name, "Ann Smith & Bob Jones" for others.
Field Reports::playerGuardians() {
    return computed([](const Row& row) {
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

namespace {

const char* const guardians[] = {"PlayerDad", "PlayerMom"};

QString nameOf(const Row& row, const QString& guardian) {
    const QString first = row.text(guardian + "FirstName"), last = row.text(guardian + "LastName");
    return QString(first % u' ' % last).trimmed();
}

QString phoneOf(const Row& row, const QString& guardian, const char* kind) {
    const QString column = guardian + QLatin1String(kind);
    return phoneText(row.text(column % QStringLiteral("Area")), row.text(column));
}

/// A line for each guardian who has a name.
Field ofEachGuardian(std::function<QString(const Row& row, const QString& guardian)> text) {
    return computed([text = std::move(text)](const Row& row) {
        QStringList lines;
        for (const char* guardian : guardians)
            if (!nameOf(row, guardian).isEmpty()) lines << text(row, guardian);
        return lines.join(u'\n');
    });
}

}  // namespace

Field Reports::guardianNames() { return ofEachGuardian(nameOf); }

Field Reports::guardianPhones() {
    return ofEachGuardian([](const Row& row, const QString& guardian) {
        for (const char* kind : {"MobilePhone", "Phone", "WorkPhone"})
            if (const QString phone = phoneOf(row, guardian, kind); !phone.isEmpty()) return phone;
        return QString();
    });
}

Field Reports::allPhones(const QString& guardian) {
    return computed([guardian, home = tr("Home"), work = tr("Work"), mobile = tr("Mobile")](const Row& row) {
        QStringList phones;
        const std::pair<const char*, QString> kinds[] = {{"Phone", home}, {"WorkPhone", work}, {"MobilePhone", mobile}};
        for (const auto& [kind, label] : kinds)
            if (const QString phone = phoneOf(row, guardian, kind); !phone.isEmpty())
                phones << QString(label % u' ' % phone);
        return phones.join(QStringLiteral("   "));
    });
}

Field Reports::playerAge(const ReportInput& input) {
    const CutOff defaults{input.globals.defaultAgeCutoffMonth, input.globals.defaultAgeCutoffDay};
    return computed([defaults, season = input.globals.currentSeasonYear](const Row& row) -> QVariant {
        const QDate birth = QDate::fromString(row.text("PlayerBirthDate").left(10), Qt::ISODate);
        if (!birth.isValid()) return {};
        const CutOff cutOff = cutOffByField({row.text("DivAgeCutOffMonth"), row.text("DivAgeCutOffDay")}, defaults);
        return CalculateAge(shortDate(birth), cutOff.month, cutOff.day, season);
    });
}
