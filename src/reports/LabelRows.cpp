#include "reports/LabelRows.h"

#include "reports/Reports.h"
#include "store/Housekeeping.h"

using namespace report;

void fillFamilyLabels(StoreContext& store, std::optional<int> divisionId) {
    static constexpr std::pair<const char*, const char*> columns[] = {
        {"LastName", "PlayerLastName"},      {"Address1", "PlayerAddress1"},
        {"Address2", "PlayerAddress2"},      {"City", "PlayerCity"},
        {"State", "PlayerStateId"},          {"PostalCode", "PlayerPostalCode"},
        {"CountryCode", "PlayerCountryCode"}};
    const datafile::Database database = store.database();
    datafile::Transaction whole(database);
    DeleteRecords(store, TempFamilyLabels);
    QString query = "SELECT * FROM tblRegistration";
    if (divisionId) query += " WHERE PlayerDivisionId = " + QString::number(*divisionId);
    datafile::Recordset players = database.openRecordset(query + " ORDER BY PlayerLastName, PlayerAddress1, PlayerId");
    datafile::Recordset labels = database.openRecordset("tblTempFamilyLabels");
    QString lastName, address;
    for (; !players.eof(); players.moveNext()) {
        if (players.text("PlayerLastName") == lastName && players.text("PlayerAddress1") == address) continue;
        lastName = players.text("PlayerLastName");
        address = players.text("PlayerAddress1");
        labels.addNew();
        for (const auto& [label, player] : columns) labels.set(label, datafile::Value{players.text(player)});
        labels.update();
    }
    whole.commit();
}

LeagueReport Reports::labels(const ReportInput& input, const Field& name, const report::Query& query) {
    ReportDefinition sheet;
    sheet.title = tr("Mailing Labels");
    sheet.query = query;
    sheet.typeface = Typeface::Label;
    sheet.points = 11;
    sheet.lines = {Line{{.field = name}}, Line{{.field = joined({"Address1", "Address2"}, QStringLiteral("  "))}},
                   Line{{.field = cityLine("City", "State", "PostalCode", "CountryCode")}}};
    sheet.labels = LabelSheet{.skip = input.labels.skip};
    return sheet;
}
