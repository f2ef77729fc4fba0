#include "platform/text/Dates.h"

#include <gtest/gtest.h>

#include <QLocale>

#include "support/Printing.h"

namespace {

const char* const preferredFormats[] = {"MM/dd/yyyy", "MM/dd/yy",  "M/d/yy",    "M/d/yyyy",    "yy/MM/dd",
                                        "yyyy-MM-dd", "dd-MMM-yy", "dd MMM yy", "dd MMM yyyy", "m-d-yy"};

}

TEST(Dates, AreWrittenInEveryFormat) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::French));
    const QDate date(2026, 4, 2);
    const char* const expected[] = {"04/02/2026", "04/02/26",  "4/2/26",    "4/2/2026",    "26/04/02",
                                    "2026-04-02", "02-Apr-26", "02 Apr 26", "02 Apr 2026", "4-2-26"};
    for (size_t i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(formatDate(date, preferredFormats[i]), QString(expected[i])) << preferredFormats[i];
    EXPECT_EQ(shortDate(date), QString("4/2/2026"));
    EXPECT_EQ(stampDate(date), QString("04/02/26"));
    EXPECT_EQ(stampDate(QDate()), QString());
    QLocale::setDefault(before);
}

TEST(Dates, AreReadBackInTheFormatTheyWereWrittenIn) {
    for (const char* format : preferredFormats)
        for (const QDate date :
             {QDate(2026, 4, 2), QDate(2029, 12, 31), QDate(1930, 1, 1), QDate(1999, 10, 11), QDate(2024, 2, 29)})
            EXPECT_EQ(parseDate(formatDate(date, format), format), date) << format;
}

TEST(Dates, AreReadInTheUsualForms) {
    const std::pair<const char*, QDate> good[] = {
        {"4/2/26", {2026, 4, 2}},   {"04/02/2026", {2026, 4, 2}},   {"4-2-26", {2026, 4, 2}},
        {"4-2-2026", {2026, 4, 2}}, {"2026-04-02", {2026, 4, 2}},   {"2026/4/2", {2026, 4, 2}},
        {"4.2.2026", {2026, 4, 2}}, {" 4/2/26 ", {2026, 4, 2}},     {"4/2/29", {2029, 4, 2}},
        {"4/2/30", {1930, 4, 2}},   {"4/2/99", {1999, 4, 2}},       {"4/2/00", {2000, 4, 2}},
        {"4/2/5", {2005, 4, 2}},    {"2 april 2026", {2026, 4, 2}}, {"Apr 2, 2026", {2026, 4, 2}},
        {"2-APR-26", {2026, 4, 2}}};
    for (const auto& [text, date] : good) EXPECT_EQ(parseDate(text), date) << text;
    for (const char* text : {"",         "4/2",     "4/2/26/1", "13/2/26",   "2/29/2026",   "0/1/26",  "4//2/26",
                             "/4/2/26",  "4/2/",    "4/2/126",  "4/2/20266", "2026-13-01",  "4/2/1a",  "Apr May 26",
                             "Foo 2 26", "2 Ap 26", "4226",     "today",     "4/2/26 5:00", "-4/2/26", "4/-2/26"})
        EXPECT_EQ(parseDate(text), std::nullopt) << text;
}

TEST(Times, AreWrittenAndRead) {
    const QTime evening(18, 5, 9);
    EXPECT_EQ(formatTime(evening), QString("6:05 PM"));
    EXPECT_EQ(formatTime(evening, "h:Nn AMPM"), QString("6:05 PM"));
    EXPECT_EQ(formatTime(evening, "hh:mm AMPM"), QString("06:05 PM"));
    EXPECT_EQ(formatTime(evening, "hh:mm:ss AMPM"), QString("06:05:09 PM"));
    EXPECT_EQ(formatTime(QTime(0, 30)), QString("12:30 AM"));
    EXPECT_EQ(formatTime(QTime(12, 0)), QString("12:00 PM"));
    EXPECT_EQ(formatTime(QTime()), QString());

    const std::pair<const char*, QTime> good[] = {
        {"6:30 PM", {18, 30}},      {"6:30pm", {18, 30}}, {"6:30 p", {18, 30}},   {"06:30 AM", {6, 30}},
        {"6 pm", {18, 0}},          {"12:00 AM", {0, 0}}, {"12:15 PM", {12, 15}}, {"18:30", {18, 30}},
        {"18:30:15", {18, 30, 15}}, {" 9:05 ", {9, 5}}};
    for (const auto& [text, time] : good) EXPECT_EQ(parseTime(text), time) << text;
    for (const char* text :
         {"", "6", "24:00", "6:60", "18:30 PM", "0:30 AM", "6:30 xm", ":30", "6:30:", "4/2/26", "6:30 PM PM"})
        EXPECT_EQ(parseTime(text), std::nullopt) << text;
}

TEST(Dates, NormalizeShortDateHasItsOwnPivot) {
    const std::pair<const char*, const char*> cases[] = {{"4/2/26", "04/02/2026"},
                                                         {"12/31/99", "12/31/1999"},
                                                         {"04/02/30", "04/02/2030"},
                                                         {"4/2/31", "04/02/1931"},
                                                         {"10/5/5", "10/05/2005"},
                                                         {"4/2/2026", "4/2/2026"},
                                                         {"", ""},
                                                         {"4-2-26", "4-2-26"}};
    for (const auto& [text, expected] : cases) EXPECT_EQ(NormalizeShortDate(text), QString(expected)) << text;
}
