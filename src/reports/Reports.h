#pragma once

#include <QCoreApplication>

#include "reports/QueryText.h"
#include "reports/ReportTable.h"

struct SizeOwners;

/// Every report of the program, each in a file of its own name, and below them what several of them print.
class Reports {
    Q_DECLARE_TR_FUNCTIONS(Reports)

public:
    /// Everything that can be selected, in the order of the buttons.
    static std::vector<ReportCategory> table();

    // Players.
    static LeagueReport rptPlayerReport1(const ReportInput& input);
    static LeagueReport rptPlayerReport2(const ReportInput& input);
    static LeagueReport rptPlayerReport3(const ReportInput& input);
    static LeagueReport rptPlayerReport3ByAge(const ReportInput& input);
    static LeagueReport rptPlayerReport4(const ReportInput& input);
    static LeagueReport rptPlayerReport5(const ReportInput& input);
    static LeagueReport rptPlayerReport6(const ReportInput& input);
    static LeagueReport rptPlayerReport7(const ReportInput& input);
    static LeagueReport rptPlayerReport8(const ReportInput& input);
    static LeagueReport rptPlayerReport9(const ReportInput& input);
    static LeagueReport rptPlayerSummary(const ReportInput& input);
    static LeagueReport rptTeamMedical(const ReportInput& input);

    // Registration forms: those of a league with a layout of its own, and those of every other league.
    static LeagueReport rptPlayerRegistrationForm(const ReportInput& input);
    static LeagueReport rptPlayerBlankRegistrationForm(const ReportInput& input);
    static LeagueReport rptBrackenValePlayerRegistration(const ReportInput& input);
    static LeagueReport rptBrackenValeBlankRegistration(const ReportInput& input);

    // Fees.
    static LeagueReport rptFeeReport2(const ReportInput& input);
    static LeagueReport rptFeeReport3(const ReportInput& input);
    static LeagueReport rptFeeReport4(const ReportInput& input);
    static LeagueReport rptFeeReport5(const ReportInput& input);
    static LeagueReport rptFeeReport6(const ReportInput& input);
    static LeagueReport rptFeeReport7(const ReportInput& input);
    static LeagueReport rptSummaryReport2(const ReportInput& input);

    // Uniforms.
    static LeagueReport rptUniformReport1(const ReportInput& input);
    static LeagueReport rptUniformReport2(const ReportInput& input);
    static LeagueReport rptUniformReport3(const ReportInput& input);
    static LeagueReport rptUniformReport4(const ReportInput& input);
    static LeagueReport rptUniformReport5(const ReportInput& input);

    // Divisions, teams, schedules and fields.
    static LeagueReport rptDivisionReport1(const ReportInput& input);
    static LeagueReport rptDivisionReport2(const ReportInput& input);
    static LeagueReport rptDivisionReport3(const ReportInput& input);
    static LeagueReport rptDivisionReport4(const ReportInput& input);
    static LeagueReport rptDivisionReport5(const ReportInput& input);
    static LeagueReport rptTeamReport1(const ReportInput& input);
    static LeagueReport rptTeamReport4(const ReportInput& input);
    static LeagueReport rptMasterSchedule(const ReportInput& input);
    static LeagueReport rptFieldReport1(const ReportInput& input);
    static LeagueReport rptFieldReport3(const ReportInput& input);
    static LeagueReport rptFieldReport4(const ReportInput& input);
    static LeagueReport rptSummaryReport1(const ReportInput& input);

    // Sponsors and volunteers.
    static LeagueReport rptSponsorReport1(const ReportInput& input);
    static LeagueReport rptSponsorReport2(const ReportInput& input);
    static LeagueReport rptSponsorReport3(const ReportInput& input);
    static LeagueReport rptSponsorReport4(const ReportInput& input);
    static LeagueReport rptSponsorReport5(const ReportInput& input);
    static LeagueReport rptVolunteerReport1(const ReportInput& input);
    static LeagueReport rptVolunteerReport2(const ReportInput& input);
    static LeagueReport rptVolunteerReport3(const ReportInput& input);
    static LeagueReport rptVolunteerReport4(const ReportInput& input);
    static LeagueReport rptVolunteerReport5(const ReportInput& input);

    // Ratings.
    static LeagueReport rptAbilityRating1(const ReportInput& input);
    static LeagueReport rptAbilityRating2(const ReportInput& input);
    static LeagueReport rptAbilityReport3(const ReportInput& input);
    static LeagueReport rptAbilityReport4(const ReportInput& input);
    static LeagueReport rptAbilityReport5(const ReportInput& input);

    // Mailing labels of players, volunteers and sponsors.
    static LeagueReport rptLabelFormat1(const ReportInput& input);
    static LeagueReport rptLabelFormat2(const ReportInput& input);
    static LeagueReport rptLabelFormat3(const ReportInput& input);

private:
    // The categories of the table.
    static ReportCategory playerReports();
    static ReportCategory volunteerReports();
    static ReportCategory sponsorReports();
    static ReportCategory divisionReports();
    static ReportCategory teamReports();
    static ReportCategory fieldReports();
    static ReportCategory ratingReports();
    static ReportCategory mailingLabels();
    static ReportCategory scheduleReports();
    static ReportCategory uniformReports();
    static ReportCategory leagueReports();
    static ReportCategory balanceReports();
    static QString mustSelect(const QString& firstLine);
    static QString mustSelectBefore(const QString& firstLine);

    /// A report with its page header and footer.
    static report::ReportDefinition headed(const ReportInput& input, const QString& title);
    /// Rows that follow each other by DivName or TeamName. With a caption, a footer holds the group's totals.
    static report::Group byDivision(const QString& footer = {});
    static report::Group byTeam(const QString& footer = {});
    static report::Group byField(const QString& key);
    /// What is said where there is nothing to print.
    static report::NoData noRecords();
    /// Whether a text of a list stands for all of its entries, as no text does.
    static bool meansAll(const QString& entry, ListKind kind);

    // Players' rows: the columns of the lists, with those of division and team.

    /// Which live parents a player must have to be listed; the others are joined where they exist.
    enum class Needs { Nothing, Division, Team };
    static QueryText players(Needs parents, const QString& moreColumns = {});
    static QueryText activePlayers(Needs parents, const QString& moreColumns = {});
    /// A list of players: a line each with what one needs to reach them.
    static report::ReportDefinition playerList(const ReportInput& input, const QString& title);

    /// The same with their divisions, for lists that have no groups.
    static report::ReportDefinition playerStatusList(const ReportInput& input, const QString& title);

    static report::Field playerAddress();
    static report::Field playerCity();
    /// Both in one line.
    static report::Field playerGuardians();
    // A line for each guardian, so that names and numbers stand level with each other: the mobile phone, else the next
    // best.
    static report::Field guardianNames();
    static report::Field guardianPhones();
    /// All numbers of one, "PlayerDad" or "PlayerMom", in one line.
    static report::Field allPhones(const QString& guardian);
    /// The league age by the cut-off date of the division (DivAgeCutOffMonth, DivAgeCutOffDay) or, without, the
    /// default.
    static report::Field playerAge(const ReportInput& input);
    /// The condition that meets the one player whom an entry of the list of players names, or all for the entry that
    /// says so.
    static QueryText& wherePlayer(QueryText& query, const QString& entry);

    // Registration forms.

    static report::ReportDefinition registrationForm(const ReportInput& input);
    static report::ReportDefinition brackenValeForm(const ReportInput& input);
    /// A form on a page of its own for each player whom the selection means.
    static report::ReportDefinition filledIn(report::ReportDefinition form, const ReportInput& input);

    // Those that the league uses.
    static LeagueReport blankRegistration(const ReportInput& input);
    static LeagueReport playerRegistration(const ReportInput& input);

    // Fees.

    /// A list of players with the columns of their money and the sums.
    static report::ReportDefinition feeList(const ReportInput& input, const QString& title,
                                            const report::Field& balance);
    /// Such a list of all active players as they are registered.
    static report::ReportDefinition registeredFees(const ReportInput& input, const QString& title,
                                                   const QString& order);
    /// Those players of the work table whose balance meets a condition such as "> 0".
    static LeagueReport balances(const ReportInput& input, const QString& title, const QString& condition);
    static LeagueReport balancesByTeam(const ReportInput& input, const QString& title, const QString& condition);

    // Uniforms.

    /// Live teams with their live divisions.
    static QueryText teams(const ReportInput& input);
    /// The players of each team of the query with their sizes.
    static LeagueReport uniformsByTeam(const ReportInput& input, const QueryText& teams);
    /// The sizes of a table, each with the number of active players who wear it. Rows of players and staff count
    /// whether they are marked as deleted or not.
    static report::ReportDefinition sizeCounts(const SizeOwners& owners, const QString& caption, const QString& table,
                                               const QString& sizeText, const QString& playerSize,
                                               const QString& staffSize = {});
    static report::ReportDefinition shirtCounts(const SizeOwners& owners);
    static report::ReportDefinition pantCounts(const SizeOwners& owners);
    static report::ReportDefinition hatCounts(const SizeOwners& owners);
    static report::ReportDefinition shoeCounts(const SizeOwners& owners);

    // Schedules: live games, with the name of the division as DivName.

    static QueryText games();
    static report::Line gameColumns(std::initializer_list<report::Column> more);
    static report::Column gameDivision();
    static report::Column gameField();

    // Teams.

    /// Live teams of live divisions, with TeamSponsor and, where there is one, the name of the HeadCoach.
    static QueryText teamRecords(const ReportInput& input);
    /// As byTeam, for rows with a TeamId: two teams of a division may have one name.
    static report::Group byTeamId();
    static report::Field teamSponsor();
    /// The position of a member of a team's staff, as people call it.
    static report::Field staffPosition();
    /// A flag that is 0 for yes.
    static report::Field yesIsZero(const QString& name);

    // Sponsors.

    static QueryText sponsors(const QString& moreColumns = {}, const QString& joins = {});
    /// One row for each team that a sponsor has.
    static QueryText sponsorsOfTeams(const ReportInput& input);
    static report::ReportDefinition sponsorList(const ReportInput& input, const QString& title);
    /// Such a list by name, with sums.
    static LeagueReport allSponsors(report::ReportDefinition list, const QueryText& rows);

    // Volunteers, each once.

    static QueryText volunteers(const QString& moreColumns = {}, const QString& joins = {});
    /// Those of the players of live divisions, once for each division or team that `parents` names.
    static QueryText volunteersOfPlayers(const ReportInput& input, Needs parents);
    static QueryText& whereVolunteer(QueryText& query, const QString& entry);
    static report::ReportDefinition volunteerRecord(const ReportInput& input, const QString& title);
    static report::ReportDefinition rptVolunteerPlayer();
    static report::ReportDefinition rptVolunteerPositions();
    static report::ReportDefinition rptVolunteerAssignments();
    static report::ReportDefinition rptVolunteerCertifications();

    // Ratings.

    /// Active players with their grades.
    static report::ReportDefinition ratingList(const ReportInput& input, const QString& title, Needs parents,
                                               const QString& order);
    /// Columns of a row of tblAbilityRating that is joined to its person.
    static QString gradesOfPlayers();
    static QString gradesOfStaff();
    static report::Column gradeCell(const QString& caption, const QString& name);
    static std::vector<report::Line> playerGrades();
    static std::vector<report::Line> staffGrades(const QString& otherwise);

    /// A sheet of labels from the columns Address1, Address2, City, State, PostalCode and CountryCode.
    static LeagueReport labels(const ReportInput& input, const report::Field& name, const report::Query& query);
};
