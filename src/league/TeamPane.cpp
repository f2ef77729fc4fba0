#include "league/TeamPane.h"

#include "equipment/clsEquipmentAssignment.h"
#include "league/PlayerAssignments.h"
#include "league/TeamStaff.h"
#include "platform/text/Collation.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/SearchCombo.h"
#include "registration/clsRegistration.h"
#include "shell/Bound.h"
#include "shell/Choices.h"
#include "shell/Program.h"
#include "shell/SearchRow.h"

TeamPane::TeamPane(Program& program)
    : RecordPane(program,
                 {.tag = "Team",
                  .caption = tr("Teams"),
                  .searchName = "cboTeamSearchList",
                  .searchCaption = tr("C&urrent Team Name"),
                  .moveName = "cmdTeamMove",
                  .listQuery = "SELECT *, ([TeamName]) as Name FROM tblTeam WHERE tblTeam.DivisionId = %1  AND "
                               "tblTeam.DeletedFlag = False  ORDER BY [TeamName]",
                  .checkTitle = tr("Validation Error - Team"),
                  .missingText = tr("Error!  Team Name not found in Team Search List"),
                  .leaveQuestion = tr("Save the current Team record?"),
                  .searchCharacters = 26,
                  .addButton = "cmdTeamAddNew",
                  .addCaption = tr("&Add NewTeam"),
                  .leastFormHeight = 300}),
      team_(program.store),
      divisions_(makeDivisionRow()),
      staff_(new TeamStaff(
          program, [this](const QString& question, const QString& title) { return offerToSave(question, title); })),
      assignments_(new PlayerAssignments(program)) {
    Form* form = buildForm();
    LoadTeamDataControls();
    start(team_, form, divisions_);
    connect(this, &RecordPane::stateChanged, divisions_, [this] { divisions_->setLocked(isEditing()); });
    connect(staff_, &TeamStaff::edited, this, &TeamPane::beginEditing);
    connect(assignments_, &PlayerAssignments::said, this, &RecordPane::said);
    connect(form, &Form::tabPicked, this, &TeamPane::leaveSubTab);
    divisions_->setLocked(false);
}

SearchRow* TeamPane::makeDivisionRow() {
    auto* row = new SearchRow({.tag = {},
                               .caption = {},
                               .searchName = "cboTeamDivisionName",
                               .searchCaption = tr("Divis&ion Name"),
                               .moveName = "cmdTeamDivisionMove",
                               .searchCharacters = 22},
                              this);
    connect(row, &SearchRow::picked, this, &TeamPane::changeDivision);
    connect(row, &SearchRow::stepped, this, &TeamPane::changeDivision);
    connect(row, &SearchRow::said, this, &TeamPane::said);
    return row;
}

Form* TeamPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    addInformationTab(builder);
    builder.tab(tr("Coach/Team Parent Information"), staff_);
    builder.tab(tr("Player/Team Assignments"), assignments_);
    return form;
}

void TeamPane::addInformationTab(FormBuilder& builder) {
    clsTeam& team = team_;
    builder.tab(tr("Team Information"))
        .column(3)
        .frame(tr("Team"))
        .span(2)
        .text("txtTeamName", tr("Team Na&me *"), team.TeamName, FilterTextFull)
        .span(2)
        .text("txtTeamLeagueName", tr("League Association"), team.TeamLeagueName, FilterTextFull)
        .span(2)
        .choice(
            "cboTeamSponsor", tr("S&ponsor"),
            Binding([this] { return sponsorName_; }, [this](const QString& sponsor) { chooseSponsor(sponsor); }, 50),
            {})
        .span(2)
        .text("txtTeamColors", tr("Shirt Color(s)"), team.TeamColors, FilterTextFull)
        .choice("cboTeamGender", tr("&Gender"), team.TeamGender, {"Male", "Female", "Male & Female"})
        .row()
        .money("mskedTeamFeeAmount", tr("Team Fee"), team.TeamFeeAmount)
        .money("mskedTeamFeePaid", tr("Fee Paid"), team.TeamFeePaid)
        .column(2)
        .frame(tr("Team Colors"), 1)
        .text("txtTeamShirtColor", tr("Shirt Color"), team.TeamShirtColor, FilterTextFull)
        .text("txtTeamPantsColor", tr("Pants Color"), team.TeamPantsColor, FilterTextFull)
        .text("txtTeamHatColor", tr("Hat Color"), team.TeamHatColor, FilterTextFull)
        .text("txtTeamSocksColor", tr("Socks Color"), team.TeamSocksColor, FilterTextFull)
        .below()
        .frame(tr("Comments"), 1)
        .comments("txtTeamComments", {}, team.TeamComments, FilterTextWide);
}

datafile::Database TeamPane::database() const { return program().store.database(); }

void TeamPane::LoadTeamDataControls() {
    std::vector<QString> names =
        database().readList("SELECT * from tblDivision WHERE [DeletedFlag] = False ORDER BY [DivName]", "DivName");
    placeAccented(names);
    const QString chosen =
        listOf(program(),
               QStringLiteral("SELECT [DivName] FROM tblDivision WHERE ") + live(matches("DivisionId", divisionId_)),
               "DivName")
            .value(0, names.empty() ? QString() : names.front());
    divisions_->list().setEntries(std::move(names));
    team_.DivisionRequery();
    team_.SponsorRequery();
    chooseDivision(chosen);
    findChild<ChoiceBox*>("cboTeamSponsor")->setEntries(sponsors());
}

QStringList TeamPane::sponsors() const {
    return listOf(program(), "SELECT * from tblSponsor WHERE [DeletedFlag] = False ORDER BY [SponsorName]",
                  "SponsorName");
}

void TeamPane::chooseDivision(const QString& division) {
    divisionName_ = division;
    divisionId_ = division.isEmpty() ? 0 : team_.FindDivisionId(division);
    divisions_->list().setCurrentIndex(divisions_->list().indexOf(division));
}

void TeamPane::changeDivision(int index) {
    Q_EMIT said({});
    chooseDivision(divisions_->list().entryAt(index));
    showFirst();
}

void TeamPane::chooseSponsor(const QString& name) {
    sponsorName_ = name;
    team_.TeamSponsorId = name.isEmpty() ? 0 : team_.FindSponsorId(name);
    if (team_.TeamSponsorId == 0) return;
    if (team_.IsTeamNew() && team_.TeamName().isEmpty()) team_.TeamName = name.left(team_.TeamName.size());
    if (!team_.SponsorColorRequest.isEmpty())
        team_.TeamColors = team_.SponsorColorRequest.left(team_.TeamColors.size());
}

std::vector<QString> TeamPane::readEntries() const {
    std::vector<QString> teams = database().readList(text().listQuery.arg(divisionId_), QStringLiteral("Name"));
    placeAccented(teams);
    return teams;
}

bool TeamPane::find(const QString& entry) { return team_.FindTeamRecord(entry, divisionId_, false, true); }

bool TeamPane::isChanged() const { return RecordPane::isChanged() || staff_->isChanged(); }

void TeamPane::shown() {
    if (!team_.IsTeamNew()) loadedName_ = team_.TeamName;
    sponsorName_ = team_.TeamSponsorId == 0 ? QString() : team_.GetSponsorNameById(team_.TeamSponsorId);
    form().refresh();
    const bool any = team_.TeamId != 0;
    staff_->setTeam(divisionId_, team_.TeamId);
    assignments_->setTeam(any ? divisionName_ : QString(), any ? team_.TeamName() : QString());
}

void TeamPane::readChoices() {
    LoadTeamDataControls();
    staff_->readVolunteers();
}

void TeamPane::makeNew() {
    team_.NewTeamRecord();
    team_.TeamDivisionId = divisionId_;
    team_.SetIsTeamDirty(false);
}

std::vector<Finding> TeamPane::check() const {
    const QString teamName = team_.TeamName;
    std::vector<Finding> findings;
    if (teamName.trimmed().isEmpty()) {
        findings.push_back({firstField(), tr("The Team Name is a required entry.")});
    } else {
        clsTeam other(program().store);
        if (other.FindTeamRecord(teamName, divisionId_, false, true) &&
            (team_.IsTeamNew() || other.TeamId != team_.TeamId))
            findings.push_back({firstField(), tr("The Team Name %1\nalready exists\nin this Division -- duplicate team "
                                                 "names are not allowed.\nPlease enter a New Team Name.")
                                                  .arg(teamName)});
    }
    if (divisionId_ == 0)
        findings.push_back({QStringLiteral("cboTeamDivisionName"), tr("You must select a Division for the team.")});
    return findings;
}

/// Staff and team are edited on different tabs, and each is settled when its tab is left.
bool TeamPane::write() { return staff_->isChanged() ? staff_->SaveCoachingStaff() : writeTeam(); }

bool TeamPane::writeTeam() {
    const datafile::Database file = database();
    datafile::Transaction transaction(file);
    if (!team_.IsTeamNew()) {
        team_.TeamDeletedFlag = false;
        RenameScheduleTeam(file, loadedName_, team_.TeamName);
    }
    if (!RecordPane::write()) return false;
    transaction.commit();
    return true;
}

void TeamPane::RenameScheduleTeam(const datafile::Database& file, const QString& before, const QString& now) const {
    if (before == now) return;
    const QString old = datafile::quoted(before);
    // In a game of the team against itself the home team keeps the old name.
    file.execute(QStringLiteral("UPDATE tblSchedule SET [HomeTeam] = IIF([VisitorsTeam] = %1, [HomeTeam], %2), "
                                "[VisitorsTeam] = IIF([VisitorsTeam] = %1, %2, [VisitorsTeam]) WHERE [Division] = %3  "
                                "AND ([VisitorsTeam] = %1    OR  [HomeTeam] = %1)")
                     .arg(old, datafile::quoted(now), datafile::quoted(divisionName_)));
}

QString TeamPane::deleteQuestion() const {
    return tr("Are you sure you want to delete Team \"%1\"?").arg(team_.TeamName());
}

bool TeamPane::mayDelete() {
    clsEquipmentAssignment equipment(program().store);
    if (equipment.FindEquipmentAssignment({.divisionId = divisionId_, .teamId = team_.TeamId}, false, false))
        return refuseDelete(
            tr("The Team being deleted has Equipment \nassigned to it.  Delete any equipment "
               "assignments\nbefore deleting this record."));
    clsRegistration players(program().store);
    bool found = false;
    players.FindPlayerAssignments(divisionId_, team_.TeamId, found);
    if (!found) return true;
    if (!program().dialogs().ask(tr("Remove Player/Team Assignment"),
                                 tr("This team currently has Players Assigned to it.\nWould you like to automatically "
                                    "remove these\nPlayers from the team?")))
        return refuseDelete(
            tr("The Team has players assigned to it.\nYou cannot delete a team with players\n"
               "assigned to it."));
    players.RemovePlayerAssignments(divisionId_, team_.TeamId);
    return true;
}

bool TeamPane::refuseDelete(const QString& why) {
    program().dialogs().error(tr("Delete Error..."), why);
    cancel();
    return false;
}

void TeamPane::leaveSubTab() {
    if (!isChanged()) return;
    const bool ofStaff = staff_->isChanged();
    const bool left = ofStaff ? offerToSave(tr("The Coach or Team Parent Information has changed.\nDo you want to save "
                                               "the new information?"),
                                            tr("Save Coach/Team Parent Info?"))
                              : offerToSave(tr("The Team information has changed.\nDo you want to save the team "
                                               "information?"),
                                            tr("Save Team Information?"));
    if (!left) form().focusField(ofStaff ? staff_->searchName() : firstField());
}
