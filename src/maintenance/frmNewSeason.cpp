#include "maintenance/frmNewSeason.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <span>

#include "maintenance/work/NewSeason.h"
#include "platform/text/Texts.h"
#include "platform/widgets/ButtonRow.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/FormLayout.h"
#include "shell/Program.h"
#include "shell/Screens.h"
#include "shell/frmUpdateStatus.h"

namespace {

constexpr char yearBox[] = "mskedNewSeasonYear";

struct Box {
    SeasonBox box;
    const char* name;
    const char* caption;
};

constexpr Box ofPlayers[] = {
    {SeasonBox::MarkPlayersInactive, "chkMarkPlayersInactive",
     QT_TRANSLATE_NOOP("frmNewSeason", "Mark All Players Inactive")},
    {SeasonBox::ChangePlayerRegistrationDate, "chkChangePlayerRegistrationDate",
     QT_TRANSLATE_NOOP("frmNewSeason", "Change Registration Date to Today's Date")},
    {SeasonBox::RemoveUmpireCheck, "chkRemoveUmpireCheck",
     QT_TRANSLATE_NOOP("frmNewSeason", "Remove Umpire Check Mark")},
    {SeasonBox::RemoveOtherFeesAmount, "chkRemoveOtherFeesAmount",
     QT_TRANSLATE_NOOP("frmNewSeason", "Set Other Fees to $0.00")},
    {SeasonBox::ClearFeePaidAmount, "chkClearFeePaidAmount",
     QT_TRANSLATE_NOOP("frmNewSeason", "Set Amount Paid to $0.00")},
    {SeasonBox::RemoveTryoutNumber, "chkRemoveTryoutNumber", QT_TRANSLATE_NOOP("frmNewSeason", "Remove Tryout Number")},
    {SeasonBox::RemoveDivisionAssignment, "chkRemoveDivisionAssignment",
     QT_TRANSLATE_NOOP("frmNewSeason", "Remove Division Assignment")},
    {SeasonBox::RemoveTeamAssignment, "chkRemoveTeamAssignment",
     QT_TRANSLATE_NOOP("frmNewSeason", "Remove Team Assignment")},
    {SeasonBox::IncreaseYearsExperience, "chkIncreaseYearsExperience",
     QT_TRANSLATE_NOOP("frmNewSeason", "Increase Years of Experience by 1")},
    {SeasonBox::IncreaseGradeLevel, "chkIncreaseGradeLevel",
     QT_TRANSLATE_NOOP("frmNewSeason", "Increase Grade Level By One")},
    {SeasonBox::ClearPlayerRatings, "chkClearPlayerRatings",
     QT_TRANSLATE_NOOP("frmNewSeason", "Clear All Player Ratings.")},
    {SeasonBox::RemovePlayerComments, "chkRemovePlayerComments",
     QT_TRANSLATE_NOOP("frmNewSeason", "Remove Player Comments")},
};
constexpr Box ofVolunteers[] = {
    {SeasonBox::MarkVolunteersInactive, "chkMarkVolunteersInactive",
     QT_TRANSLATE_NOOP("frmNewSeason", "Mark All Volunteers Inactive")},
    {SeasonBox::ChangeVolunteerRegistrationDate, "chkChangeVolunteerRegistrationDate",
     QT_TRANSLATE_NOOP("frmNewSeason", "Change Registration Date to Today's Date")},
    {SeasonBox::RemoveVolunteerPlayerAssociations, "chkRemoveVolunteerPlayerAssociations",
     QT_TRANSLATE_NOOP("frmNewSeason", "Remove All Volunteer/Player Associations")},
    {SeasonBox::RemoveVolunteerPositions, "chkRemoveVolunteerPositions",
     QT_TRANSLATE_NOOP("frmNewSeason", "Remove All Volunteer Positions Requested")},
    {SeasonBox::RemoveVolunteerCertifications, "chkRemoveVolunteerCertifications",
     QT_TRANSLATE_NOOP("frmNewSeason", "Remove All Volunteer Certifications")},
    {SeasonBox::ClearVolunteerRatings, "chkClearVolunteerRatings",
     QT_TRANSLATE_NOOP("frmNewSeason", "Clear All Volunteer Ratings")},
    {SeasonBox::DeleteAllVolunteers, "chkDeleteAllVolunteers",
     QT_TRANSLATE_NOOP("frmNewSeason", "Delete All Volunteers")},
};
constexpr Box ofTeams[] = {
    {SeasonBox::DeleteDivisions, "chkDeleteDivisions", QT_TRANSLATE_NOOP("frmNewSeason", "Delete All Divisions")},
    {SeasonBox::DeleteTeams, "chkDeleteTeams",
     QT_TRANSLATE_NOOP("frmNewSeason", "Delete All Teams within each Division")},
    {SeasonBox::DeleteFieldAssignments, "chkDeleteFieldAssignments",
     QT_TRANSLATE_NOOP("frmNewSeason", "Delete Each Divisions Field Assignments")},
    {SeasonBox::ResetTeamCoachInformation, "chkResetTeamCoachInformation",
     QT_TRANSLATE_NOOP("frmNewSeason", "Reset Team Coaches and Team Parents")},
    {SeasonBox::ResetTeamSponsors, "chkResetTeamSponsors",
     QT_TRANSLATE_NOOP("frmNewSeason", "Reset Team/Sponsor Assignments")},
};
constexpr Box ofEquipment[] = {
    {SeasonBox::DeleteEquipmentAssignments, "chkDeleteEquipmentAssignments",
     QT_TRANSLATE_NOOP("frmNewSeason", "Delete All Equipment Assignments")},
};
constexpr Box ofResults[] = {
    {SeasonBox::DeleteGameResults, "chkDeleteGameResults",
     QT_TRANSLATE_NOOP("frmNewSeason", "Delete All Game Results")},
};

struct Frame {
    int column;
    const char* caption;
    std::span<const Box> boxes;
};
constexpr Frame frames[] = {{0, QT_TRANSLATE_NOOP("frmNewSeason", "Player Information"), ofPlayers},
                            {1, QT_TRANSLATE_NOOP("frmNewSeason", "Volunteer Information"), ofVolunteers},
                            {1, QT_TRANSLATE_NOOP("frmNewSeason", "Equipment"), ofEquipment},
                            {2, QT_TRANSLATE_NOOP("frmNewSeason", "Divisions and Teams"), ofTeams},
                            {2, QT_TRANSLATE_NOOP("frmNewSeason", "Game Results"), ofResults}};

}  // namespace

frmNewSeason::frmNewSeason(Program& program) : program_(program), form_(new Form(this)), buttons_(new ButtonRow(this)) {
    setObjectName(QStringLiteral("frmNewSeason"));
    setWindowTitle(tr("New Season Configuration"));
    readYear();
    FormBuilder builder(form_);
    addYear(builder);
    addBoxes(builder);
    auto* heading = new QLabel(tr("New Season Options"));
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    heading->setFont(font);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->addWidget(heading);
    layout->addWidget(form_, 1);
    layout->addWidget(buttons_);
    addButtons();
    connect(form_, &Form::changed, this, &frmNewSeason::edited);
    connect(form_, &Form::left, this, &frmNewSeason::leftField);
    showBoxes();
    arm(false);
    form_->focusField(QLatin1String(yearBox));
    resize(QSize(1080, 540).boundedTo(QGuiApplication::primaryScreen()->availableSize()));
}

void frmNewSeason::addYear(FormBuilder& builder) {
    auto* hint = new QLabel(tr("(4-digit year i.e. 2000)"));
    builder.frame({}, 4).masked(QLatin1String(yearBox), tr("New Season &Year:"), QStringLiteral("####"),
                                Binding([this] { return year_; }, [this](const QString& year) { year_ = year; }, 4));
    builder.custom(hint).below();
}

void frmNewSeason::addBoxes(FormBuilder& builder) {
    int column = -1;
    for (const Frame& frame : frames) {
        if (frame.column != column) builder.column();
        column = frame.column;
        builder.frame(tr(frame.caption), 1);
        for (const Box& each : frame.boxes)
            builder.check(QLatin1String(each.name), tr(each.caption),
                          {[this, box = each.box] { return boxes_.isChecked(box); },
                           [this, box = each.box](bool checked) { boxes_.set(box, checked); }});
    }
    builder.below();
}

void frmNewSeason::addButtons() {
    go_ = buttons_->add("cmdNewSeasonGo", tr("&Go!"), [this] { go(); });
    refresh_ = buttons_->add("cmdNewSeasonRefresh", tr("&Refresh"), [this] { refresh(); });
    buttons_->add("cmdNewSeasonClose", tr("&Close"), [this] { reject(); });
}

void frmNewSeason::readYear() {
    datafile::Recordset options = program_.store.database().openRecordset("tblOptions");
    year_ = options.eof() ? QString::number(program_.clock().today().year()) : options.text("CurrentSeasonYear");
}

void frmNewSeason::edited(const QString& field) {
    if (field != QLatin1String(yearBox)) showBoxes();
    arm(field == QLatin1String(yearBox) || boxes_.any());
}

void frmNewSeason::showBoxes() {
    form_->refresh();  // a rule may have held the very box that was clicked
    for (const Frame& frame : frames)
        for (const Box& each : frame.boxes)
            form_->findChild<QCheckBox*>(QLatin1String(each.name))->setEnabled(boxes_.isEnabled(each.box));
}

void frmNewSeason::arm(bool armed) {
    go_->setEnabled(armed);
    refresh_->setEnabled(armed);
    go_->setDefault(armed);
}

void frmNewSeason::leftField(const QString& field) {
    const QWidget* now = focusWidget();
    const bool away = isVisible() && now && now->objectName() != field && !buttons_->isAncestorOf(now);
    if (away && field == QLatin1String(yearBox)) isYearValid();
}

bool frmNewSeason::isYearValid() {
    const std::optional<EntryFault> fault = checkYearEntry(year_);
    if (!fault) return true;
    program_.dialogs().warning(fault->title, fault->text);
    form_->focusField(QLatin1String(yearBox));
    return false;
}

void frmNewSeason::refresh() {
    readYear();
    boxes_ = {};
    showBoxes();
    form_->focusField(QLatin1String(yearBox));
    arm(false);
}

void frmNewSeason::go() {
    if (!isYearValid() || !program_.screens.offerToSave()) return;
    running_ = true;
    run();
    running_ = false;
    program_.screens.showAnew();
}

/// Nothing here takes input meanwhile: what the user does in that time is taken while the form is disabled, and lost.
void frmNewSeason::run() {
    auto* status = new frmUpdateStatus(tr("New Season Update Status"), this);
    status->setAttribute(Qt::WA_DeleteOnClose);
    form_->setEnabled(false);
    buttons_->setEnabled(false);
    status->begin();
    runNewSeason(program_.store, boxes_, year_,
                 {.step = [status](const QString& text) { status->showStep(text); },
                  .part = [status](const QString& text) { status->showPart(text); },
                  .progress = [status](int percent) { status->showProgress(percent); }});
    QCoreApplication::processEvents();
    form_->setEnabled(true);
    buttons_->setEnabled(true);
    status->finish(tr("New Season Updates Complete."));
}

void frmNewSeason::reject() {
    if (!running_) QDialog::reject();
}
