#include "league/DivisionPane.h"

#include "equipment/clsEquipmentAssignment.h"
#include "league/frmDifficultyRating.h"
#include "platform/text/Money.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormBuilder.h"
#include "shell/Bound.h"
#include "shell/MonthDay.h"
#include "shell/Program.h"

namespace {

/// The one organization that gives its divisions official names.
constexpr char namingOrganization[] = "Little League";

/// A league belongs to it by its affiliation or is it by its own name.
bool hasOfficialNames(const Globals& globals) {
    return globals.organizationAffiliation == QLatin1String(namingOrganization) ||
           globals.organizationName == QLatin1String(namingOrganization);
}

/// An age of which none shows as 0.
Binding ageBinding(Text& age) {
    return {[&age] { return age().isEmpty() ? QStringLiteral("0") : age(); },
            [&age](const QString& value) { age = value; }, age.size()};
}

}  // namespace

DivisionPane::DivisionPane(Program& program)
    : RecordPane(
          program,
          {.tag = "Division",
           .caption = tr("Divisions"),
           .searchName = "cboDivSearchList",
           .searchCaption = tr("C&urrent Division"),
           .moveName = "cmdDivMove",
           .listQuery = "SELECT *, ([DivName]) as Name FROM tblDivision WHERE [DeletedFlag] = False ORDER BY [DivName]",
           .checkTitle = tr("Validation Error - Division"),
           .missingText = tr("Error!  Division Name not found in Division Search List"),
           .leaveQuestion = tr("Save the current Division record?")}),
      division_(program.store) {
    start(division_, buildForm());
}

Form* DivisionPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    addDivisionFrame(builder.column(3));
    addUmpiresFrame(builder);
    addRegistrationFrame(builder.column(2));
    form->setFieldVisible(QStringLiteral("cboOfficialDivisionName"), hasOfficialNames(program().globals()));
    connect(form, &Form::changed, this, [this](const QString& field) {
        if (field == u"cboDivAgeCutOffMonth") showDays();
    });
    return form;
}

void DivisionPane::addDivisionFrame(FormBuilder& builder) {
    builder.frame(tr("Division"))
        .span(2)
        .text("txtDivName", tr("Division N&ame *"), division_.DivName, FilterTextFull)
        .text("mskedDivMinAge", tr("M&in Age (Yrs)"), ageBinding(division_.DivMinAge), FilterNumeric)
        .text("mskedDivMaxAge", tr("Ma&x Age (Yrs)"), ageBinding(division_.DivMaxAge), FilterNumeric)
        .choice("cboDivGender", tr("Division &Gender"), division_.DivGender, {"Male", "Female", "Male & Female"})
        .choice("cboDivSport", tr("Division S&port"), division_.DivSport,
                list("SELECT * from tblSport ORDER BY [SportName]", "SportName"));
}

void DivisionPane::addUmpiresFrame(FormBuilder& builder) {
    builder.frame(tr("Umpires"))
        .money("mskedDivUmpPlatePay", tr("Umpire Plate Pa&y"), division_.DivUmpPlatePay)
        .money("mskedDivUmpBasePay", tr("Umpire &Base Pay"), division_.DivUmpBasePay)
        .text("mskedDivNbrOfUmpsRequired", tr("# Umpires Re&quired"), division_.DivNbrOfUmpsRequired, FilterNumeric)
        .yesNo("optDivCertUmpsRequired", tr("Certified Umpires Required?"), yesIsZero(division_.DivCertUmpsRequired))
        .span(2)
        .choice("cboDivDifficultyRating", tr("Difficulty Rating for Umpires"), division_.DivDifficultyRating,
                difficultyRatings(), ChoiceBox::FreeText | ChoiceBox::EmptyFirst, FilterTextFull);
}

void DivisionPane::addRegistrationFrame(FormBuilder& builder) {
    Text& month = division_.DivAgeCutOffMonth;
    Text& day = division_.DivAgeCutOffDay;
    const Binding monthOfYear = monthBinding(month);
    const Binding monthThenFirst(monthOfYear.read, [monthOfYear, &day](const QString& name) {
        monthOfYear.write(name);
        day = "1";
    });
    builder.frame(tr("Registration"), 1)
        .choice("cboDivAgeCutOffMonth", tr("Age Cutoff &Month"), monthThenFirst, monthNames(), ChoiceBox::ListOnly)
        .choice("cboDivAgeCutOffDay", tr("Age Cutoff Day"), dayBinding(day, month), daysOfMonth(month),
                ChoiceBox::ListOnly)
        .money("txtDivRegistrationFee", tr("Reg. Fee"), division_.DivRegistrationFee)
        .choice("cboOfficialDivisionName", tr("Official Division Name"), division_.OfficialDivisionName,
                officialNames(), ChoiceBox::FreeText | ChoiceBox::EmptyFirst, FilterTextFull)
        .frame(tr("Comments"), 1)
        .comments("txtDivComments", {}, division_.DivComments, FilterTextWide);
}

QStringList DivisionPane::list(const QString& query, const QString& column) const {
    const auto entries = program().store.database().readList(query, column);
    return QStringList(entries.begin(), entries.end());
}

QStringList DivisionPane::difficultyRatings() const {
    return list("SELECT * from tblDifficultyRating WHERE [DeletedFlag] = False ORDER BY [DifficultyRatingText]",
                "DifficultyRatingText");
}

QStringList DivisionPane::officialNames() const {
    return list(
        "SELECT *, ([OfficialDivisionName]) as Name FROM tblOfficialDivisionNames "
        "WHERE tblOfficialDivisionNames.OrganizationName = " +
            datafile::quoted(QLatin1String(namingOrganization)) + " ORDER BY [OfficialDivisionName]",
        "Name");
}

void DivisionPane::readChoices() {
    form().findChild<ChoiceBox*>("cboDivDifficultyRating")->setEntries(difficultyRatings());
}

void DivisionPane::showDays() {
    form().findChild<ChoiceBox*>("cboDivAgeCutOffDay")->setEntries(daysOfMonth(division_.DivAgeCutOffMonth));
}

void DivisionPane::shown() {
    if (!division_.IsDivNew()) loadedName_ = division_.DivName;
    showDays();
}

void DivisionPane::makeNew() {
    const Globals& globals = program().globals();
    division_.NewDivRecord();
    division_.DivRegistrationFee = Money().text();
    division_.DivAgeCutOffMonth = globals.defaultAgeCutoffMonth;
    division_.DivAgeCutOffDay = globals.defaultAgeCutoffDay;
    division_.SetIsDivDirty(false);
}

std::vector<Finding> DivisionPane::check() const {
    const QString divisionName = division_.DivName;
    if (divisionName.trimmed().isEmpty()) return {{firstField(), tr("The Division Name is a required entry.")}};
    clsDivision other(program().store);
    bool found = false;
    other.FindDupDivRecord(divisionName, false, true, found);
    if (!found || (!division_.IsDivNew() && other.DivId == division_.DivId)) return {};
    return {{firstField(),
             tr("The Division Name %1\nalready exists\nDuplicates are not allowed.\nPlease enter a New Division Name.")
                 .arg(divisionName)}};
}

bool DivisionPane::write() {
    const datafile::Database database = program().store.database();
    datafile::Transaction transaction(database);
    if (!division_.IsDivNew()) RenameScheduleDivision(database, loadedName_, division_.DivName);
    if (!RecordPane::write()) return false;
    transaction.commit();
    offerNewRating();
    return true;
}

void DivisionPane::RenameScheduleDivision(const datafile::Database& database, const QString& before,
                                          const QString& now) {
    if (before != now)
        database.execute("UPDATE tblSchedule SET [division] = " + datafile::quoted(now) +
                         " WHERE [division] = " + datafile::quoted(before));
}

/// A difficulty rating that the list does not know may join it; the division keeps it either way.
void DivisionPane::offerNewRating() {
    const QString rating = division_.DivDifficultyRating;
    if (rating.isEmpty() || form().findChild<ChoiceBox*>("cboDivDifficultyRating")->indexOf(rating) >= 0) return;
    const bool add = program().dialogs().ask(
        tr("Add to Difficulty Ratings?"),
        tr("The Difficulty Rating you specified is not\ncurrently in the list of selectable items.\n\n"
           "Do you want to add the item to the list?"));
    if (!add) return;
    frmDifficultyRating ratingForm(division_, rating, program().dialogs());
    program().dialogs().showModal(ratingForm);
    readChoices();
}

QString DivisionPane::deleteQuestion() const {
    return tr("Are you sure you want to delete Division \"%1\"?").arg(division_.DivName());
}

bool DivisionPane::mayDelete() {
    clsEquipmentAssignment assignments(program().store);
    if (assignments.FindEquipmentAssignment({.divisionId = division_.DivId}, false, false)) {
        program().dialogs().error(tr("Delete Error..."),
                                  tr("The Division being deleted has Equipment \nassigned to it.  Delete any "
                                     "equipment assignments\nbefore deleting this record."));
        cancel();
        return false;
    }
    division_.TeamRequery();
    if (!division_.TeamsAssignedToDivision(division_.DivId)) return true;
    program().dialogs().warning(
        tr("Division Delete Request"),
        tr("There are currently Teams assigned to this Division.\n\nYou must first delete the Teams (from the "
           "Teams tab\non this form) that are assigned to this Division\nbefore you can delete the Division."));
    return false;
}
