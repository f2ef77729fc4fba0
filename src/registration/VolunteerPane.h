#pragma once

#include "registration/PersonPane.h"
#include "registration/clsVolunteer.h"

class VolunteerLinks;

/// Where volunteers are entered by themselves, with the positions they fill, the certifications they hold and the
/// players they belong to.
class VolunteerPane final : public PersonPane {
    Q_OBJECT

public:
    explicit VolunteerPane(Program& program);

private:
    Form* buildForm();
    void addPersonalTab(FormBuilder& builder);
    void addLinksTab(FormBuilder& builder);
    void leaveSubTab();

    bool find(const QString& entry) override;
    QString name() const override { return key().text(); }
    QString unsavedName() const override { return volunteer_.VolLastName(); }
    QString deletedName() const override;
    std::vector<Finding> check() const override;
    bool write() override;
    void makeNew() override;
    QString firstField() const override { return QStringLiteral("txtVolLastName"); }
    QString deleteQuestion() const override;
    void shown() override;

    std::optional<Twin> twin() const override;
    bool standOnTwin() override { return volunteer_.FindVolRecord(name(), false, false); }
    int id() const override { return volunteer_.VolId; }
    EquipmentHolder holder() const override { return {.volId = volunteer_.VolId}; }
    bool findRating(clsAbilityRating& ratings) const override;
    bool isActive() const override { return volunteer_.VolActive; }
    QString firstName() const override { return volunteer_.VolFirstName; }

    VolunteerKey key() const {
        return {volunteer_.VolLastName(), volunteer_.VolFirstName(), volunteer_.VolHomePhone()};
    }
    void renameParents(const VolunteerKey& before);

    clsVolunteer volunteer_;
    VolunteerKey loadedKey_;
    VolunteerLinks* links_ = nullptr;
};
