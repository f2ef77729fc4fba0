#include "equipment/InventoryPane.h"

#include "platform/text/Numbers.h"
#include "platform/widgets/FormBuilder.h"
#include "shell/Bound.h"
#include "shell/Program.h"

namespace {

constexpr int countDigits = 4;  // any such number fits the column

Binding countBinding(Whole& count) {
    return {[&count] { return QString::number(count); },
            [&count](const QString& typed) { count = toWhole(typed).value_or(0); }, countDigits};
}

/// Shows the name of the id that is kept.
template <class Choices>
Binding nameBinding(Whole& id, const Choices& choices) {
    return {[&id, &choices] { return choices.nameById.value(id); },
            [&id, &choices](const QString& name) { id = choices.idByName.value(name); }};
}

}  // namespace

InventoryPane::InventoryPane(Program& program)
    : RecordPane(program,
                 {.tag = "Equipment",
                  .caption = tr("Equipment Inventory"),
                  .searchName = "cboEquipmentSearchList",
                  .searchCaption = tr("C&urrent Equipment"),
                  .moveName = "cmdEquipmentMove",
                  .listQuery = "SELECT *, ([ItemName] & \" - \" & [Description]) as Name FROM tblEquipment WHERE "
                               "[DeletedFlag] = False ORDER BY [ItemName], [Description], [ModelNumber], "
                               "[SerialNumber]",
                  .checkTitle = tr("Error - Equipment Save"),
                  .missingText = tr("Error!  Equipment Name not found in Search List"),
                  .leaveQuestion = tr("Save the current record?"),
                  .saved = tr("Record \"%1\" Added."),
                  .savedByOffer = tr("Equipment Record Added/Updated."),
                  .namesRepeat = true}),
      item_(program.store) {
    LoadEquipmentDataControls();
    start(item_, buildForm());
}

Form* InventoryPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    addItemFrame(builder.column(3));
    addPurchaseFrame(builder.column(2));
    addInsuranceFrame(builder);
    builder.below().frame(tr("Comments"), 1).comments("txtComments", {}, item_.EquipmentComments, FilterTextFull);
    form->findChild<QWidget*>("txtComments")->setAccessibleName(tr("Comments"));
    form->setDateFormat(program().globals().defaultDateFormat);
    return form;
}

void InventoryPane::addItemFrame(FormBuilder& builder) {
    builder.frame(tr("Item"))
        .span(2)
        .text("txtItemName", tr("Item Na&me *"), item_.EquipmentName, FilterTextFull)
        .span(2)
        .text("txtDescription", tr("Descri&ption *"), item_.EquipmentDescription, FilterTextFull)
        .text("txtNbrItems", tr("Num&ber of Items"), countBinding(item_.EquipmentNbrItems), FilterNumeric)
        .text("txtSize", tr("Item Si&ze"), item_.EquipmentSize, FilterTextFull)
        .span(2)
        .text("txtModelNumber", tr("Model Number"), item_.EquipmentModelNumber, FilterTextFull)
        .span(2)
        .text("txtSerialNumber", tr("Serial Number"), item_.EquipmentSerialNumber, FilterTextFull)
        .span(2)
        .text("txtCondition", tr("Condition of &Item(s)"), item_.EquipmentCondition, FilterTextFull);
}

void InventoryPane::addPurchaseFrame(FormBuilder& builder) {
    builder.frame(tr("Purchase"), 1)
        .choice("cboVendorId", tr("Vendor Name"), nameBinding(item_.EquipmentVendor, vendors_), vendors_.names)
        .money("mskedCost", tr("Purchase Price"), item_.EquipmentCost)
        .date("dtpPurchaseDate", tr("Purchase Date"), item_.EquipmentPurchaseDate)
        .date("dtpWarrantyExpiration", tr("&Warranty Expiration"), item_.EquipmentWarrantyExpiration);
}

void InventoryPane::addInsuranceFrame(FormBuilder& builder) {
    builder.frame(tr("Insurance"), 1)
        .yesNo("optInsured", tr("Insured?"), yesIsZero(item_.EquipmentInsured))
        .choice("cboInsuranceId", tr("Insured B&y"), nameBinding(item_.EquipmentInsuredBy, agencies_), agencies_.names);
}

InventoryPane::Choices InventoryPane::read(const QString& query, const QString& idColumn) const {
    Choices choices;
    datafile::Recordset rows = program().store.database().openRecordset(query);
    for (; !rows.eof(); rows.moveNext()) {
        const QString name = rows.text("Name");
        const int id = static_cast<int>(rows.number(idColumn));
        choices.nameById.insert(id, name);
        if (choices.idByName.contains(name)) continue;
        choices.idByName.insert(name, id);
        choices.names << name;
    }
    return choices;
}

void InventoryPane::LoadEquipmentDataControls() {
    vendors_ = read("SELECT *, ([VendorName]) as Name FROM tblVendor WHERE [DeletedFlag] = False ORDER BY [VendorName]",
                    "VendorId");
    agencies_ = read(
        "SELECT *, ([InsAgencyName]) as Name FROM tblInsurance WHERE [DeletedFlag] = False ORDER BY [InsAgencyName]",
        "InsId");
}

void InventoryPane::readChoices() {
    LoadEquipmentDataControls();
    form().findChild<ChoiceBox*>("cboVendorId")->setEntries(vendors_.names);
    form().findChild<ChoiceBox*>("cboInsuranceId")->setEntries(agencies_.names);
}

/// That nothing is insured although an agency was chosen is nobody's fault.
std::vector<Finding> InventoryPane::check() const {
    std::vector<Finding> findings;
    if (item_.EquipmentInsured == 0 && !agencies_.nameById.contains(item_.EquipmentInsuredBy))
        findings.push_back({"cboInsuranceId", tr("There is an inconsistency in the ") + '\n' +
                                                  tr("Insured (Yes/No) field and the Insurance List field.")});
    if (item_.EquipmentName().trimmed().isEmpty())
        findings.push_back({firstField(), tr("The Equipment Name is a required entry.")});
    if (item_.EquipmentDescription().trimmed().isEmpty())
        findings.push_back({"txtDescription", tr("The Equipment Description is a required entry.")});
    return findings;
}

QString InventoryPane::deleteQuestion() const {
    return tr("This will permanently delete the current record") + '\n' + tr("AND ALL Assignments for this record.") +
           "\n\n" + tr("Do you want to continue?");
}
