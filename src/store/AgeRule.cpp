#include "store/AgeRule.h"

#include "platform/text/Numbers.h"

int CalculateAge(const QString& birthDate, const QString& cutOffMonth, const QString& cutOffDay,
                 const QString& seasonYear) {
    const auto slashAt = [&birthDate](qsizetype at) { return at < birthDate.size() && birthDate[at] == u'/'; };
    const qsizetype monthLength = slashAt(1) ? 1 : 2;
    const qsizetype dayAt = monthLength + 1;
    const qsizetype dayLength = slashAt(dayAt + 1) ? 1 : 2;
    const int month = birthDate.left(monthLength).toInt();
    const int day = birthDate.mid(dayAt, dayLength).toInt();
    const int twoDigits = birthDate.right(2).toInt();
    const int year = twoDigits + (twoDigits >= 30 ? 1900 : 2000);

    const int monthLimit = toWhole(cutOffMonth).value_or(1);
    const int dayLimit = toWhole(cutOffDay).value_or(1);
    int age = toWhole(seasonYear).value_or(0) - year;
    if (month > monthLimit || (month == monthLimit && day > dayLimit)) --age;
    return age < 0 ? 0 : age;
}

CutOff cutOffByField(const CutOff& division, const CutOff& defaults) {
    const auto first = [](const QString& one, const QString& other) {
        return isNumeric(one) ? one : isNumeric(other) ? other : QStringLiteral("1");
    };
    return {first(division.month, defaults.month), first(division.day, defaults.day)};
}

CutOff cutOffByPair(const CutOff& division, const CutOff& defaults) {
    for (const CutOff* each : {&division, &defaults})
        if (isNumeric(each->month)) return {each->month, isNumeric(each->day) ? each->day : QStringLiteral("1")};
    return {QStringLiteral("1"), QStringLiteral("1")};
}
