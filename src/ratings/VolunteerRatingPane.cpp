#include "ratings/VolunteerRatingPane.h"

#include "platform/text/Collation.h"
#include "platform/widgets/FormBuilder.h"
#include "shell/Bound.h"
#include "shell/Program.h"

VolunteerRatingPane::VolunteerRatingPane(Program& program)
    : RatingPane(program, {.tag = "VolunteerRating",
                           .caption = tr("Volunteer Ratings"),
                           .searchName = "cboUmpireSearchList",
                           .searchCaption = tr("C&urrent Volunteer"),
                           .moveName = "cmdVolunteerMove",
                           .missingText = tr("Error!  Volunteer Name not found in Search List"),
                           .atFirst = tr("First Volunteer Record"),
                           .atLast = tr("Last Volunteer Record")}),
      volunteer_(program.store) {
    start(rating(), buildForm());
}

Form* VolunteerRatingPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    clsAbilityRating& r = rating();
    builder.frame(tr("Volunteer"))
        .shown("lblVolLastName", tr("Last Name"),
               [this] { return kind_ == Kind::Player ? player().PlayerLastName() : volunteer_.VolLastName(); })
        .shown("lblVolFirstName", tr("First Name"),
               [this] { return kind_ == Kind::Player ? player().PlayerFirstName() : volunteer_.VolFirstName(); });
    builder.below().column().frame(tr("Coach Ratings"), 1);
    addGrade(builder, "cboCoachAbilityRating", tr("Coaching E&xperience"), r.CoachAbilityRating);
    addGrade(builder, "cboCoachAttitudeRating", tr("&Attitude"), r.CoachAttitudeRating);
    addGrade(builder, "cboCoachKnowledgeRating", tr("&Knowledge"), r.CoachKnowledgeRating);
    builder.shown("lblTotalCoachRating", tr("Total Coach Rating"), [this] { return totalCoach_; })
        .options("optCoachReturn", tr("Should Coach Return?"), {tr("Yes"), tr("No"), tr("Maybe")},
                 {[&r] { return r.CoachReturn(); }, [&r](int answer) { r.CoachReturn = answer; }})
        .column()
        .frame(tr("Umpire Ratings"), 1);
    addGrade(builder, "cboUmpireHomePlateRating", tr("Home &Plate Umpire"), r.UmpireHomePlateRating);
    addGrade(builder, "cboUmpireFieldRating", tr("F&ield Umpire"), r.UmpireFieldRating);
    addGrade(builder, "cboUmpireKnowledgeRating", tr("Knowledge"), r.UmpireKnowledgeRating);
    builder.shown("lblTotalUmpireRating", tr("Total Umpire Rating"), [this] { return totalUmpire_; });
    builder.below().frame(tr("Comments"), 1);
    addComments(builder, "txtVolunteerComments", volunteer_.VolComments.size());
    return form;
}

std::vector<QString> VolunteerRatingPane::LoadUmpireSearchList() const {
    clsAbilityRating work(program().store);
    work.FillTempRecords();
    const datafile::Database database = program().store.workspace.openDatabase(program().store.dataFilePath);
    std::vector<QString> people = database.readList(
        "SELECT *, ([LastName] & \", \" & [FirstName] & \" - \" & [BirthDate]) as Name FROM tblTempSearchList WHERE "
        "[PlayerId] <> 0 ORDER BY [LastName], [FirstName], [BirthDate]",
        "Name");
    std::vector<QString> volunteers = database.readList(
        "SELECT *, ([LastName] & \", \" & [FirstName] & \" - \" & [HomePhone]  ) as Name FROM tblTempSearchList WHERE "
        "[VolId] <> 0 ORDER BY [LastName], [FirstName]",
        "Name");
    placeAccented(people);
    placeAccented(volunteers);
    people.insert(people.end(), std::make_move_iterator(volunteers.begin()), std::make_move_iterator(volunteers.end()));
    return people;
}

/// A birth date has a "/" in it, a phone number has none: this alone tells the two kinds of entries apart.
bool VolunteerRatingPane::findPerson(const QString& entry) {
    kind_ = entry.isEmpty() ? Kind::None : entry.contains(u'/') ? Kind::Player : Kind::Volunteer;
    if (kind_ == Kind::None) return false;
    const bool found = kind_ == Kind::Player
                           ? player().FindPlayerRecord(entry, false, true) && !player().PlayerDeletedFlag
                           : volunteer_.FindVolRecord(entry, false, true) && !volunteer_.VolDeletedFlag;
    id_ = !found ? 0 : kind_ == Kind::Player ? player().PlayerId() : volunteer_.VolId();
    return found;
}

const Text& VolunteerRatingPane::personComments() const {
    return kind_ == Kind::Player ? player().PlayerComments : volunteer_.VolComments;
}

void VolunteerRatingPane::shown() {
    if (!hasRecord()) {
        kind_ = Kind::None;
        id_ = 0;
        volunteer_.blank();
    }
    RatingPane::shown();
}

void VolunteerRatingPane::ComputeVolunteerRatingTotals() {
    const auto total = [this](std::initializer_list<const Whole*> grades) {
        int sum = 0;
        for (const Whole* grade : grades) sum += valueOf(*grade);
        return QString::number(sum);
    };
    const clsAbilityRating& r = rating();
    totalUmpire_ = total({&r.UmpireHomePlateRating, &r.UmpireFieldRating, &r.UmpireKnowledgeRating});
    totalCoach_ = total({&r.CoachAbilityRating, &r.CoachAttitudeRating, &r.CoachKnowledgeRating});
}
