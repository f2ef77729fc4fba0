#include "platform/text/Collation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

#include "support/Printing.h"

TEST(Collation, OrdersListsAsAReaderLooksThemUp) {
    const std::vector<QString> ordered = {
        "",
        "Éclair, Al",
        "Edwards, Bo",
        "muller, Cy",
        "Müller, Cy",  // beside its plain twin, after it
        "Muller, Di",
        "O'Brien, Al",
        "Oakley, Al",
        "Østby, Al",
        "Ostler, Al",
        "Peña, Al",
        "Pena, Zoe",  // the first column is the same: the second decides
        "Smith, Zoë - 1/1/2010",
        "Smith, Zoe - 3/4/2015",
        "Smith, Zoe - 10/1/2015",      // by date, not by text
        "Smith Jones, Al - 1/1/2010",  // a longer name comes after all of the shorter one
        "SMITH-JONES, Al - 1/1/2010",
        "Straße, Al",
        "Strasse, Bo",
        "Zwick",
    };
    for (size_t left = 0; left < ordered.size(); ++left)
        for (size_t right = 0; right < ordered.size(); ++right)
            EXPECT_EQ(listLess(ordered[left], ordered[right]), left < right)
                << ordered[left].toStdString() << " < " << ordered[right].toStdString();
    EXPECT_FALSE(listLess("SMITH, AL", "Smith, Al"));
    EXPECT_FALSE(listLess("Smith, Al", "SMITH, AL"));
}

TEST(Collation, PlacesAccentedEntriesAmongThoseAQuerySorted) {
    struct Person {
        QString last;
        QString first;
        QString number;  // keeps entries apart
    };
    const QStringList lasts = {"Smith",  "Smith Jones", "smith-jones", "O'Brien", "Pena",  "Peña",  "PEÑA",
                               "Müller", "Muller",      "Östberg",     "Zwick",   "Åberg", "Aberg", "Жуков"};
    const QStringList firsts = {"Al", "Zoe", "Zoë", "José", "Jose", "Éva", "Eve-Ann"};
    std::mt19937 random(7);
    std::vector<Person> people;
    for (int i = 0; i < 2000; ++i)
        people.push_back({lasts[random() % lasts.size()], firsts[random() % firsts.size()], QString::number(i)});
    // As ORDER BY last, first COLLATE NOCASE: bytes, with ASCII letters in one case only.
    const auto bytes = [](const QString& text) { return text.toUtf8().toLower(); };
    std::stable_sort(people.begin(), people.end(), [&](const Person& left, const Person& right) {
        return std::tuple(bytes(left.last), bytes(left.first)) < std::tuple(bytes(right.last), bytes(right.first));
    });
    std::vector<QString> entries;
    for (const Person& person : people) entries.push_back(person.last + ", " + person.first);
    std::vector<QString> expected = entries;
    std::stable_sort(expected.begin(), expected.end(), listLess);

    placeAccented(entries);
    EXPECT_EQ(entries, expected);
}

TEST(Collation, LeavesPlainEntriesWhereTheQueryPutThem) {
    std::vector<QString> byValue = {"Excellent", "Average", "Poor"};
    const std::vector<QString> before = byValue;
    placeAccented(byValue);
    EXPECT_EQ(byValue, before);
    std::vector<QString> none;
    placeAccented(none);
    EXPECT_TRUE(none.empty());
    std::vector<QString> all = {"Zoé", "Ève", "Éva"};
    placeAccented(all);
    EXPECT_EQ(all, (std::vector<QString>{"Éva", "Ève", "Zoé"}));
}

TEST(Collation, ComparesNamesOfOneColumnSoThatAFurtherColumnCanDecide) {
    const std::vector<std::vector<std::string>> ordered = {{"", ""},
                                                           {"Éclair", "eclair"},
                                                           {"Edwards"},
                                                           {"Müller", "muller", "MULLER"},
                                                           {"O'Brien", "O’Brien"},
                                                           {"Oakley"},
                                                           {"Østby"},
                                                           {"Ostler"},
                                                           {"Peña", "PEÑA", "pena"},
                                                           {"Peñas"},
                                                           {"Straße", "Strasse"},
                                                           {"Юлия"}};
    for (size_t left = 0; left < ordered.size(); ++left)
        for (size_t right = 0; right < ordered.size(); ++right)
            for (const std::string& a : ordered[left])
                for (const std::string& b : ordered[right]) {
                    const int sign = compareNames(a, b);
                    EXPECT_EQ((sign > 0) - (sign < 0), int(left > right) - int(left < right)) << a << " <> " << b;
                }
}
