// How the pane of the assignments is laid out and what its lists hold.

#include <QVBoxLayout>

#include "equipment/AssignmentPane.h"
#include "platform/text/Collation.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/Grid.h"
#include "shell/Program.h"
#include "shell/SearchRow.h"

namespace {

constexpr int quantityDigits = 5;
constexpr int nameCharacters = 120;  // no entry of a list is longer

template <class Entry>
Binding bound(Entry& entry, QString Entry::*field, int length = 0) {
    return {[&entry, field] { return entry.*field; }, [&entry, field](const QString& text) { entry.*field = text; },
            length};
}

template <class Entry>
DateBinding bound(Entry& entry, QDate Entry::*field) {
    return {[&entry, field] { return entry.*field; }, [&entry, field](QDate date) { entry.*field = date; }};
}

}  // namespace

Form* AssignmentPane::makeForm() {
    auto* form = new Form(this);
    grid_ = makeGrid();
    FormBuilder builder(form);
    addHolder(builder.column());
    addItem(builder.column());
    builder.below().frame(tr("Assigned Items"), 1).custom(grid_);
    form->setDateFormat(program().globals().defaultDateFormat);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->addWidget(form);
    return form;
}

void AssignmentPane::addHolder(FormBuilder& builder) {
    const auto list = [&](const char* name, const QString& caption, QString Entry::*field) {
        builder.choice(name, caption, bound(entry_, field, nameCharacters), {},
                       ChoiceBox::FreeText | ChoiceBox::EmptyFirst);
    };
    builder.frame(tr("Assign To..."), 1)
        .options("optAssignTo", {}, {tr("Division"), tr("Team"), tr("Player"), tr("Volunteer")},
                 {[this] { return entry_.assignTo; }, [this](int choice) { entry_.assignTo = choice; }})
        .frame(tr("Search Lists"), 1);
    list("cboDivisionList", tr("D&ivision List"), &Entry::division);
    list("cboTeamList", tr("Tea&m List"), &Entry::team);
    list("cboPlayerList", tr("&Player List"), &Entry::player);
    list("cboVolunteerList", tr("Vol&unteer List"), &Entry::volunteer);
    builder.text("txtJerseyNumber", tr("&Jersey Number"),
                 bound(entry_, &Entry::jerseyNumber, players_.PlayerJerseyNumber.size()), FilterTextFull);
}

void AssignmentPane::addItem(FormBuilder& builder) {
    builder.frame(tr("Equipment"), 1)
        .choice("cboEquipmentList", tr("E&quipment List"), bound(entry_, &Entry::item, nameCharacters), {},
                ChoiceBox::FreeText | ChoiceBox::EmptyFirst)
        .shown(
            "lblTotalAvailable", tr("Total Available"), [this] { return QString::number(available_.total); }, 6)
        .shown(
            "lblQuantityAvailable", tr("Avail. To Distribute"),
            [this] { return QString::number(available_.toDistribute); }, 6)
        .text("txtDistributionQuantity", tr("Quantity Distri&buted"), bound(entry_, &Entry::given, quantityDigits),
              FilterNumeric)
        .date("dtpDistributionDate", tr("Date Distributed"), bound(entry_, &Entry::givenOn))
        .text("txtReturnQuantity", tr("Quantity Returned"), bound(entry_, &Entry::returned, quantityDigits),
              FilterNumeric)
        .date("dtpReturnDate", tr("Date Returned"), bound(entry_, &Entry::returnedOn));
}

Grid* AssignmentPane::makeGrid() {
    const auto number = Qt::AlignHCenter;
    auto* grid = new Grid({{.caption = tr("Assigned Item"), .characters = 16, .stretches = true},
                           {.caption = tr("Qty. Distributed"), .characters = 12, .alignment = number},
                           {.caption = tr("Date Distributed"), .characters = 12},
                           {.caption = tr("Qty. Returned"), .characters = 12, .alignment = number},
                           {.caption = tr("DateReturned"), .characters = 12}});
    grid->setObjectName("flxGridAssignedItems");
    grid->setAccessibleName(tr("Assigned Items"));
    connect(grid, &Grid::rowPicked, this, &AssignmentPane::showPicked);
    return grid;
}

void AssignmentPane::fill(const char* list, const QString& query) {
    const std::vector<QString> entries = SearchRow::entries(database(), query);
    form_->findChild<ChoiceBox*>(list)->setEntries(QStringList(entries.begin(), entries.end()));
}

void AssignmentPane::readLists() {
    assignment_.RebuildEquipmentAvailable();
    seenChanges_ = database().changes();
    fill("cboDivisionList",
         "SELECT *, ([DivName]) as Name FROM tblDivision WHERE [DeletedFlag] = False ORDER BY [DivName]");
    LoadTeamList();
    LoadPlayerList();
    fill("cboVolunteerList",
         "SELECT *, ([VolLastName] & \", \" & [VolFirstName] & \" - \" & [VolHomePhone]) as Name FROM tblVolunteer "
         "WHERE [DeletedFlag] = False ORDER BY [VolLastName], [VolFirstName]");
    LoadAvailableEquipmentList();
}

void AssignmentPane::LoadTeamList() {
    const bool known = divisions_.FindDivRecord(entry_.division, false, true);
    fill("cboTeamList",
         QStringLiteral("SELECT *, ([TeamName]) as Name FROM tblTeam WHERE DivisionId = %1  AND [DeletedFlag] = False "
                        "ORDER BY [TeamName]")
             .arg(known ? divisions_.DivId() : 0));
}

void AssignmentPane::LoadPlayerList() {
    fill("cboPlayerList",
         "SELECT *, ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) as Name FROM "
         "tblRegistration WHERE [DeletedFlag] = False ORDER BY [PlayerLastName], [PlayerFirstName], "
         "[PlayerBirthDate]");
}

/// What is left to give. Of two items that read the same the first one counts.
void AssignmentPane::LoadAvailableEquipmentList() {
    datafile::Recordset rows = database().openRecordset(
        "SELECT [EquipId], ([ItemName]) as Name, ([Description]) as ItemDescription FROM tblEquipment, "
        "tblEquipmentAvailable WHERE [DeletedFlag] = False   AND tblEquipment![EquipId] = "
        "tblEquipmentAvailable![EquipmentId]   AND tblEquipmentAvailable![QuantityAvailable] > 0  ORDER BY "
        "[ItemName], [Description]");
    const int chosen = offered_.value(entry_.item);
    offered_.clear();
    std::vector<QString> entries;
    for (; !rows.eof(); rows.moveNext()) {
        const datafile::Values& row = rows.row();
        entries.push_back(datafile::toText(row[1]) + QStringLiteral(" - ") + datafile::toText(row[2]));
        if (!offered_.contains(entries.back()))
            offered_.insert(entries.back(), static_cast<int>(datafile::toNumber(row[0])));
    }
    if (chosen != 0 && !offered_.contains(entry_.item)) offered_.insert(entry_.item, chosen);
    placeAccented(entries);
    form_->findChild<ChoiceBox*>("cboEquipmentList")->setEntries(QStringList(entries.begin(), entries.end()));
}

void AssignmentPane::LoadAssignedItems() {
    std::vector<GridRow> shown;
    if (holder_) {
        datafile::Recordset rows = database().openRecordset(
            QStringLiteral("SELECT tblEquipmentAssignment![EquipmentId], tblEquipment![ItemName], "
                           "tblEquipment![Description], [DistributionQuantity], [DistributionDate], [ReturnQuantity], "
                           "[ReturnDate] FROM tblEquipmentAssignment, tblEquipment WHERE "
                           "tblEquipmentAssignment![DivisionId] = %1   AND tblEquipmentAssignment![TeamId] = %2   AND "
                           "tblEquipmentAssignment![PlayerId] = %3   AND tblEquipmentAssignment![VolId] = %4   AND "
                           "tblEquipmentAssignment![DeletedFlag] = False   AND tblEquipmentAssignment![EquipmentId] = "
                           "tblEquipment![EquipId] ORDER BY tblEquipment![ItemName], tblEquipment![Description]")
                .arg(holder_->divisionId)
                .arg(holder_->teamId)
                .arg(holder_->playerId)
                .arg(holder_->volId));
        for (; !rows.eof(); rows.moveNext()) {
            const datafile::Values& row = rows.row();
            const auto text = [&row](size_t column) { return datafile::toText(row[column]); };
            const bool isBack = toWhole(text(5)).value_or(0) != 0;
            shown.push_back(
                {{QString(text(1) + " - " + text(2)), text(3), formatDate(datafile::toDate(row[4]), "m-d-yy"), text(5),
                  isBack ? formatDate(datafile::toDate(row[6]), "m-d-yy") : QString()},
                 static_cast<int>(datafile::toNumber(row[0]))});
        }
    }
    grid_->setEmptyText(holder_ ? tr("Nothing is assigned here.") : tr("Choose who holds the equipment."));
    grid_->setRows(std::move(shown));
}
