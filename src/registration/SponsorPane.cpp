#include "registration/SponsorPane.h"

#include <QMenu>
#include <QPushButton>

#include "platform/text/Money.h"
#include "platform/text/Numbers.h"
#include "platform/widgets/Form.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/WaitCursor.h"
#include "shell/Program.h"

QString fullPledgeYear(const QString& typed, int thisYear) {
    if (typed.trimmed().isEmpty()) return QString::number(thisYear);
    bool isNumber = false;
    const int year = typed.trimmed().toInt(&isNumber);
    if (!isNumber || year >= 1900) return typed;
    const QString full = (year < 31 ? u"20" : u"19") + typed.trimmed();
    return full.size() <= 4 ? full : typed;
}

SponsorPane::SponsorPane(Program& program)
    : RecordPane(program, {.tag = "Sponsor",
                           .caption = tr("Sponsor Registrations"),
                           .searchName = "cboSponsorSearchList",
                           .searchCaption = tr("C&urrent Sponsor"),
                           .moveName = "cmdSponsorMove",
                           .listQuery = "SELECT *, ([SponsorName]) as Name FROM tblSponsor "
                                        "WHERE [DeletedFlag] = False ORDER BY [SponsorName]",
                           // The title is that of the volunteers; both tabs have always had it.
                           .checkTitle = tr("Validation Error - Volunteer Registration"),
                           .missingText = tr("Error!  Sponsor Name not found in Search List"),
                           .leaveQuestion = tr("Save the current Sponsor record?"),
                           .menu = tr("Sponsor Registration"),
                           .noun = tr("Sponsor")}),
      sponsor_(program.store) {
    start(sponsor_, buildForm());
    auto* addButton = form().findChild<QPushButton*>(QStringLiteral("cmdAddNewPledge"));
    connect(addButton, &QPushButton::clicked, this, &SponsorPane::addPledge);
    connect(this, &RecordPane::stateChanged, addButton, [this, addButton] { addButton->setEnabled(canDelete()); });
    addButton->setEnabled(canDelete());
    connect(&form(), &Form::left, this, [this](const QString& field) {
        if (field.endsWith(u"PledgeYear")) completeYear();
    });
    connect(&form(), &Form::tabPicked, this, [this] {
        offerToSave(tr("Save the current Sponsor record?"), tr("Save Volunteer Record?"));  // a title shared as above
    });
}

/// A name can also be that of deleted rows.
bool SponsorPane::find(const QString& entry) { return sponsor_.find(live(matches("SponsorName", entry)), true); }

std::vector<Finding> SponsorPane::check() const {
    const struct {
        const Text& value;
        const char* field;
        QString text;
    } rules[] = {{sponsor_.SponsorName, "txtSponsorName", tr("The Sponsor Name is a required entry.")},
                 {sponsor_.SponsorPledgeAmount, "mskedSponsorPledgeAmount",
                  tr("The Sponsor Pledge Amount is a required entry.")},
                 {sponsor_.SponsorPledgeYear, "mskedSponsorPledgeYear", tr("The Pledge Year is a required entry.")}};
    std::vector<Finding> findings;
    for (const auto& rule : rules)
        if (rule.value().trimmed().isEmpty()) findings.push_back({QLatin1String(rule.field), rule.text});
    return findings.empty() ? takenName() : findings;
}

bool SponsorPane::write() {
    completeYear();
    if (!isNumeric(sponsor_.SponsorPledgeYear()))
        sponsor_.SponsorPledgeYear = QString::number(program().clock().today().year());
    return RecordPane::write();
}

QString SponsorPane::deleteQuestion() const {
    return tr("Are you sure you want to delete Sponsor \"%1\"?").arg(sponsor_.SponsorName());
}

/// The year as the user means it; a look at a sponsor changes nothing.
void SponsorPane::completeYear() {
    if (!isEditing()) return;
    const QString year = fullPledgeYear(sponsor_.SponsorPledgeYear, program().clock().today().year());
    if (year == sponsor_.SponsorPledgeYear()) return;
    sponsor_.SponsorPledgeYear = year;
    for (const char* field : {"mskedSponsorPledgeYear", "mskedCurrentPledgeYear"})
        form().display(QLatin1String(field), year);
}

void SponsorPane::addPledge() {
    const WaitCursor wait;
    if (!canDelete() || !archivePledge()) return;
    for (Text* text : {&sponsor_.SponsorPledgeYear, &sponsor_.SponsorPledgeAmount, &sponsor_.SponsorPaidAmount})
        *text = QString();
    sponsor_.SetIsPledgeNew(true);
    form().refresh();
    LoadPreviousPledgeList();
    beginEditing();
    form().focusField(QStringLiteral("mskedCurrentPledgeYear"));
}

/// False when the user did not want to.
bool SponsorPane::archivePledge() {
    const int id = sponsor_.SponsorId;
    const QString year = sponsor_.SponsorPledgeYear;
    const QString amount = sponsor_.SponsorPledgeAmount;
    const QString paid = sponsor_.SponsorPaidAmount;
    bool found = false;
    sponsor_.FindPreviousPledge(id, year, found);
    BoxAnswer answer = BoxAnswer::No;
    if (found)
        answer = program().dialogs().box(
            BoxKind::Question, BoxButtons::YesNoCancel, tr("Previous Pledge Found"),
            tr("This will archive the current pledge to the\nPrevious Pledges display, then prompt for a\n"
               "new Pledge.\n\nA previous pledge has been found for the\ncurrent year being archived.\n\n"
               "Would you like to replace the Archived Record?"));
    else if (!program().dialogs().ask(tr("New Pledge Confirmation"),
                                      tr("This will archive the current pledge\nto the Previous Pledges display and\n"
                                         "prompt for a New Pledge.\n\nWould you like to continue?")))
        answer = BoxAnswer::Cancel;
    if (answer == BoxAnswer::Cancel) {
        cancel();
        return false;
    }
    if (answer == BoxAnswer::Yes) {
        sponsor_.UpdatePreviousPledgeRecord(id, year, amount, paid);
        Q_EMIT said(tr("Previous Pledge Updated."));
    } else {
        sponsor_.NewSponsorPledgeRecord(id, year, amount, paid);
    }
    return true;
}

/// Without a pledge the grid shows one blank row.
void SponsorPane::LoadPreviousPledgeList() {
    std::vector<GridRow> pledges;
    try {
        const datafile::Database database = program().store.database();
        datafile::Recordset rows = database.openRecordset(
            "SELECT [PreviousPledgeYear], [PreviousPledgeAmount], [PreviousPaidAmount] FROM tblSponsorPreviousPledge "
            "WHERE [SponsorId] = " +
            QString::number(sponsor_.IsSponsorNew() ? 0 : sponsor_.SponsorId()) +
            "  AND [DeletedFlag] = False  ORDER BY [PreviousPledgeYear] ASC");
        const auto amount = [&rows](const char* column) {
            const QString text = rows.text(QLatin1String(column));
            const auto money = Money::parse(text);
            return money ? money->text() : text;
        };
        for (; !rows.eof(); rows.moveNext())
            pledges.push_back(
                {{rows.text("PreviousPledgeYear"), amount("PreviousPledgeAmount"), amount("PreviousPaidAmount")}});
    } catch (const datafile::Error& error) {
        program().dialogs().error(tr("Previous Pledges"), u"LoadPreviousPledgeList - " + error.text());
    }
    if (pledges.empty()) pledges.emplace_back();
    pledges_->setRows(std::move(pledges));
}

void SponsorPane::offerPledgeMenu(const QPoint& global) {
    if (pledges_->rows().front().cells.isEmpty()) return;
    auto* menu = new QMenu(pledges_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("mnuPledge"));
    menu->addAction(tr("&Delete"), this, &SponsorPane::deletePledges);
    menu->popup(global);
}

/// Those selected in the grid. A pledge is known by its year alone: of two of one year the first one goes.
void SponsorPane::deletePledges() {
    const WaitCursor wait;
    const QModelIndexList selected = pledges_->selectionModel()->selectedRows();
    if (selected.isEmpty()) return;
    const bool go = program().dialogs().ask(
        tr("Delete Pledge Records"),
        tr("You have selected %1 row(s) to delete.\nDo you want to delete the Previous Pledge record(s)?")
            .arg(selected.size()));
    if (!go) return;
    const datafile::Database database = program().store.database();
    datafile::Transaction transaction(database);
    for (const QModelIndex& row : selected)
        sponsor_.DeletePreviousPledgeRecord(sponsor_.SponsorId, row.data().toString());
    transaction.commit();
    LoadPreviousPledgeList();
}
