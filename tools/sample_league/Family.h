#pragma once

#include "sample_league/League.h"

namespace sample {

struct Parent {
    QString lastName, firstName;
    QString phoneArea, phone, workArea, workPhone, mobileArea, mobilePhone;
    QString email;
    QString relationship;  ///< "Father", "Mother" or "Legal Guardian"
    bool isWoman = false;
    bool volunteers = false;
};

/// What brothers and sisters share.
struct Family {
    QString lastName;
    City city;
    QString address1, address2, postalCode, country, phone;
    QList<Parent> parents;  ///< one or two
    QString doctor, doctorPhone, dentist, dentistPhone, hospital, insurance, policy;
    QString emergencyName, emergencyRelationship, emergencyPhone;
    bool isLong = false;  ///< names and texts as long as their columns are wide
};

/// `number` counts families from 0 and gives each its own home phone.
Family makeFamily(const Names& names, Chance& chance, int number);

/// "first.last@..." in plain letters, no longer than `width`.
QString emailOf(const QString& first, const QString& last, Chance& chance, int width);

}  // namespace sample
