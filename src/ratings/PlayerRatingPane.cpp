#include "ratings/PlayerRatingPane.h"

#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/widgets/FormBuilder.h"
#include "shell/Bound.h"
#include "shell/Program.h"

PlayerRatingPane::PlayerRatingPane(Program& program)
    : RatingPane(
          program,
          {.tag = "PlayerRating",
           .caption = tr("Player Ratings"),
           .searchName = "cboPlayerSearchList",
           .searchCaption = tr("C&urrent Player"),
           .moveName = "cmdPlayerMove",
           .listQuery = "SELECT *, ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) as "
                        "Name FROM tblRegistration WHERE [DeletedFlag] = False ORDER BY [PlayerLastName], "
                        "[PlayerFirstName], [PlayerBirthDate]",
           .missingText = tr("Error!  Player Name not found in Search List")}) {
    start(rating(), buildForm());
}

Form* PlayerRatingPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    addPlayerFrame(builder.column(3));
    builder.frame(tr("Ratings"));
    clsAbilityRating& r = rating();
    addGrade(builder, "cboPitcherRating", tr("&Pitcher"), r.PitcherRating);
    addGrade(builder, "cboThrowingRating", tr("Throwing"), r.ThrowingRating);
    addGrade(builder, "cboCatcherRating", tr("Catcher"), r.CatcherRating);
    addGrade(builder, "cboRunningRating", tr("Running"), r.RunningRating);
    addGrade(builder, "cboInfieldRating", tr("Infield"), r.InfieldRating);
    addGrade(builder, "cboBattingRating", tr("&Batting"), r.BattingRating);
    addGrade(builder, "cboOutfieldRating", tr("Outfield"), r.OutfieldRating);
    addGrade(builder, "cboKnowledgeRating", tr("&Knowledge"), r.KnowledgeRating);
    builder.shown("lblTotalRating", tr("Total Rating"), [this] { return total_; })
        .shown("lblAvgRating", tr("Avg. Rating"), [this] { return average_; });
    addPositionsFrame(builder.column(2));
    builder.below().frame(tr("Comments"), 1);
    addComments(builder, "txtPlayerComments", player().PlayerComments.size());
    return form;
}

void PlayerRatingPane::addPlayerFrame(FormBuilder& builder) {
    const clsRegistration& p = player();
    builder.frame(tr("Player"))
        .shown("lblPlayerLastName", tr("Last Name"), [&p] { return p.PlayerLastName(); })
        .shown("lblPlayerFirstName", tr("First Name"), [&p] { return p.PlayerFirstName(); })
        .shown("lblPlayerMiddleInitial", tr("Initial"), [&p] { return p.PlayerMiddleInitial(); })
        .shown("lblPlayerBirthDate", tr("Birth Date"),
               [this] {
                   return id_ == 0 ? QString()
                                   : formatDate(player().PlayerBirthDate, program().globals().defaultDateFormat);
               })
        .shown("lblPlayerDivision", tr("Division"), [this] { return division_; })
        .shown("lblPlayerTeam", tr("Team"), [this] { return team_; });
}

/// In the order of their indexes; the last one stands for all.
std::vector<Flag*> PlayerRatingPane::positions() {
    clsAbilityRating& r = rating();
    return {&r.PositionPitcher,    &r.PositionCatcher,     &r.PositionFirstBase, &r.PositionSecondBase,
            &r.PositionShortStop,  &r.PositionThirdBase,   &r.PositionLeftField, &r.PositionCenterField,
            &r.PositionRightField, &r.PositionAllPositions};
}

void PlayerRatingPane::addPositionsFrame(FormBuilder& builder) {
    builder.frame(tr("Positions Played"));
    const QStringList captions{
        tr("Pitcher"),    tr("Catcher"),    tr("First Base"),   tr("Second Base"), tr("Short Stop"),
        tr("Third Base"), tr("Left Field"), tr("Center Field"), tr("Right Field"), tr("&All Positions Played")};
    const std::vector<Flag*> flags = positions();
    for (qsizetype index = 0; index < captions.size(); ++index) {
        Flag* flag = flags[static_cast<size_t>(index)];
        const bool all = flag == flags.back();
        if (all) builder.span(2);
        builder.check(QStringLiteral("chkPosition%1").arg(index), captions[index],
                      FlagBinding([flag] { return (*flag)(); },
                                  [this, flag, all](bool plays) {
                                      *flag = plays;
                                      if (!all) return;
                                      for (Flag* each : positions()) *each = plays;
                                  }));
    }
}

bool PlayerRatingPane::findPerson(const QString& entry) {
    if (!player().FindPlayerRecord(entry, false, true) || player().PlayerDeletedFlag) return false;
    id_ = player().PlayerId;
    const int division = player().PlayerDivisionId;
    const int team = player().PlayerTeamId;
    division_ = division == 0 ? QString() : rating().FindDivisionRecordById(division);
    team_ = team == 0 ? QString() : rating().FindTeamName(division, team);
    return true;
}

void PlayerRatingPane::shown() {
    if (!hasRecord()) {
        id_ = 0;
        division_.clear();
        team_.clear();
        player().blank();
    }
    RatingPane::shown();
}

void PlayerRatingPane::clearMore() {
    for (Flag* flag : positions()) *flag = false;
}

void PlayerRatingPane::ComputePlayerRatingTotals() {
    const clsAbilityRating& r = rating();
    int total = 0;
    double sum = 0;
    int count = 0;
    for (const Whole* grade : {&r.PitcherRating, &r.CatcherRating, &r.InfieldRating, &r.OutfieldRating,
                               &r.BattingRating, &r.ThrowingRating, &r.RunningRating, &r.KnowledgeRating}) {
        const int value = valueOf(*grade);
        total += value;
        if (value == 0) continue;
        sum += value;
        ++count;
    }
    total_ = QString::number(total);
    average_ = count == 0 ? QStringLiteral("0.00") : formatNumber(sum / count, QStringLiteral("#0.00"));
}
