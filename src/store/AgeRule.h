#pragma once

#include <QString>

/// The league age: what a player reaches by the cut-off date in the season year, whatever today is.
/// `birthDate` is short date text, "M/D/YYYY"; only its last two digits say the year (30 and up is 19yy, below 20yy),
/// so a child of 1929 counts as one of 2029. Never below 0.
int CalculateAge(const QString& birthDate, const QString& cutOffMonth, const QString& cutOffDay,
                 const QString& seasonYear);

/// Month and day of a cut-off date, as texts that are numbers.
struct CutOff {
    QString month;
    QString day;
};

/// Month and day each by itself: the division's when numeric, else the default's when numeric, else "1". For screens.
CutOff cutOffByField(const CutOff& division, const CutOff& defaults);
/// Month and day together: the division's when its month is numeric, else the default's, else 1/1; a day that is
/// not numeric is "1". For the record class.
CutOff cutOffByPair(const CutOff& division, const CutOff& defaults);
