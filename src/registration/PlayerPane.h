#pragma once

#include <array>

#include "league/clsDivision.h"
#include "registration/PersonPane.h"
#include "registration/clsRegistration.h"
#include "registration/clsVolunteer.h"

class FormBuilder;
struct Money;

/// Where a registrar types one child at a time.
class PlayerPane final : public PersonPane {
    Q_OBJECT

public:
    explicit PlayerPane(Program& program);

    /// As New, keeping what brothers and sisters share.
    void addSibling();

private:
    // The form (PlayerForm.cpp).
    Form* buildForm();
    void addPersonalFrame(FormBuilder& builder);
    void addLeagueFrame(FormBuilder& builder);
    // Its further tabs (PlayerFormTabs.cpp).
    void addParentsTab(FormBuilder& builder);
    void addSchoolTab(FormBuilder& builder);
    void addMedicalTab(FormBuilder& builder);
    void addOutsideFrame(FormBuilder& builder);
    /// The live entries of a lookup table, in order.
    QStringList liveNames(const char* table, const char* column);

    void readChoices() override;
    bool find(const QString& entry) override;
    QString name() const override { return key().text(); }
    QString unsavedName() const override { return player_.PlayerLastName(); }
    std::vector<Finding> check() const override;
    bool write() override;
    void makeNew() override;
    QString firstField() const override { return QStringLiteral("txtPlayerLastName"); }
    QString deleteQuestion() const override;
    void shown() override;

    std::optional<Twin> twin() const override;
    bool standOnTwin() override { return player_.FindPlayerRecord(name(), false, false); }
    int id() const override { return player_.PlayerId; }
    EquipmentHolder holder() const override { return {.playerId = player_.PlayerId}; }
    bool findRating(clsAbilityRating& ratings) const override;
    bool isActive() const override { return player_.PlayerActive; }
    QString firstName() const override { return player_.PlayerFirstName; }

    PlayerKey key() const { return {player_.PlayerLastName(), player_.PlayerFirstName(), player_.PlayerBirthDate()}; }
    void settleSchool();
    void setDefaults();
    void chooseDivision(const QString& name);
    void showAge();
    void showBalance();
    void showBalance(const Money& balance, bool due);
    void showUsualChoices();
    QString usualFundRaiserFee();

    // The parents as volunteers (PlayerParents.cpp).
    struct Parent;
    std::array<Parent, 2> parents() const;
    void remindOfParents();
    bool isVolunteer(const Parent& parent);
    void showVolunteers();
    void reconcileParents();
    void reactivate();
    void linkVolunteer(const Parent& parent);
    void takeNameAndPhone(const Parent& parent);
    bool makeVolunteer(const Parent& parent);
    void followLink(const Parent& parent);
    void updateVolunteer(const Parent& parent);
    void replaceVolunteer(const Parent& parent);
    void endVolunteering();

    clsRegistration player_;
    clsDivision division_;
    clsVolunteer volunteer_;
    bool dadVolunteers_ = false;  ///< the choices on screen, which the row's own do not decide
    bool momVolunteers_ = false;
    bool justSaved_ = false;  ///< they stay as the user left them until the next record is read
    QString divisionName_;
    QString feeOnTheWay_;  ///< taken from a division while typing passes over it; the next one replaces it
    QString teamName_;
};
