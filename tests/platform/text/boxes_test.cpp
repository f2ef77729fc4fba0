#include <gtest/gtest.h>

#include <set>

#include "platform/text/KeyFilters.h"
#include "platform/text/Texts.h"
#include "support/Printing.h"

TEST(KeyFilters, PassTheirCharactersAndBackspaceOnly) {
    const QString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    const std::pair<KeySet, QString> filters[] = {{FilterNumeric, "1234567890"},
                                                  {FilterMoney, "1234567890$."},
                                                  {FilterFileName, letters + "-_!()$+=?@/. "},
                                                  {FilterTextWide, letters + "-_!()$+=*#?@/.,';: "},
                                                  {FilterTextNoDash, letters + "_!*()$+=?#@/.';: "},
                                                  {FilterTextFull, letters + "-_!()$#+=?*@/.';: "},
                                                  {FilterTextPercent, letters + "_!()$+=?@*#%/.';: "},
                                                  {FilterTime, "1234567890:aApPmM "}};
    for (const auto& [filter, allowed] : filters) {
        for (int key = -1; key < 300; ++key) {
            const bool passes = key == 8 || (key > 0 && allowed.contains(QChar(key)));
            EXPECT_EQ(filter(key), passes ? key : 0) << allowed.toStdString() << ' ' << key;
        }
        EXPECT_EQ(filter('"'), 0);
        EXPECT_FALSE(admits(filter, u'"'));
    }
    EXPECT_EQ(FilterTextFull(13, true), 13);
    EXPECT_EQ(FilterTextFull(13, false), 0);
    EXPECT_EQ(FilterTextFull('%', true), 0);
}

TEST(KeyFilters, AdmitLettersOfEveryLanguageWhereLettersGo) {
    for (const KeySet& filter : {KeySet(FilterTextFull), FilterTextWide, FilterFileName}) {
        for (const QChar letter : QString("éñßŁЖ中e\u0301")) EXPECT_TRUE(admits(filter, letter));
        for (const QChar other : QString("€“”–\u00a0\u200b")) EXPECT_FALSE(admits(filter, other));
    }
    for (const KeySet& filter : {FilterNumeric, FilterMoney, FilterTime}) {
        EXPECT_TRUE(admits(filter, u'7'));
        EXPECT_FALSE(admits(filter, u'é'));
        EXPECT_FALSE(admits(filter, u'٣'));
    }
}

TEST(Texts, ZipsTakeADash) {
    const std::pair<const char*, const char*> cases[] = {{"12345", "12345"},
                                                         {"12345-6789", "12345-6789"},
                                                         {"12345 6789", "12345-6789"},
                                                         {"123456789", "12345-789"},
                                                         {"K1A 0B1", "01000-1"},
                                                         {"123456", "12345-"},
                                                         {"", ""},
                                                         {"1234", "1234"},
                                                         {"12345-67890", "12345-67890"}};
    for (const auto& [zip, expected] : cases) EXPECT_EQ(FormatZipText(zip), QString(expected)) << zip;
}

TEST(Texts, SeasonYearsAreChecked) {
    for (const char* year : {"1980", "2026", "2050", " 2026 "}) EXPECT_FALSE(checkYearEntry(year)) << year;
    for (const char* year : {"1979", "2051", "0", "26", "99999999999"}) {
        const auto fault = checkYearEntry(year);
        ASSERT_TRUE(fault) << year;
        EXPECT_EQ(fault->title, QString("Invalid Year Entered"));
        EXPECT_EQ(fault->text, QString("The year you entered is not valid.\nThe valid year range is 1980 to 2050."));
    }
    for (const char* year : {"", "    ", "20x6", "2e3", "-2026", "٢٠٢٦"}) {
        const auto fault = checkYearEntry(year);
        ASSERT_TRUE(fault) << year;
        EXPECT_EQ(fault->title, QString("Invalid Year Format"));
        EXPECT_EQ(fault->text, QString("You must enter a four digit\nin this field."));
    }
}

TEST(Texts, TypeAheadFindsTheFirstEntryThatBeginsSo) {
    const std::vector<QString> entries = {"", "Adams, Al", "Adams, Zoe", "Peña, José"};
    EXPECT_EQ(CompleteComboText("ada", entries), 1);
    EXPECT_EQ(CompleteComboText("ADAMS, Z", entries), 2);
    EXPECT_EQ(CompleteComboText("PEÑ", entries), 3);
    EXPECT_EQ(CompleteComboText("Adams, Al and more", entries), -1);
    EXPECT_EQ(CompleteComboText("x", entries), -1);
    EXPECT_EQ(CompleteComboText("", entries), -1);
}

TEST(Texts, JournalColumnsAreFilledAndNeverCut) {
    EXPECT_EQ(leftAligned("Backup", 10), QString("Backup    "));
    EXPECT_EQ(leftAligned("CorrectVersion", 10), QString("CorrectVersion"));
}
