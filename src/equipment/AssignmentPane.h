#pragma once

#include "equipment/clsEquip.h"
#include "equipment/clsEquipmentAssignment.h"
#include "league/clsDivision.h"
#include "league/clsTeam.h"
#include "registration/clsRegistration.h"
#include "registration/clsVolunteer.h"
#include "shell/ScreenPane.h"

#include <QHash>

class Form;
class FormBuilder;
class Grid;

/// Who holds what. A holder and an item together bring up what the holder has of it; a grid shows all that the holder
/// has, and a row of it brings its item back into the fields, one too that is all out and no longer offered.
class AssignmentPane final : public ScreenPane {
    Q_OBJECT

public:
    explicit AssignmentPane(Program& program);

    bool canDelete() const override { return !isEditing() && isAssigned_; }
    bool save() override;
    void remove() override;
    void cancel() override;
    void refresh() override;
    bool offerToSave(const QString& question = {}, const QString& title = {}) override;
    bool offerToSaveBeforeClosing() override { return offerToSave(); }
    void catchUp() override;
    void focusSearch() override;

private:
    enum AssignTo { ToDivision, ToTeam, ToPlayer, ToVolunteer };
    /// The fields.
    struct Entry {
        int assignTo = ToDivision;
        QString division{};
        QString team{};
        QString player{};
        QString volunteer{};
        QString jerseyNumber{};
        QString item{};
        QString given = QStringLiteral("0");
        QDate givenOn{};
        QString returned = QStringLiteral("0");
        QDate returnedOn{};
    };
    struct Problem {
        const char* field;
        QString text;
    };

    Form* makeForm();
    void addHolder(FormBuilder& builder);
    void addItem(FormBuilder& builder);
    Grid* makeGrid();
    datafile::Database database() const;
    void fill(const char* list, const QString& query);
    void readLists();
    void LoadTeamList();
    void LoadPlayerList();
    void LoadAvailableEquipmentList();
    void LoadAssignedItems();
    void enableLists();

    void noteEdit(const QString& field);
    /// The four keys of whom the fields name; nothing where they name nobody.
    std::optional<EquipmentHolder> holderOfFields();
    void showAssignment();
    void ShowEquipmentAvailable();
    void blankQuantities();
    void showPicked(int row);
    std::vector<Problem> problems();
    void addHolderProblems(std::vector<Problem>& problems);
    bool ValidateAssignment();
    void write();
    void setEditing(bool editing) override;

    Entry entry_;
    std::optional<EquipmentHolder> holder_;
    int itemId_ = 0;
    bool isAssigned_ = false;  ///< the holder has of the item
    clsEquipmentAssignment::Available available_;
    QHash<QString, int> offered_;  ///< ids of the items in the list, by their entries
    clsDivision divisions_;
    clsTeam teams_;
    clsRegistration players_;
    clsVolunteer volunteers_;
    clsEquip items_;
    clsEquipmentAssignment assignment_;
    Form* form_;
    Grid* grid_;
    qint64 seenChanges_ = -1;
};
