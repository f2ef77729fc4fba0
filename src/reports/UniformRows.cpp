#include "reports/UniformRows.h"

#include "reports/Reports.h"

using namespace report;

SizeOwners eachTeam() {
    return {.parents = "SELECT DivisionId AS OwnerDivision, TeamId AS OwnerTeam FROM tblTeam",
            .player = "PlayerDivisionId AS OwnerDivision, PlayerTeamId AS OwnerTeam",
            .staff = "DivisionId AS OwnerDivision, TeamId AS OwnerTeam"};
}

SizeOwners eachDivision() {
    return {.parents = "SELECT DivisionId AS OwnerDivision, 0 AS OwnerTeam FROM tblDivision",
            .player = "PlayerDivisionId AS OwnerDivision, 0 AS OwnerTeam"};
}

SizeOwners wholeLeague() {
    return {.parents = "SELECT 0 AS OwnerDivision, 0 AS OwnerTeam",
            .player = "0 AS OwnerDivision, 0 AS OwnerTeam",
            .bound = false};
}

ReportDefinition Reports::sizeCounts(const SizeOwners& owners, const QString& caption, const QString& table,
                                     const QString& sizeText, const QString& playerSize, const QString& staffSize) {
    QString wearers =
        "SELECT " + owners.player + ", " + playerSize + " AS WornSize FROM tblRegistration WHERE PlayerActive = True";
    if (!staffSize.isEmpty() && !owners.staff.isEmpty())
        wearers += " UNION ALL SELECT " + owners.staff + ", " + staffSize + " AS WornSize FROM tblTeamVolunteer";
    ReportDefinition list;
    list.query.text = "SELECT Owners.OwnerDivision AS OwnerDivision, Owners.OwnerTeam AS OwnerTeam, " + sizeText +
                      " AS SizeText, COUNT(Wearers.WornSize) AS Quantity FROM (" + owners.parents + ") AS Owners, " +
                      table + " LEFT JOIN (" + wearers +
                      ") AS Wearers ON Owners.OwnerDivision = Wearers.OwnerDivision "
                      "AND Owners.OwnerTeam = Wearers.OwnerTeam AND " +
                      sizeText + " = Wearers.WornSize WHERE " + table +
                      "!DeletedFlag = False GROUP BY Owners.OwnerDivision, Owners.OwnerTeam, " + sizeText +
                      " ORDER BY " + sizeText;
    list.columns = {{caption, column("SizeText"), 16},
                    {tr("Quantity"), number("Quantity"), 8, Alignment::Right, Total::Sum}};
    list.totals = fixed(tr("Total:"));
    if (owners.bound) list.boundTo = list.keys = QStringList{"OwnerDivision", "OwnerTeam"};
    return list;
}

ReportDefinition Reports::shirtCounts(const SizeOwners& owners) {
    return sizeCounts(owners, tr("Shirt Size"), "tblShirtSize", "ShirtSizeText", "PlayerShirtSize", "VolShirtSize");
}

ReportDefinition Reports::pantCounts(const SizeOwners& owners) {
    return sizeCounts(owners, tr("Pants Size"), "tblPantSize", "PantSizeText", "PlayerPantSize");
}

ReportDefinition Reports::hatCounts(const SizeOwners& owners) {
    return sizeCounts(owners, tr("Hat Size"), "tblHatSize", "HatSizeText", "PlayerHatSize");
}

ReportDefinition Reports::shoeCounts(const SizeOwners& owners) {
    return sizeCounts(owners, tr("Shoe Size"), "tblShoeSize", "ShoeSizeText", "PlayerShoeSize");
}

QueryText Reports::teams(const ReportInput& input) {
    return QueryText(
               "SELECT tblTeam!DivisionId AS OwnerDivision, tblTeam!TeamId AS OwnerTeam, DivName, TeamName "
               "FROM tblTeam INNER JOIN tblDivision ON tblTeam!DivisionId = tblDivision!DivisionId "
               "AND tblDivision!DeletedFlag = False")
        .where("tblTeam!DeletedFlag = False")
        .whereChosen("tblTeam!DivisionId", input.divisionId)
        .whereChosen("tblTeam!TeamId", input.teamId);
}

LeagueReport Reports::uniformsByTeam(const ReportInput& input, const QueryText& teams) {
    ReportDefinition report = headed(input, tr("Uniform Summary Report by Team/Player"));
    report.landscape = true;
    report.groups = {byDivision(), byTeam()};
    report.query = teams.orderBy("DivName, TeamName");
    ReportDefinition sizes;
    sizes.query.text =
        "SELECT PlayerTeamId, PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerPhoneArea, PlayerPhone, "
        "PlayerJerseyNumber, PlayerShirtSize, PlayerPantSize, PlayerHatSize, PlayerSocksSize, PlayerShoeSize "
        "FROM tblRegistration WHERE PlayerActive = True AND DeletedFlag = False "
        "ORDER BY PlayerLastName COLLATE Names, PlayerFirstName COLLATE Names, PlayerBirthDate";
    sizes.boundTo = QStringList{"OwnerTeam"};
    sizes.keys = QStringList{"PlayerTeamId"};
    sizes.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 19, {}, Total::Count},
        {tr("Phone"), phone("PlayerPhoneArea", "PlayerPhone"), 12},
        {tr("Birth Date"), date("PlayerBirthDate"), 9, Alignment::Right},
        {tr("Jersey"), column("PlayerJerseyNumber"), 6, Alignment::Center},
        {tr("Shirt"), column("PlayerShirtSize"), 13},
        {tr("Pants"), column("PlayerPantSize"), 13},
        {tr("Hat"), column("PlayerHatSize"), 14},
        {tr("Socks"), column("PlayerSocksSize"), 12},
        {tr("Shoe"), column("PlayerShoeSize"), 8},
    };
    sizes.totals = fixed(tr("Players:"));
    sizes.whenEmpty = tr("No players are assigned to this team.");
    report.subReports = {sizes};
    return report;
}
