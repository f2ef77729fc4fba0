#pragma once

#include "store/RecordClass.h"

/// The staff of the teams: rows of tblTeamVolunteer, at most one live one for a team and position ("HeadCoach",
/// "FirstAssistant", "SecondAssistant", "TeamParent", "TeamParent2"). The properties show the volunteer who was looked
/// up last; the volunteer is never written from here.
class clsTeamVolunteer final : RecordClass {
public:
    explicit clsTeamVolunteer(StoreContext& context);

    Key VolId{this, "VolId"};
    Text VolLastName{this, "VolLastName"};
    Text VolFirstName{this, "VolFirstName"};
    Text VolAddress1{this, "VolAddress1"};
    Text VolAddress2{this, "VolAddress2"};
    Text VolCity{this, "VolCity"};
    Text VolStateId{this, "VolStateId"};
    Text VolZipCode{this, "VolZipCode"};
    Text VolZipCode4{this, "VolZipCode4"};
    Text VolEmailAddress{this, "VolEmailAddress"};
    Text VolHomePhoneArea{this, "VolHomePhoneArea"};
    Text VolHomePhone{this, "VolHomePhone"};
    Text VolWorkPhoneArea{this, "VolWorkPhoneArea"};
    Text VolWorkPhone{this, "VolWorkPhone"};
    Text VolFaxPhoneArea{this, "VolFaxPhoneArea"};
    Text VolFaxPhone{this, "VolFaxPhone"};
    Text VolGender{this, "VolGender"};
    Flag VolActive{this, "VolActive"};
    Day VolBirthDate{this, "VolBirthDate"};
    Day VolRegistrationDate{this, "VolRegistrationDate"};
    Text VolComments{this, "VolComments"};
    /// Worn in the position that was looked up last; it stands in the link, not with the volunteer.
    QString VolShirtSize;

    /// Loads the volunteer in the position. False, with blank properties, when nobody holds it.
    bool GetTeamVolunteerInfo(int divisionId, int teamId, const QString& position);
    /// As before; where nobody holds it now, who held it before.
    bool GetTeamVolunteerInfo2(int divisionId, int teamId, const QString& position);
    /// Loads the volunteer by a list entry's "Last, First", with or without a phone behind it.
    bool GetVolunteerRecord(const QString& listText);
    /// Puts the volunteer in the position, in the place of whoever held it.
    void SaveVolunteerInfo(int volunteerId, int divisionId, int teamId, const QString& position,
                           const QString& shirtSize);
    /// Leaves the position open; nothing when it is, or for a division or team of no key.
    void DeleteVolunteerInfo(int divisionId, int teamId, const QString& position);

    /// Whether the volunteer holds or held the position.
    bool FindVolMergeRecord(int volunteerId, int divisionId, int teamId, const QString& position);
    /// Writes one row as another file holds it, stamped with the present time.
    void SaveVolunteerMergeInfo(int volunteerId, int divisionId, int teamId, const QString& position,
                                const QString& shirtSize, bool isDeleted);

private:
    bool loadHolder(bool found);

    datafile::Recordset links_;
};
