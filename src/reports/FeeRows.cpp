#include "reports/FeeRows.h"

#include "platform/text/Money.h"
#include "reports/Reports.h"
#include "store/Housekeeping.h"

using namespace report;

namespace {

void computeBalances(const datafile::Database& database) {
    datafile::Recordset rows = database.openRecordset("SELECT * FROM tblTempFeeReport");
    const char* const fees[] = {"PlayerFeeAmount", "PlayerFundRaiserFee", "PlayerOtherFees"};
    for (; !rows.eof(); rows.moveNext()) {
        const auto amountOf = [&rows](const char* name) { return Money::parse(rows.text(name)); };
        rows.edit();
        Money total;
        for (const char* fee : fees) {
            if (const auto amount = amountOf(fee))
                total += *amount;
            else
                rows.set(fee, QStringLiteral("0"));
        }
        const auto paid = amountOf("PlayerFeePaid");
        if (!paid) rows.set("PlayerFeePaid", QStringLiteral("0"));
        const Money balance = total - paid.value_or(Money{});
        rows.set("TotalFeeAmount", datafile::Value{double(total.cents) / 100});
        rows.set("BalanceCalculation", datafile::Value{double(balance.cents) / 100});
        rows.update();
    }
}

}  // namespace

void fillFeeWorkTable(StoreContext& store, bool byTeam) {
    const datafile::Database database = store.database();
    datafile::Transaction whole(database);
    DeleteRecords(store, TempFeeReport);
    const QString parents = byTeam ? "PlayerDivisionId, DivName, PlayerTeamId, TeamName" : "0, \"\", 0, \"\"";
    database.execute(
        "INSERT INTO tblTempFeeReport (PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerAddress1, "
        "PlayerAddress2, PlayerCity, PlayerState, PlayerPostalCode, PlayerCountryCode, PlayerPhoneArea, PlayerPhone, "
        "PlayerDivisionId, DivisionName, PlayerTeamId, TeamName, PlayerFeeAmount, PlayerFundRaiserFee, "
        "PlayerOtherFees, PlayerFeePaid, TotalFeeAmount, BalanceCalculation) "
        "SELECT PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerAddress1, PlayerAddress2, PlayerCity, "
        "PlayerStateId, PlayerPostalCode, PlayerCountryCode, PlayerPhoneArea, PlayerPhone, " +
        parents +
        ", PlayerFeeAmount, PlayerFundRaiserFee, PlayerOtherFees, PlayerAmountPaid, 0, 0 FROM tblRegistration "
        "LEFT JOIN tblDivision ON tblRegistration!PlayerDivisionId = tblDivision!DivisionId "
        "AND tblDivision!DeletedFlag = False "
        "LEFT JOIN tblTeam ON tblRegistration!PlayerTeamId = tblTeam!TeamId AND tblTeam!DeletedFlag = False "
        "WHERE PlayerActive = True AND tblRegistration!DeletedFlag = False "
        "ORDER BY PlayerLastName, PlayerFirstName, PlayerBirthDate");
    computeBalances(database);
    whole.commit();
}

ReportDefinition Reports::feeList(const ReportInput& input, const QString& title, const Field& balance) {
    ReportDefinition list = headed(input, title);
    list.points = 8.5;
    list.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 22},
        {tr("Phone"), phone("PlayerPhoneArea", "PlayerPhone"), 13},
        {tr("Birth Date"), date("PlayerBirthDate"), 10, Alignment::Right},
        {tr("Fee"), money("PlayerFeeAmount"), 11, {}, Total::Sum},
        {tr("Fund Raiser"), money("PlayerFundRaiserFee"), 11, {}, Total::Sum},
        {tr("Other Fees"), money("PlayerOtherFees"), 11, {}, Total::Sum},
        {tr("Amount Paid"), money("PlayerAmountPaid"), 11, {}, Total::Sum},
        {tr("Balance"), balance, 11, {}, Total::Sum},
    };
    list.lines = {Line{
        {.share = 3},
        {.field = joined({"PlayerAddress1", "PlayerAddress2"}), .share = 37},
        {.field = cityLine("PlayerCity", "PlayerState", "PlayerPostalCode", "PlayerCountryCode"),
         .share = 60}}.ifFilled()};
    list.totals = fixed(tr("Totals:"));
    return list;
}

ReportDefinition Reports::registeredFees(const ReportInput& input, const QString& title, const QString& order) {
    const Field balance = computed(
        [](const Row& row) {
            Money due;
            for (const char* fee : {"PlayerFeeAmount", "PlayerFundRaiserFee", "PlayerOtherFees"})
                due += Money::orZero(row.text(fee));
            due -= Money::orZero(row.text("PlayerAmountPaid"));
            return due.text("0.00");
        },
        Format::Money);
    ReportDefinition list = feeList(input, title, balance);
    list.query = activePlayers(Needs::Nothing,
                               "PlayerStateId AS PlayerState, PlayerFeeAmount, PlayerFundRaiserFee, PlayerOtherFees, "
                               "PlayerAmountPaid")
                     .whereChosen("PlayerDivisionId", input.divisionId)
                     .whereChosen("PlayerTeamId", input.teamId)
                     .orderBy(order);
    return list;
}

namespace {

QueryText workTable(const QString& balance) {
    return QueryText(
               "SELECT PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerAddress1, PlayerAddress2, PlayerCity, "
               "PlayerState, PlayerPostalCode, PlayerCountryCode, PlayerPhoneArea, PlayerPhone, PlayerFeeAmount, "
               "PlayerFundRaiserFee, PlayerOtherFees, PlayerFeePaid AS PlayerAmountPaid, BalanceCalculation, "
               "DivisionName AS DivName, TeamName FROM tblTempFeeReport")
        .where("BalanceCalculation " + balance);
}

}  // namespace

LeagueReport Reports::balances(const ReportInput& input, const QString& title, const QString& condition) {
    ReportDefinition list = feeList(input, title, money("BalanceCalculation"));
    list.query = workTable(condition).orderBy("PlayerLastName, PlayerFirstName, PlayerBirthDate");
    return {list, [](StoreContext& store) { fillFeeWorkTable(store, false); }};
}

LeagueReport Reports::balancesByTeam(const ReportInput& input, const QString& title, const QString& condition) {
    ReportDefinition list = feeList(input, title, money("BalanceCalculation"));
    list.groups = {byDivision(tr("Totals of the Division:")), byTeam(tr("Totals of the Team:"))};
    list.query = workTable(condition)
                     .whereChosen("PlayerDivisionId", input.divisionId)
                     .whereChosen("PlayerTeamId", input.teamId)
                     .orderBy("DivisionName, TeamName, PlayerLastName, PlayerFirstName, PlayerBirthDate");
    return {list, [](StoreContext& store) { fillFeeWorkTable(store, true); }};
}
