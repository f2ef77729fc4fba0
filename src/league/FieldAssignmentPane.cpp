#include "league/FieldAssignmentPane.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/text/Collation.h"
#include "platform/widgets/Form.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/ListMover.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/Program.h"

FieldAssignmentPane::FieldAssignmentPane(Program& program)
    : RecordPane(program,
                 {.tag = "FieldAssignment",
                  .caption = tr("Field Assignments"),
                  .searchName = "cboFieldDivisionList",
                  .searchCaption = tr("C&urrent Division"),
                  .moveName = "cmdFieldDivisionMove",
                  .listQuery = "SELECT *, ([DivName]) as Name FROM tblDivision WHERE [DeletedFlag] = False "
                               "ORDER BY [DivName]",
                  .leastFormHeight = 240},
                 Refresh),
      division_(program.store),
      field_(program.store),
      link_(program.store) {
    start(division_, buildForm());
    // The last button has always been called otherwise than the others.
    findChild<QToolButton*>(QStringLiteral("cmdFieldDivisionMove3"))
        ->setObjectName(QStringLiteral("cmdFieldDivsiionMove3"));
}

Form* FieldAssignmentPane::buildForm() {
    auto* form = new Form(this);
    fields_ = new ListMover(QStringLiteral("lstFields"), tr("Fields Availa&ble"), tr("Fields Assi&gned to Team"), form);
    fields_->setListNames(QStringLiteral("lstFieldsAvailable"), QStringLiteral("lstFieldsAssigned"));
    fields_->addHint(tr("<-- Drag and Drop -->"));
    fields_->addHint(tr("Or Double-Click"));
    auto* note =
        new QLabel(tr("For Diamond Scheduler compatibility, All fields are assigned at the Division Level."), form);
    note->setWordWrap(true);
    auto* layout = new QVBoxLayout(form);
    layout->setContentsMargins({});
    layout->setSpacing(spacing::line);
    layout->addWidget(fields_, 1);
    layout->addWidget(note);
    form->addPage(fields_);
    connect(fields_, &ListMover::moveRequested, this, [this](ListMover::Side from, int index) {
        from == ListMover::Left ? AssignFieldToDivision(index) : RemoveFieldFromDivision(index);
    });
    return form;
}

void FieldAssignmentPane::LoadTeamFieldLists() {
    const datafile::Database database = program().store.database();
    for (const auto& [side, in] : {std::pair(ListMover::Left, "NOT IN"), std::pair(ListMover::Right, "IN")}) {
        std::vector<QString> fields;
        if (division_.DivId > 0)
            fields = database.readList(
                QStringLiteral("SELECT *, ([FieldName]) as Name FROM tblField WHERE tblField.FieldId %1 (Select "
                               "tblTeamField.FieldId FROM tblTeamField WHERE tblTeamField.DivisionId = %2)   AND "
                               "tblField.DeletedFlag = False  ORDER BY [FieldName]")
                    .arg(QLatin1String(in))
                    .arg(division_.DivId()),
                QStringLiteral("Name"));
        placeAccented(fields);
        fields_->setEntries(side, std::move(fields));
    }
}

bool FieldAssignmentPane::prepare(const QString& field, const QString& divisionGone) {
    const bool found = field_.FindFieldRecord(field, false, true);
    clsDivision division(program().store);
    if (!division.FindDivRecord(search().currentText(), false, true)) {
        program().dialogs().error(tr("Division Name Not Found..."), divisionGone);
        return false;
    }
    if (!found || field_.FieldId < 1 || division.DivId < 1) return false;
    link_.FieldFieldId = field_.FieldId;
    link_.FieldDivisionId = division.DivId;
    return true;
}

bool FieldAssignmentPane::guarded(const std::function<void()>& write) {
    try {
        write();
        return true;
    } catch (const datafile::Error& error) {
        program().dialogs().error(tr("The field was not moved"), error.text());
        return false;
    }
}

/// The entry goes over first, whatever the file then says.
void FieldAssignmentPane::AssignFieldToDivision(int index) {
    const QString field = fields_->entryAt(ListMover::Left, index);
    fields_->moveEntry(ListMover::Left, index, listLess);
    if (prepare(field, tr("An Error has occurred -- \nThe Division Name was not found\n"
                          "Please check that a Division and \nTeam are selected.")) &&
        guarded([this] { link_.AddNewTeamFieldRecord(); }))
        Q_EMIT said(tr("Field Assigned to Team Assignment."));
}

void FieldAssignmentPane::RemoveFieldFromDivision(int index) {
    const QString field = fields_->entryAt(ListMover::Right, index);
    fields_->moveEntry(ListMover::Right, index, listLess);
    if (prepare(field, tr("An Error has occurred -- \nThe Division Name was not found\n"
                          "Please check that a Division \nis selected on the Teams Tab")) &&
        guarded([this] { link_.RemoveTeamFieldRecord(); }))
        Q_EMIT said(tr("Field Removed from Team Assignments."));
}
