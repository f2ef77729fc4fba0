#include "equipment/AssignmentPane.h"

#include "platform/text/Numbers.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/Form.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/WaitCursor.h"
#include "shell/Program.h"

AssignmentPane::AssignmentPane(Program& program)
    : ScreenPane(program, {.tag = "Assignment", .caption = tr("Equipment Assignment"), .searchName = "cboDivisionList"},
                 Save | Delete | Cancel | Refresh),
      divisions_(program.store),
      teams_(program.store),
      players_(program.store),
      volunteers_(program.store),
      items_(program.store),
      assignment_(program.store),
      form_(makeForm()) {
    connect(form_, &Form::changed, this, &AssignmentPane::noteEdit);
    blankQuantities();
    form_->refresh();
    enableLists();
}

datafile::Database AssignmentPane::database() const { return program().store.database(); }

void AssignmentPane::enableLists() {
    const struct {
        const char* list;
        bool isNeeded;
    } lists[] = {{"cboDivisionList", entry_.assignTo == ToDivision || entry_.assignTo == ToTeam},
                 {"cboTeamList", entry_.assignTo == ToTeam},
                 {"cboPlayerList", entry_.assignTo == ToPlayer},
                 {"cboVolunteerList", entry_.assignTo == ToVolunteer}};
    const bool waits = isEditing() && holder_ && itemId_ != 0;
    for (const auto& [list, isNeeded] : lists) form_->findChild<QWidget*>(list)->setEnabled(isNeeded && !waits);
    for (const char* name : {"optAssignTo", "cboEquipmentList"}) form_->findChild<QWidget*>(name)->setEnabled(!waits);
    grid_->setEnabled(!waits);
    form_->setFieldVisible("txtJerseyNumber", entry_.assignTo == ToPlayer);
}

/// Whom and what the edit belongs to is not changed under it.
void AssignmentPane::setEditing(bool editing) {
    ScreenPane::setEditing(editing);
    enableLists();
}

void AssignmentPane::noteEdit(const QString& field) {
    Q_EMIT said({});
    if (field == u"cboDivisionList") {
        entry_.team.clear();
        LoadTeamList();
    }
    const bool ofHolder = field == u"optAssignTo" || field.startsWith(u"cbo");
    if (ofHolder) {
        showAssignment();
    } else {
        setEditing(true);
    }
}

std::optional<EquipmentHolder> AssignmentPane::holderOfFields() {
    bool found = false;
    switch (entry_.assignTo) {
        case ToDivision:
        case ToTeam:
            if (!divisions_.FindDivRecord(entry_.division, false, true)) return {};
            if (entry_.assignTo == ToDivision) return EquipmentHolder{.divisionId = divisions_.DivId};
            if (!teams_.FindTeamRecord(entry_.team, divisions_.DivId, false, true)) return {};
            return EquipmentHolder{.divisionId = divisions_.DivId, .teamId = teams_.TeamId};
        case ToPlayer:
            if (!players_.FindPlayerRecord(entry_.player, false, true)) return {};
            return EquipmentHolder{.playerId = players_.PlayerId};
        default:
            volunteers_.GetVolIdWithPhone(entry_.volunteer, found);
            return found ? std::optional(EquipmentHolder{.volId = volunteers_.VolId}) : std::nullopt;
    }
}

/// Brings up what the holder has of the item. Quantities that were typed before either was chosen stay for a new
/// assignment.
void AssignmentPane::showAssignment() {
    holder_ = holderOfFields();
    itemId_ = offered_.value(entry_.item);
    if (entry_.assignTo == ToPlayer) entry_.jerseyNumber = holder_ ? players_.PlayerJerseyNumber() : QString();
    LoadAssignedItems();
    ShowEquipmentAvailable();
    isAssigned_ = holder_ && itemId_ != 0 && assignment_.FindAssignmentRecord(*holder_, itemId_, false, true);
    if (isAssigned_) {
        entry_.given = assignment_.DistributionQuantity;
        entry_.givenOn = assignment_.DistributionDate;
        entry_.returned = assignment_.ReturnQuantity;
        entry_.returnedOn = assignment_.ReturnDate;
    } else if (!isEditing()) {
        blankQuantities();
    }
    form_->refresh();
    setEditing(isEditing() && !isAssigned_);
}

void AssignmentPane::blankQuantities() {
    entry_.given = entry_.returned = QStringLiteral("0");
    entry_.givenOn = entry_.returnedOn = program().clock().today();
}

void AssignmentPane::ShowEquipmentAvailable() {
    available_ = itemId_ != 0 ? assignment_.FindEquipmentAvailable(itemId_) : clsEquipmentAssignment::Available{};
}

void AssignmentPane::showPicked(int row) {
    Q_EMIT said({});
    const int item = grid_->rows()[static_cast<size_t>(row)].id;
    const bool found = holder_ && items_.FindEquipmentRecordById(item, false, false) &&
                       assignment_.FindAssignmentRecord(*holder_, item, false, false);
    if (!found)
        return program().dialogs().warning(
            tr("Assignment Record Error..."),
            tr("The assignment record was not found.") + '\n' + tr("Refresh the screen and reselect the record."));
    entry_.item = grid_->text(row, 0);
    offered_.insert(entry_.item, item);
    showAssignment();
    form_->focusField("txtReturnQuantity");
}

void AssignmentPane::addHolderProblems(std::vector<Problem>& problems) {
    const bool known = holderOfFields().has_value();
    const bool inDivision = entry_.assignTo == ToDivision || entry_.assignTo == ToTeam;
    if (inDivision && entry_.division.isEmpty())
        problems.push_back({"cboDivisionList",
                            problems.empty() ? tr("You must select a Division") : tr("You must select a Divsision.")});
    else if (inDivision && !divisions_.FindDivRecord(entry_.division, false, false))
        problems.push_back({"cboDivisionList", tr("An Invalid Division has been selected.")});
    const struct {
        AssignTo choice;
        const char* field;
        const QString& chosen;
        QString missing;
        QString invalid;
    } rules[] = {
        {ToTeam, "cboTeamList", entry_.team, tr("You must select a Team."), tr("An Invalid Team has been selected.")},
        {ToPlayer, "cboPlayerList", entry_.player, tr("You must select a Player."),
         tr("An Invalid Player Record has been selected.")},
        {ToVolunteer, "cboVolunteerList", entry_.volunteer, tr("You must select a Volunteer."),
         tr("An Invalid Volunteer Record has been selected.")}};
    for (const auto& rule : rules)
        if (rule.choice == entry_.assignTo && (rule.chosen.isEmpty() || !known))
            problems.push_back({rule.field, rule.chosen.isEmpty() ? rule.missing : rule.invalid});
}

std::vector<AssignmentPane::Problem> AssignmentPane::problems() {
    std::vector<Problem> found;
    const QString unreadable = form_->unreadableField();
    for (const char* field : {"dtpDistributionDate", "dtpReturnDate"})
        if (unreadable == QLatin1String(field)) found.push_back({field, tr("The date cannot be read.")});
    addHolderProblems(found);
    if (itemId_ == 0 || !items_.FindEquipmentRecordById(itemId_, false, false))
        found.push_back({"cboEquipmentList", tr("You must select an Equipment Item to assign.")});
    return found;
}

bool AssignmentPane::ValidateAssignment() {
    const std::vector<Problem> found = problems();
    if (found.empty()) return true;
    QStringList lines;
    for (const Problem& problem : found) lines << problem.text;
    program().dialogs().warning(tr("Error - Assignment Save"), lines.join(u'\n'));
    form_->focusField(QLatin1String(found.front().field));
    return false;
}

bool AssignmentPane::save() {
    const WaitCursor wait;
    if (!ValidateAssignment()) return false;
    try {
        write();
        return true;
    } catch (const std::exception& failure) {
        program().dialogs().error(tr("The record was not saved"), QString::fromUtf8(failure.what()));
    }
    return false;
}

/// Nothing out and nothing back is no assignment. A player's jersey number is written all the same.
void AssignmentPane::write() {
    const auto counts = [](const QString& quantity) { return isNumeric(quantity) && quantity != u"0"; };
    const auto orToday = [this](QDate date) { return date.isValid() ? date : program().clock().today(); };
    holder_ = holderOfFields();
    QString done;
    datafile::Transaction transaction(database());
    if (entry_.assignTo == ToPlayer) {
        players_.PlayerJerseyNumber = entry_.jerseyNumber;
        players_.SavePlayerRecord();
    }
    if (counts(entry_.given) || counts(entry_.returned)) {
        const bool known = assignment_.FindAssignmentRecord(*holder_, itemId_, false, true);
        if (!known) assignment_.NewAssignmentRecord();
        assignment_.DivisionId = holder_->divisionId;
        assignment_.TeamId = holder_->teamId;
        assignment_.PlayerId = holder_->playerId;
        assignment_.VolId = holder_->volId;
        assignment_.EquipmentId = itemId_;
        assignment_.DistributionQuantity = entry_.given;
        assignment_.DistributionDate = orToday(entry_.givenOn);
        if (isNumeric(entry_.returned)) assignment_.ReturnQuantity = entry_.returned;
        assignment_.ReturnDate = orToday(entry_.returnedOn);
        assignment_.Comments = QString();
        assignment_.SaveAssignmentRecord();
        assignment_.RebuildEquipmentAvailable();
        done = known ? tr("Assignment Updated.") : tr("Assignment Added.");
    }
    transaction.commit();
    setEditing(false);
    LoadAvailableEquipmentList();
    showAssignment();
    seenChanges_ = database().changes();
    Q_EMIT said(done);
}

void AssignmentPane::remove() {
    const bool go =
        program().dialogs().ask(tr("Delete Assignment Record"),
                                tr("Are you sure you want to delete") + '\n' + tr("this Equipment Assignment record?"));
    if (!go) return;
    if (!holder_ || !assignment_.FindAssignmentRecord(*holder_, itemId_, false, true))
        return program().dialogs().warning(
            tr("Assignment Delete Error..."),
            tr("The Assignment record was not found.") + '\n' + tr("Please report this as a bug."));
    datafile::Transaction transaction(database());
    assignment_.DeleteAssignmentRecord();
    assignment_.RebuildEquipmentAvailable();
    transaction.commit();
    entry_.item.clear();
    LoadAvailableEquipmentList();
    showAssignment();
    seenChanges_ = database().changes();
    Q_EMIT said(tr("Assignment Deleted."));
}

void AssignmentPane::cancel() {
    Q_EMIT said({});
    setEditing(false);
    showAssignment();
    focusSearch();
}

void AssignmentPane::refresh() {
    const WaitCursor wait;
    readLists();
    cancel();
}

bool AssignmentPane::offerToSave(const QString& question, const QString& title) {
    if (!isEditing()) return true;
    if (program().dialogs().ask(title.isEmpty() ? tr("Save Record?") : title,
                                question.isEmpty() ? tr("Save the current record?") : question))
        return save();
    setEditing(false);
    showAssignment();
    return true;
}

void AssignmentPane::catchUp() {
    if (isEditing() || database().changes() == seenChanges_) return;
    const WaitCursor wait;
    readLists();
    showAssignment();
}

void AssignmentPane::focusSearch() { form_->focusField("optAssignTo"); }
