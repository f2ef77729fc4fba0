#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace sample {

struct City {
    QString name;
    QString state;
    QString zip;
    QString area;  ///< of its phone numbers
};

/// The names that the league is made of.
struct Names {
    QStringList girls, boys, women, men, lastNames;
    QStringList streets, schools, teams, sponsors, colors, fields, occupations;
    QList<City> cities;
};

/// From the resource, which the program has initialised.
Names readNames();

class Chance;
QString personName(Chance& chance, const QStringList& firstNames, const QStringList& lastNames);
QString streetAddress(Chance& chance, const Names& names);

}  // namespace sample
