#include "schedule/exchange/SchedulerFile.h"

#include "league/clsDivision.h"
#include "league/clsFieldInfo.h"
#include "league/clsTeamVolunteer.h"

#include <QRegularExpression>

namespace {

/// The text of the file as it grows.
class Sections {
public:
    Sections& section(const QString& name) { return line(u'[' + name + u']'); }
    Sections& line(const QString& text) {
        text_ += text + QStringLiteral("\r\n");
        return *this;
    }
    Sections& line(const char* key, const QString& value) { return line(QLatin1String(key) + u'=' + value); }
    void end() { line(QString()); }
    const QString& text() const { return text_; }

private:
    QString text_;
};

QString threeDigits(int number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); }

/// A number of digits alone as "###-####"; any other text as it is.
QString dashed(const QString& phone) {
    static const QRegularExpression digits(QStringLiteral("^\\d+$"));
    if (!digits.match(phone).hasMatch()) return phone;
    return phone.chopped(std::min<qsizetype>(4, phone.size())) + u'-' + phone.right(4);
}

void writeTeam(Sections& file, int number, const QString& division, const QString& team,
               const clsTeamVolunteer* coach) {
    const bool isNamed = coach && !coach->VolFirstName().isEmpty() && !coach->VolLastName().isEmpty();
    file.section(QStringLiteral("TeamInfo%1").arg(number))
        .line("Team Name", division + u' ' + team)
        .line("Division", division)
        .line("Coach Name", isNamed ? coach->VolFirstName() + u' ' + coach->VolLastName() : QString())
        .line("Coach Address", coach ? coach->VolAddress1() : QString())
        .line("Coach Home Phone", coach ? coach->VolHomePhone() : QString())
        .line("Coach Work Phone", coach ? dashed(coach->VolWorkPhone()) : QString())
        .line("Coach Notes", coach ? coach->VolComments() : QString())
        .line("UniqueID", division + u' ' + team)
        .line("3 Digit Code", threeDigits(number))
        .line("Long Code", QStringLiteral("Team%1").arg(number))
        .end();
}

void writeTeams(Sections& file, StoreContext& context, const QString& division, int divisionId) {
    datafile::Recordset teams = context.database().openRecordset(
        QStringLiteral("SELECT *, tblteam![TeamName] as Name FROM tblTeam WHERE "
                       "tblteam![DivisionId] = %1  AND tblTeam![DeletedFlag] = False ORDER BY "
                       "tblTeam![TeamName]")
            .arg(divisionId));
    clsTeamVolunteer staff(context);
    int written = 0;
    for (; !teams.eof(); teams.moveNext()) {
        const bool hasCoach = staff.GetTeamVolunteerInfo(divisionId, static_cast<int>(teams.number("TeamId")),
                                                         QStringLiteral("HeadCoach"));
        writeTeam(file, ++written, division, teams.text("Name"), hasCoach ? &staff : nullptr);
    }
    file.section("Team Number").line("Total Teams", QString::number(written)).end();
}

/// A field that is gone keeps its place. Its time slot goes by the name of the field before it.
void writeFields(Sections& file, StoreContext& context, const QString& division, int divisionId) {
    datafile::Recordset ids = context.database().openRecordset(
        QStringLiteral("SELECT DISTINCT(tblTeamField![FieldId]) as FieldId FROM tblTeamField WHERE "
                       "tblteamField![DivisionId] = %1 ORDER BY tblTeamField![FieldId]")
            .arg(divisionId));
    clsFieldInfo field(context);
    field.ResetFieldRecord();
    int written = 0;
    for (; !ids.eof(); ids.moveNext()) {
        const bool found = field.FindFieldRecordById(static_cast<int>(ids.number("FieldId")), false, true);
        const auto ofField = [found](const Text& value) { return found ? value() : QString(); };
        ++written;
        file.section(QStringLiteral("FieldInfo%1").arg(written))
            .line("Field Name", ofField(field.FieldName))
            .line("Field Address", ofField(field.FieldStreet1))
            .line("Field Phone", ofField(field.FieldContactPhone))
            .line("Home Teams", {})
            .line("Divisions", division)
            .line("Field Directions", ofField(field.FieldDirections))
            .line("Time Slot Name", field.FieldName() + QStringLiteral(" | ") + division)
            .line("3 Digit Code", threeDigits(written))
            .line("Game Interval", {})
            .line("P", QStringLiteral("1"))
            .end();
    }
    file.section("Field Number").line("Total Fields", QString::number(written)).end();
}

}  // namespace

QByteArray schedulerFile(StoreContext& context, const QString& division) {
    Sections file;
    clsDivision known(context);
    bool isKnown = false;
    known.FindDivisionRecord(division, false, true, isKnown);
    if (isKnown) writeTeams(file, context, division, known.DivId);
    file.section("DivisionInfo1").line("Division Name", division).end();
    file.section("Division Number").line("Total Divisions", QStringLiteral("1")).end();
    if (isKnown) writeFields(file, context, division, known.DivId);
    file.section("Game Interval").line("HourInterval", "2").line("MinutesInterval", "0").end();
    file.section("Scheduled Dates").line("Total Dates", "0").end();
    file.section("File Version").line("Format", "v3").end();
    file.section("ToBeScheduled").line("GameList", {}).end();
    file.section("AcrossLeague").line("Is Across League", "false").end();
    file.section("Scheduled Lock").line("Lock", "false").end();
    return file.text().normalized(QString::NormalizationForm_C).toLatin1();
}
