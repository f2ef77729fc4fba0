#include "league/TeamStaff.h"

#include <QLabel>
#include <QShowEvent>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/text/Collation.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/Choices.h"
#include "shell/Program.h"

namespace {

QString phone(const QString& area, const QString& number) {
    if (number.trimmed().isEmpty() || number.trimmed() == u"-") return {};
    return area.trimmed().isEmpty() ? number : QString(u'(' + area + u") " + number);
}

}  // namespace

TeamStaff::TeamStaff(Program& program, Offer offerToSave)
    : program_(program), offerToSave_(std::move(offerToSave)), staff_(program.store), tabs_(new QTabWidget(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->addWidget(tabs_);
    tabs_->setObjectName(QStringLiteral("tabStaff"));
    for (auto& seat : seats_) seat = std::make_unique<Seat>(program.store);
    const QString assistant = tr("Save Assistant Coach Info?");
    addSeat(*seats_[0], "HeadCoach", tr("Manager/Coach"), tr("Save Head Coach Info?"),
            tr("The Head Coach information has changed.\nDo you want to save the new head coach information?"));
    addSeat(*seats_[1], "FirstAssistant", tr("Asst. Coach #1"), assistant,
            tr("The First Assistant Coach information has changed.\n"
               "Do you want to save the new assistant coach information?"));
    addSeat(*seats_[2], "SecondAssistant", tr("Asst. Coach #2"), assistant,
            tr("The Second Assistant Coach information has changed.\n"
               "Do you want to save the new assistant coach information?"));
    addSeat(*seats_[3], "TeamParent", tr("Team Parent #1"), tr("Save Team Parent Info?"),
            tr("The Team Parent information has changed.\nDo you want to save the new Team Parent information?"));
    addSeat(*seats_[4], "TeamParent2", tr("Team Parent #2"), tr("Save Team Parent2 Info?"),
            tr("The Team Parent2 information has changed.\nDo you want to save the new Team Parent2 information?"));
    connect(tabs_, &QTabWidget::currentChanged, this, &TeamStaff::leaveTab);
}

void TeamStaff::addSeat(Seat& seat, const char* position, const QString& caption, const QString& title,
                        const QString& question) {
    seat.position = position;
    seat.title = title;
    seat.question = question;
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    auto* row = new QHBoxLayout;
    row->setSpacing(spacing::label);
    auto* label = new QLabel(tr("Volunteer &Name"));
    seat.list = new SearchCombo(caption);
    seat.list->setObjectName(QStringLiteral("cbo%1SearchList").arg(QLatin1String(position)));
    label->setBuddy(seat.list);
    row->addWidget(label);
    row->addWidget(seat.list);
    row->addStretch(1);
    layout->addLayout(row);
    seat.form = buildForm(seat);
    layout->addWidget(seat.form, 1);
    tabs_->addTab(page, caption);
    connect(seat.list, &SearchCombo::picked, this, [this, &seat](int index) { pick(seat, seat.list->entryAt(index)); });
    connect(seat.form, &Form::changed, this, [this, &seat] { change(seat); });
}

Form* TeamStaff::buildForm(Seat& seat) {
    auto* form = new Form;
    FormBuilder builder(form);
    const clsVolunteer& v = seat.volunteer;
    const QString position = QLatin1String(seat.position);
    const auto shown = [&](const char* what, const QString& caption, std::function<QString()> read) {
        builder.shown(QStringLiteral("lbl") + position + QLatin1String(what), caption, std::move(read));
    };
    builder.column(3).frame(tr("Volunteer"));
    shown("LastName", tr("Last Name"), [&v] { return v.VolLastName(); });
    shown("FirstName", tr("First Name"), [&v] { return v.VolFirstName(); });
    shown("Address", tr("Street Address"),
          [&v] { return QString(v.VolAddress1() + u' ' + v.VolAddress2()).trimmed(); });
    shown("City", tr("City"), [&v] { return v.VolCity(); });
    shown("StateId", tr("State"), [&v] { return v.VolStateId(); });
    shown("ZipCode", tr("Zip/Postal"), [&v] {
        if (v.VolZipCode().isEmpty()) return v.VolPostalCode();
        return v.VolZipCode4().isEmpty() ? v.VolZipCode() : QString(v.VolZipCode() + u'-' + v.VolZipCode4());
    });
    shown("HomePhone", tr("Home Phone"), [&v] { return phone(v.VolHomePhoneArea, v.VolHomePhone); });
    shown("WorkPhone", tr("Work Phone"), [&v] { return phone(v.VolWorkPhoneArea, v.VolWorkPhone); });
    shown("FaxPhone", tr("Other Phone"), [&v] { return phone(v.VolFaxPhoneArea, v.VolFaxPhone); });
    shown("EmailAddress", tr("Email Address"), [&v] { return v.VolEmailAddress(); });
    builder.span(2);
    shown("Comments", tr("Comments"), [&v] { return v.VolComments(); });
    builder.column(1)
        .frame(tr("On the Team"), 1)
        .choice(QStringLiteral("cbo") + position + QStringLiteral("ShirtSize"), tr("Shirt Si&ze"),
                Binding([&seat] { return seat.shirtSize; }, [&seat](const QString& size) { seat.shirtSize = size; }),
                listOf(program_,
                       "SELECT [ShirtSizeText] FROM tblShirtSize WHERE [DeletedFlag] = False ORDER BY [ShirtSizeText]",
                       "ShirtSizeText"));
    return form;
}

void TeamStaff::setTeam(int divisionId, int teamId) {
    divisionId_ = divisionId;
    teamId_ = teamId;
    for (auto& seat : seats_) seat->changed = false;
    if (isVisible()) LoadCoachingStaff();
}

void TeamStaff::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous()) return;
    readVolunteers();
    LoadCoachingStaff();
}

/// All five lists are filled from one reading.
void TeamStaff::readVolunteers() {
    if (!isVisible()) return;
    std::vector<QString> volunteers = program_.store.database().readList(
        "SELECT *, ([VolLastName] & \", \" & [VolFirstName] & \" - \" & [VolHomePhone]) as Name FROM "
        "tblVolunteer WHERE [DeletedFlag] = False ORDER BY [VolLastName], [VolFirstName]",
        "Name");
    placeAccented(volunteers);
    volunteers.insert(volunteers.begin(), QString());
    for (auto& seat : seats_) {
        seat->list->setEntries(std::vector<QString>(volunteers));
        seat->list->setCurrentIndex(seat->list->indexOf(seat->shown));
    }
}

void TeamStaff::LoadCoachingStaff() {
    for (auto& seat : seats_) {
        seat->changed = false;
        const bool held = teamId_ > 0 && staff_.GetTeamVolunteerInfo(divisionId_, teamId_, seat->position);
        const QString entry =
            held ? VolunteerKey{staff_.VolLastName, staff_.VolFirstName, staff_.VolHomePhone}.text() : QString();
        const bool listed = held && seat->list->indexOf(entry) >= 0;  // not so a volunteer who was deleted since
        seat->shirtSize = listed ? staff_.VolShirtSize : QString();
        show(*seat, listed ? entry : QString());
    }
}

void TeamStaff::show(Seat& seat, const QString& entry) {
    if (entry.isEmpty() || !seat.volunteer.FindVolRecord(entry, false, true)) seat.volunteer.blank();
    seat.shown = entry;
    seat.list->setCurrentIndex(seat.list->indexOf(entry));
    seat.form->refresh();
    seat.form->setFieldsEnabled(!entry.isEmpty());
}

/// A name that is none leaves the position as it was.
void TeamStaff::pick(Seat& seat, const QString& entry) {
    if (entry == seat.shown) return;
    if (!entry.isEmpty() && !seat.volunteer.FindVolRecord(entry, false, false))
        return seat.list->setCurrentIndex(seat.list->indexOf(seat.shown));
    if (entry.isEmpty()) seat.shirtSize.clear();
    show(seat, entry);
    change(seat);
}

void TeamStaff::change(Seat& seat) {
    seat.changed = true;
    Q_EMIT edited();
}

bool TeamStaff::isChanged() const {
    return std::any_of(seats_.begin(), seats_.end(), [](const auto& seat) { return seat->changed; });
}

QString TeamStaff::searchName() const { return seats_[static_cast<size_t>(tabs_->currentIndex())]->list->objectName(); }

void TeamStaff::leaveTab(int index) {
    if (index == tab_) return;
    const Seat& left = *seats_[static_cast<size_t>(tab_)];
    if (left.changed && !offerToSave_(left.question, left.title)) return tabs_->setCurrentIndex(tab_);
    tab_ = index;
}

QString TeamStaff::sameCoach() const {
    const auto same = [this](size_t one, size_t other) {
        return !seats_[one]->shown.isEmpty() && seats_[one]->shown == seats_[other]->shown;
    };
    if (same(0, 1) || same(0, 2))
        return tr(
            "The Head Coach's Name and the Assistant\nCoach's name is the same.  You must select \n"
            "unique names for the coaching positions.");
    if (same(1, 2))
        return tr(
            "The Assistant Coach's Names are the same.\nYou must select unique names for the\n"
            "coaching positions.");
    return {};
}

bool TeamStaff::SaveCoachingStaff() {
    if (const QString warning = sameCoach(); !warning.isEmpty()) {
        program_.dialogs().warning(tr("Invalid Coach Selections..."), warning);
        return false;
    }
    datafile::Transaction transaction(program_.store.database());
    for (auto& seat : seats_) {
        if (!seat->changed) continue;
        bool found = false;
        if (seat->shown.isEmpty())
            staff_.DeleteVolunteerInfo(divisionId_, teamId_, seat->position);
        else
            seat->volunteer.GetVolRecord(seat->shown, false, found);
        if (found)
            staff_.SaveVolunteerInfo(seat->volunteer.VolId, divisionId_, teamId_, seat->position, seat->shirtSize);
    }
    transaction.commit();
    for (auto& seat : seats_) seat->changed = false;
    return true;
}
