#pragma once

#include "platform/datafile/Workspace.h"
#include "store/BaseFile.h"
#include "store/Schema.h"
#include "store/UpgradeSteps.h"

#include <QSet>

/// Makes data files as older versions of the program left them: the schema of today, walked backwards through the
/// upgrade steps, with rows that the steps must change.
namespace olderfile {

inline datafile::TableDef* find(QList<datafile::TableDef>& tables, const QString& name) {
    for (datafile::TableDef& table : tables)
        if (table.name == name) return &table;
    return nullptr;
}

/// What steps take away, and how it looked then.
inline QList<datafile::FieldDef> takenColumns(const Change& change) {
    QList<datafile::FieldDef> fields;
    for (const QString& name : change.names) fields << datafile::FieldDef{.name = name, .size = 20};
    return fields;
}
inline datafile::IndexDef takenIndex(const Change& change) {
    if (change.names.first() == u"PrimaryKey") return {"PrimaryKey", {"VolId", "DivisionId", "TeamId"}, true, true};
    return {change.names.first(), {change.names.first()}};
}

inline void undo(const Change& change, QList<datafile::TableDef>& tables) {
    datafile::TableDef* table = find(tables, change.table);
    switch (change.kind) {
        case Change::Kind::AddColumns:
            table->fields.removeIf(
                [&](const auto& field) { return change.names.contains(field.name, Qt::CaseInsensitive); });
            break;
        case Change::Kind::DropColumns: table->fields << takenColumns(change); break;
        case Change::Kind::FinalRules:
            for (datafile::FieldDef& field : table->fields) {
                if (!change.names.contains(field.name, Qt::CaseInsensitive)) continue;
                const bool isText = field.type == datafile::ColumnType::Text;
                field.required = isText;
                field.allowZeroLength = !isText;
                field.hasDefault = false;
                field.defaultValue.clear();
            }
            break;
        case Change::Kind::CreateTable:
            tables.removeIf([&](const auto& each) { return each.name == change.table; });
            break;
        case Change::Kind::DropTable:
            tables << datafile::TableDef{change.table, {{.name = "TeamId", .type = datafile::ColumnType::Long}}};
            break;
        case Change::Kind::AddIndexes:
            table->indexes.removeIf([&](const auto& index) { return change.names.contains(index.name); });
            break;
        case Change::Kind::DropIndex: table->indexes << takenIndex(change); break;
        case Change::Kind::Work: break;
    }
}

/// The tables of a file at "Version 1.<version>", which knew no index but those of the steps and primary keys.
inline QList<datafile::TableDef> tablesAt(int version) {
    const QList<UpgradeStep> steps = upgradeSteps();
    QSet<QString> known;
    for (const UpgradeStep& step : steps)
        for (const Change& change : step.changes)
            if (change.kind == Change::Kind::AddIndexes)
                for (const QString& name : change.names) known << change.table + u'.' + name;
    QList<datafile::TableDef> tables = schema::tables();
    for (datafile::TableDef& table : tables) {
        table.indexes.removeIf(
            [&](const auto& index) { return !index.primary && !known.contains(table.name + u'.' + index.name); });
    }
    for (auto step = steps.rbegin(); step != steps.rend() && step->lastVersion >= version; ++step)
        for (auto change = step->changes.rbegin(); change != step->changes.rend(); ++change) undo(*change, tables);
    for (datafile::TableDef& table : tables)
        if (table.fields.isEmpty())
            table.fields << datafile::FieldDef{.name = "Remarks", .size = 50};  // never stamped then
    return tables;
}

using Row = QList<std::pair<const char*, QString>>;

/// Adds a row with those of the values whose columns the file has.
inline void add(const datafile::Database& database, const char* table, const Row& row) {
    if (!database.table(table)) return;
    datafile::Recordset rows = database.openRecordset(table);
    rows.addNew();
    for (const auto& [column, text] : row)
        if (database.table(table)->field(column)) rows.set(column, datafile::Value{text});
    rows.update();
}

inline void addLookups(const datafile::Database& database, int version) {
    const auto since = [&](int came, const char* table, const std::function<bool(const BaseRow&)>& wanted = {}) {
        if (version > came) addBaseRows(database, table, wanted);
    };
    const QStringList later{"NF", "NS", "PE", "NB", "QC", "ON", "MB", "SK", "AB", "BC", "NT", "YU"};
    since(-2, "tblState", [&](const BaseRow& row) { return version > 17 || !later.contains(row.value("StateId")); });
    if (version == 18) database.execute("UPDATE tblState SET [StateId] = \"PQ\" WHERE [StateName] = \"Quebec\"");
    since(21, "tblOfficialDivisionNames",
          [&](const BaseRow& row) { return version > 29 || row.value("OrganizationName") != u"Babe Ruth League"; });
    since(26, "tblSport");
}

inline void addPeople(const datafile::Database& database, int version) {
    const auto player = [&](const char* last, const char* born, const char* division, const Row& rest) {
        Row row{{"PlayerLastName", last},
                {"PlayerFirstName", "Ann"},
                {"PlayerBirthDate", born},
                {"PlayerDivisionId", division}};
        add(database, "tblRegistration", row + rest);
    };
    const Row zip{{"PlayerZipCode", "12345"}, {"PlayerZipCode4", "6789"}};
    player("Ash", "1990-07-31", "1",
           zip + Row{{"PlayerFeePaid", "40.00"}, {"PlayerGender", "m"}, {"PlayerSchoolName", "Oak School"}});
    player("Birch", "1990-08-01", "1", {{"PlayerZipCode", "90210"}, {"PlayerFeePaid", "7"}, {"PlayerGender", "F"}});
    player("Cedar", "1990-08-02", "0", {{"PlayerZipCode4", ""}, {"PlayerGender", "X"}});
    player("Daphne", "1929-03-01", "7", {{"PlayerZipCode4", "6789"}, {"PlayerGender", "Female"}});
    player("Elm", "1991-01-01", "2", {});
    if (version > 6 && version <= 10)  // the step before it left nothing in the rows of then
        database.execute("UPDATE tblRegistration SET [PlayerSchoolName] = Null WHERE [PlayerLastName] = \"Elm\"");
    const char* noPhone = "   -    ";
    add(database, "tblVolunteer",
        {{"VolLastName", "Vine"},
         {"VolFirstName", "Al"},
         {"VolHomePhone", "555-1234"},
         {"VolWorkPhone", noPhone},
         {"VolFaxPhone", noPhone},
         {"VolZipCode", "12345"},
         {"VolZipCode4", "6789"}});
    add(database, "tblVolunteer",
        {{"VolLastName", "Willow"}, {"VolFirstName", "Bo"}, {"VolHomePhone", noPhone}, {"VolWorkPhone", "555-9876"}});
}

inline void addRows(const datafile::Database& database, int version) {
    addPeople(database, version);
    add(database, "tblDivision", {{"DivName", "Minors"}, {"DivAgeCutOffMonth", "8"}, {"DivAgeCutOffDay", "1"}});
    add(database, "tblDivision", {{"DivName", "Majors"}, {"DivAgeCutOffMonth", "12"}, {"DivAgeCutOffDay", "31"}});
    add(database, "tblTeam", {{"DivisionId", "1"}, {"TeamName", "Owls"}});
    add(database, "tblField", {{"FieldName", "Oak"}, {"FieldZipCode", "12345"}, {"FieldZipCode4", "6789"}});
    add(database, "tblSponsor", {{"SponsorName", "Baker"}, {"SponsorZipCode", "12345"}, {"SponsorZipCode4", "6789"}});
    add(database, "tblVendor", {{"VendorName", "Bats & Co"}, {"VendorZipCode", "12345"}});
    add(database, "tblInsurance", {{"InsAgencyName", "Safe"}, {"InsZipCode", "12345"}});
    add(database, "tblOptions",
        {{"OptionId", "1"}, {"OrganizationName", "Oak League"}, {"ZipCode", "12345"}, {"CurrentSeasonYear", "2001"}});
    add(database, "tblDefaults",
        {{"DefaultsId", "1"},
         {"DefaultZipCode", "12345"},
         {"DefaultAgeCutoffMonth", "8"},
         {"DefaultAgeCutoffDay", "1"}});
    add(database, "tblSchedule",
        {{"division", "Minors"},
         {"HomeTeam", "Owls"},
         {"VisitorsTeam", "Hawks"},
         {"Field", "Oak"},
         {"HomeOrAway", "Home"}});
    add(database, "tblSponsorPreviousPledge",
        {{"SponsorId", "1"},
         {"PreviousPledgeYear", "1999"},
         {"PreviousPledgeAmount", "5"},
         {"PreviousPaidAmount", "4"}});
    add(database, "tblTeamVolunteer", {{"VolId", "1"}, {"DivisionId", "1"}, {"TeamId", "1"}, {"VolPosName", "Coach"}});
    add(database, "tblTeamField", {{"TeamId", "1"}, {"FieldId", "1"}, {"DivisionId", "1"}});
    add(database, "tblVolToPosition", {{"VolId", "1"}, {"PlayerId", "1"}, {"VolPosId", "1"}});
    add(database, "tblTempResults", {{"TeamName", "left over"}});
    addLookups(database, version);
}

/// A league at "Version 1.<version>" with a few rows; at -1 it has no version.
inline void make(const QString& path, int version) {
    datafile::Workspace workspace;
    const datafile::Database database = workspace.createDatabase(path);
    datafile::Transaction transaction(database, datafile::Transaction::Kind::Schema);
    for (const datafile::TableDef& table : tablesAt(version))
        if (version >= 0 || table.name != u"tblVersion") database.createTable(table);
    addRows(database, version);
    add(database, "tblVersion", {{"DBVersion", QString("Version 1.%1").arg(version)}});
    transaction.commit();
}

}  // namespace olderfile
