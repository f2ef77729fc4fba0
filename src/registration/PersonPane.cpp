#include "registration/PersonPane.h"

#include <QPushButton>

#include "platform/text/KeyFilters.h"
#include "platform/widgets/FormBuilder.h"
#include "ratings/clsAbilityRating.h"
#include "shell/Bound.h"
#include "shell/Program.h"
#include "shell/Screens.h"

bool isBlank(const Text& text) { return text().trimmed().isEmpty() || text().trimmed() == u"-"; }

PersonPane::PersonPane(Program& program, PaneText text, PersonText person)
    : RecordPane(program, std::move(text)), person_(std::move(person)) {}

void PersonPane::refresh() {
    RecordPane::refresh();
    showCustomLabels();
}

void PersonPane::shown() {
    if (!record().isNew()) loaded_ = entry();
}

datafile::Database PersonPane::database() const { return program().store.database(); }

PersonPane::Settled PersonPane::settleIdentity() {
    const bool sameAsLoaded = entry().compare(loaded_, Qt::CaseInsensitive) == 0;
    if (record().isNew()) return settleNew(sameAsLoaded);
    return sameAsLoaded ? Settled::Save : settleRename();
}

PersonPane::Settled PersonPane::settleRename() {
    const std::optional<Twin> other = twin();
    if (!other) {
        const BoxAnswer answer = program().dialogs().box(BoxKind::Question, BoxButtons::YesNoCancel,
                                                         tr("Add New Record?"), withNames(person_.addQuestion));
        if (answer == BoxAnswer::No) return Settled::Rename;
        if (answer != BoxAnswer::Yes) return Settled::Stop;
        record().setNew(true);
        return Settled::Save;
    }
    if (!other->deleted) {
        program().dialogs().information(person_.takenTitle, withNames(person_.takenText));
        form().focusField(firstField());
        return Settled::Stop;
    }
    revive(other->id);
    if (goOverTwin()) return Settled::Save;
    program().dialogs().error(tr("Rename Error"), person_.renameError);
    return Settled::Stop;
}

PersonPane::Settled PersonPane::settleNew(bool sameAsLoaded) {
    const std::optional<Twin> other = twin();
    if (!other || other->deleted) return Settled::Save;  // which brings a deleted one back
    const bool overwrite =
        sameAsLoaded ? program().dialogs().ask(tr("Overwrite Current Record?"), withNames(person_.overwriteQuestion))
                     : program().dialogs().ask(tr("Duplicate Record Found"), withNames(person_.duplicateQuestion));
    if (overwrite && goOverTwin()) return Settled::Save;
    form().focusField(firstField());
    return Settled::Stop;
}

/// The save writes all that is in the form to the twin's row.
bool PersonPane::goOverTwin() {
    if (!standOnTwin()) return false;
    record().assignAll();
    record().setNew(false);
    return true;
}

/// The person takes the place of a deleted one of the new name: the deleted row comes back, the current one is
/// retired, and what hung on it moves over.
void PersonPane::revive(int revivedId) {
    const datafile::Database file = database();
    const QString stamps = freshStamps(program().clock());
    const auto update = [&](const char* table, const QString& what, int id) {
        file.execute(QStringLiteral("UPDATE [%1] SET %2, %3 WHERE [%4] = %5")
                         .arg(QLatin1String(table), what, stamps, QLatin1String(person_.idColumn))
                         .arg(id));
    };
    const auto flags = [this](bool deleted, bool active) {
        const auto word = [](bool flag) { return flag ? QStringLiteral("True") : QStringLiteral("False"); };
        return QStringLiteral("[DeletedFlag] = %1, [%2] = %3")
            .arg(word(deleted), QLatin1String(person_.activeColumn), word(active));
    };
    datafile::Transaction transaction(file);
    update(person_.table, flags(false, isActive()), revivedId);
    update(person_.table, flags(true, false), id());
    for (const char* table : person_.followers)
        update(table, QStringLiteral("[%1] = %2").arg(QLatin1String(person_.idColumn)).arg(revivedId), id());
    transaction.commit();
}

bool PersonPane::mayDelete() {
    clsEquipmentAssignment assignments(program().store);
    if (!assignments.FindEquipmentAssignment(holder(), false, false)) return true;
    program().dialogs().error(tr("Delete Error..."), person_.equipmentError);
    cancel();
    return false;
}

void PersonPane::erase() {
    datafile::Transaction transaction(database());
    clsAbilityRating ratings(program().store);
    if (findRating(ratings)) ratings.DeleteARRecord();
    record().deleteRecord();
    transaction.commit();
}

void PersonPane::addCustomTab(FormBuilder& builder, const std::vector<Text*>& fields) {
    builder.tab(tr("Custom Fields")).column(3).frame(tr("Custom Fields"), 1);
    int number = 0;
    for (Text* field : fields) {
        ++number;
        builder.text(QStringLiteral("txt%1CustomField%2").arg(person_.prefix).arg(number),
                     tr("Custom Field Label %1").arg(number), textBinding(*field), FilterTextFull);
    }
    auto* define = new QPushButton(tr("Define Custom Field La&bels"));
    define->setObjectName(QStringLiteral("cmdDefine%1CustomFieldLabels").arg(person_.prefix));
    define->setAutoDefault(false);
    define->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(define, &QPushButton::clicked, this, [this] {
        program().screens.show(QStringLiteral("frmOptions.CustomFields"));
        showCustomLabels();
    });
    builder.custom(define);
}

/// Custom fields stand under the label that the league gave them, or the default one.
void PersonPane::showCustomLabels() {
    datafile::Recordset defaults = database().openRecordset(QStringLiteral("tblDefaults"));
    for (int number = 1; number <= 6; ++number) {
        const QString label = defaults.eof() ? QString() : defaults.text(person_.labelColumn + QString::number(number));
        form().setCaption(QStringLiteral("txt%1CustomField%2").arg(person_.prefix).arg(number),
                          label.isEmpty() ? tr("Custom Field Label %1").arg(number) : label);
    }
}
