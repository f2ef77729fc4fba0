#include "platform/widgets/Form.h"
#include "registration/PlayerPane.h"
#include "registration/frmGuardianReminder.h"
#include "registration/frmVolInfo.h"
#include "shell/Program.h"

// A parent who volunteers is a row of the volunteers, linked with the child in the role "Dad" or "Mom". The names and
// phone with the child are copies; saving the child keeps both in step.

struct PlayerPane::Parent {
    QString role;
    bool volunteers;
    const Text& lastName;
    const Text& firstName;
    const Text& phoneArea;
    const Text& phone;
    const Text& workArea;
    const Text& work;
    const Text& mobileArea;
    const Text& mobile;
    const Text& email;
    const Text& relationship;
};

std::array<PlayerPane::Parent, 2> PlayerPane::parents() const {
    const clsRegistration& p = player_;
    return {
        Parent{QStringLiteral("Dad"), dadVolunteers_, p.PlayerDadLastName, p.PlayerDadFirstName, p.PlayerDadPhoneArea,
               p.PlayerDadPhone, p.PlayerDadWorkPhoneArea, p.PlayerDadWorkPhone, p.PlayerDadMobilePhoneArea,
               p.PlayerDadMobilePhone, p.PlayerDadEmail, p.PlayerGuardian1Relationship},
        Parent{QStringLiteral("Mom"), momVolunteers_, p.PlayerMomLastName, p.PlayerMomFirstName, p.PlayerMomPhoneArea,
               p.PlayerMomPhone, p.PlayerMomWorkPhoneArea, p.PlayerMomWorkPhone, p.PlayerMomMobilePhoneArea,
               p.PlayerMomMobilePhone, p.PlayerMomEmail, p.PlayerGuardian2Relationship}};
}

void PlayerPane::remindOfParents() {
    for (const Parent& parent : parents())
        if (parent.lastName.isFilled() && parent.firstName.isFilled()) return;
    if (!frmGuardianReminder::isWanted(program().settings)) return;
    form().focusField(QStringLiteral("cboPlayerGuardian1Relationship"));
    frmGuardianReminder reminder(program().settings);
    program().dialogs().showModal(reminder);
}

/// Yes only where an active volunteer of that name and phone is linked with this child.
bool PlayerPane::isVolunteer(const Parent& parent) {
    if (!parent.lastName.isFilled() || !parent.firstName.isFilled()) return false;
    bool found = false;
    volunteer_.FindVolRecord2(parent.lastName, parent.firstName, parent.phone, true, found);
    if (found && volunteer_.VolActive && !volunteer_.VolDeletedFlag)
        volunteer_.FindRegVolRecord(player_.PlayerId, volunteer_.VolId, found);
    else
        found = false;
    return found;
}

void PlayerPane::showVolunteers() {
    dadVolunteers_ = momVolunteers_ = false;
    if (player_.IsPlayerNew()) return;
    const auto both = parents();
    dadVolunteers_ = isVolunteer(both[0]);
    momVolunteers_ = isVolunteer(both[1]);
}

void PlayerPane::reconcileParents() {
    for (const Parent& parent : parents()) {
        bool linked = false;
        volunteer_.FindVolIdInRegVol(player_.PlayerId, parent.role, linked);
        if (!parent.volunteers) {
            if (linked) endVolunteering();
        } else if (parent.lastName.isFilled() && parent.firstName.isFilled()) {
            if (linked)
                followLink(parent);
            else
                linkVolunteer(parent);
        }
    }
}

/// Makes the volunteer at hand active again, where that is needed.
void PlayerPane::reactivate() {
    if (volunteer_.VolActive && !volunteer_.VolDeletedFlag) return;
    volunteer_.VolActive = true;
    volunteer_.VolDeletedFlag = false;
    volunteer_.SaveVolRecord();
}

void PlayerPane::linkVolunteer(const Parent& parent) {
    bool found = false;
    volunteer_.FindVolRecord2(parent.lastName, parent.firstName, parent.phone, true, found);
    if (found) reactivate();
    if (found || makeVolunteer(parent)) volunteer_.AddRegVolRecord(player_.PlayerId, volunteer_.VolId, parent.role);
}

void PlayerPane::takeNameAndPhone(const Parent& parent) {
    volunteer_.VolLastName = parent.lastName;
    volunteer_.VolFirstName = parent.firstName;
    volunteer_.VolHomePhoneArea = parent.phoneArea;
    volunteer_.VolHomePhone = parent.phone;
    volunteer_.VolActive = true;
}

/// Asks for what is not known of the parent and stores the new volunteer; false when the user did not want to.
bool PlayerPane::makeVolunteer(const Parent& parent) {
    clsVolunteer& v = volunteer_;
    v.NewVolRecord();
    takeNameAndPhone(parent);
    v.VolWorkPhoneArea = parent.workArea;
    v.VolWorkPhone = parent.work;
    v.VolFaxPhoneArea = parent.mobileArea;
    v.VolFaxPhone = parent.mobile;
    v.VolEmailAddress = parent.email;
    v.VolGender = parent.relationship() == u"Father" ? "Male" : parent.relationship() == u"Mother" ? "Female" : "";
    v.VolAddress1 = player_.PlayerAddress1;
    v.VolAddress2 = player_.PlayerAddress2;
    v.VolCity = player_.PlayerCity;
    v.VolStateId = player_.PlayerStateId;
    v.VolPostalCode = player_.PlayerPostalCode;
    v.VolCountryCode = player_.PlayerCountryCode;
    frmVolInfo form(program(), v);
    if (program().dialogs().showModal(form) != QDialog::Accepted) {
        v.UndoVolRecord();
        return false;
    }
    v.SaveVolRecord();
    return true;
}

/// A link whose volunteer was purged counts as none.
void PlayerPane::followLink(const Parent& parent) {
    if (!volunteer_.find(matches("VolId", volunteer_.RegVolVolId), true)) {
        volunteer_.DeleteRegVolRecord();
        return linkVolunteer(parent);
    }
    clsVolunteer& v = volunteer_;
    const bool sameName = v.VolLastName().compare(parent.lastName(), Qt::CaseInsensitive) == 0 &&
                          v.VolFirstName().compare(parent.firstName(), Qt::CaseInsensitive) == 0;
    if (sameName && v.VolHomePhone() == parent.phone()) return reactivate();
    if (sameName) return updateVolunteer(parent);
    const QString name = u'"' + v.VolFirstName() + u' ' + v.VolLastName() + u'"';
    const bool update = program().dialogs().ask(
        tr("Volunteer Record Found"),
        tr("A Volunteer Record was found with the name\n%1.\n\nWould you like to update this Volunteer Record\n"
           "(and any other Player Record(s) associated with %1) \nwith the new name?")
            .arg(name));
    if (update)
        updateVolunteer(parent);
    else
        replaceVolunteer(parent);
}

/// The volunteer, and every other child linked in this role, take name and phone over.
void PlayerPane::updateVolunteer(const Parent& parent) {
    const datafile::Database database = program().store.database();
    datafile::Transaction transaction(database);
    takeNameAndPhone(parent);
    volunteer_.VolDeletedFlag = false;
    volunteer_.SaveVolRecord();
    const QString who = QStringLiteral("Player") + parent.role;
    database.execute(
        QStringLiteral(
            "UPDATE tblRegistration SET [%1LastName] = %2, [%1FirstName] = %3, [%1PhoneArea] = %4, [%1Phone] = %5, "
            "[DateStamp] = %6, [TimeStamp] = %7 WHERE [PlayerId] IN (SELECT [PlayerId] FROM tblRegistrationVolunteer "
            "WHERE [VolId] = %8 AND [VolGender] = %9 AND [DeletedFlag] = False) AND [PlayerId] <> ")
            .arg(who, datafile::quoted(parent.lastName()), datafile::quoted(parent.firstName()),
                 datafile::quoted(parent.phoneArea()), datafile::quoted(parent.phone()),
                 datafile::quoted(program().clock().today()), QString::number(program().clock().secondsSinceMidnight()),
                 QString::number(volunteer_.VolId), datafile::quoted(parent.role)) +
        QString::number(player_.PlayerId));
    transaction.commit();
}

/// Another person stands in the parent's place: the one before stays with the other children, or retires with the last.
void PlayerPane::replaceVolunteer(const Parent& parent) {
    int links = 0;
    volunteer_.CountRegVolRecords(volunteer_.VolId, links);
    const bool last = links < 2;
    if (last)
        volunteer_.DeleteVolRecord();
    else
        volunteer_.DeleteRegVolRecord();
    if (!makeVolunteer(parent)) {
        if (last) volunteer_.DeleteRegVolRecord();  // else it would tie the child to one who retired
    } else if (last)
        volunteer_.UpdateRegVolRecord(volunteer_.VolId);
    else
        volunteer_.AddRegVolRecord(player_.PlayerId, volunteer_.VolId, parent.role);
}

void PlayerPane::endVolunteering() {
    const int id = volunteer_.RegVolVolId;
    const bool known = volunteer_.find(matches("VolId", id), true);
    int links = 0;
    volunteer_.CountRegVolRecords(id, links);
    const QString name = u'"' + volunteer_.VolFirstName() + u' ' + volunteer_.VolLastName() + u'"';
    const bool retire =
        known && links < 2 &&
        program().dialogs().ask(
            tr("Delete Volunteer Record?"),
            tr("A Volunteer record was found for %1\nand no other players are associated with\nthis volunteer.\n\n"
               "Would you like to delete this %1 Volunteer record?")
                .arg(name));
    volunteer_.DeleteRegVolRecord();
    if (retire) volunteer_.DeleteVolRecord();
    volunteer_.DeleteAllVolToPositionRecords(id, player_.PlayerId);
}
