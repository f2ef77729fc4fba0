#include "shell/MonthDay.h"

#include "platform/text/Numbers.h"

#include <QDate>
#include <QLocale>

QStringList monthNames() {
    QStringList names;
    for (int month = 1; month <= 12; ++month) names << QLocale::c().standaloneMonthName(month);
    return names;
}

QStringList daysOfMonth(const QString& month) {
    constexpr int anyCommonYear = 2001;
    const int number = toWhole(month).value_or(1);
    const int length = number >= 1 && number <= 12 ? QDate(anyCommonYear, number, 1).daysInMonth() : 31;
    QStringList days;
    for (int day = 1; day <= length; ++day) days << QString::number(day);
    return days;
}

Binding monthBinding(Text& month) {
    return {[&month] { return monthNames().value(toWhole(month()).value_or(1) - 1); },
            [&month](const QString& name) {
                const auto index = monthNames().indexOf(name);
                month = index < 0 ? QString() : QString::number(index + 1);
            }};
}

Binding dayBinding(Text& day, const Text& month) {
    return {[&day, &month] {
                const QString number = QString::number(toWhole(day()).value_or(1));
                return daysOfMonth(month).contains(number) ? number : QString();
            },
            [&day](const QString& number) { day = number; }};
}
