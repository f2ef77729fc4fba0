#pragma once

#include "league/clsDivision.h"
#include "league/clsFieldInfo.h"
#include "league/clsTeamField.h"
#include "shell/RecordPane.h"

class ListMover;

/// Which fields a division plays on. Every move is written at once.
class FieldAssignmentPane final : public RecordPane {
    Q_OBJECT

public:
    explicit FieldAssignmentPane(Program& program);

private:
    Form* buildForm();
    bool find(const QString& entry) override { return division_.FindDivRecord(entry, false, true); }
    QString name() const override { return division_.DivName; }
    std::vector<Finding> check() const override { return {}; }
    QString firstField() const override { return {}; }
    void shown() override { LoadTeamFieldLists(); }

    void LoadTeamFieldLists();
    void AssignFieldToDivision(int index);
    void RemoveFieldFromDivision(int index);
    /// Takes field and division of a move into the link's properties. False when there is nothing to write.
    bool prepare(const QString& field, const QString& divisionGone);
    bool guarded(const std::function<void()>& write);

    clsDivision division_;
    clsFieldInfo field_;
    clsTeamField link_;
    ListMover* fields_ = nullptr;
};
