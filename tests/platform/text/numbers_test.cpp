#include "platform/text/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/text/Money.h"
#include "support/Printing.h"

TEST(Numbers, KnowWhatIsNumeric) {
    const std::pair<const char*, double> numeric[] = {{"0", 0},
                                                      {"45", 45},
                                                      {" 12.50 ", 12.5},
                                                      {"-3", -3},
                                                      {"+3", 3},
                                                      {".5", 0.5},
                                                      {"5.", 5},
                                                      {"$45.00", 45},
                                                      {"$ 45", 45},
                                                      {"-$5", -5},
                                                      {"$-5", -5},
                                                      {"1,234.50", 1234.5},
                                                      {"1,2,3", 123},
                                                      {"($1,234.50)", -1234.5},
                                                      {"(5)", -5},
                                                      {"1e3", 1000},
                                                      {"1.5E-2", 0.015},
                                                      {"0012", 12},
                                                      {"1e-9999", 0},
                                                      {"0e9999", 0},
                                                      {"1.7e308", 1.7e308},
                                                      {"$0.00", 0}};
    for (const auto& [text, value] : numeric) {
        const auto number = toNumber(QString(text));
        ASSERT_TRUE(number.has_value()) << text;
        EXPECT_DOUBLE_EQ(*number, value) << text;
    }
    for (const char* text :
         {"",      " ",     "$",        "-",   ".",   "-.", "()",   "abc", "12a", "1 2", "--1",   "-$-5",
          "1.2.3", "1.2,3", ",5",       "1e",  "1e+", "e5", "(-5)", "(5",  "3/4", "5%",  "1e400", "1e99999999999",
          "٣",     "NaN",   "Infinity", "0x1F"})
        EXPECT_FALSE(isNumeric(QString(text))) << text;
}

TEST(Numbers, RoundToWholeOnesHalvesAwayFromZero) {
    EXPECT_EQ(toWhole(u"2.5"), 3);
    EXPECT_EQ(toWhole(u"-2.5"), -3);
    EXPECT_EQ(toWhole(u"2.4999999999999999999999"), 2);
    EXPECT_EQ(toWhole(u"-2147483648"), -2147483648);
    EXPECT_EQ(toWhole(u"2147483647.5"), std::nullopt);
    EXPECT_EQ(toWhole(u"few"), std::nullopt);
}

TEST(Numbers, FormatAfterPatterns) {
    struct Case {
        const char* number;
        const char* pattern;
        const char* expected;
    };
    const Case cases[] = {{"1.125", "0.00", "1.13"},
                          {"-1.125", "0.00", "-1.13"},
                          {"1.1249999999999999999", "0.00", "1.12"},
                          {"1.005", "#0.00", "1.01"},
                          {"999.995", "0.00", "1000.00"},
                          {"0", "#0.00", "0.00"},
                          {".5", "#.0", ".5"},
                          {"0", "##0.000", "0.000"},
                          {"100", "##0.000", "100.000"},
                          {"7", "00", "07"},
                          {"2.5", "0", "3"},
                          {"1234567.891", "$#,##0.00", "$1,234,567.89"},
                          {"-1234.5", "$#,##0.00;($#,##0.00)", "($1,234.50)"},
                          {"999.5", "$#,##0.00;($#,##0.00)", "$999.50"},
                          {"-5", "$0.00", "-$5.00"},
                          {"-0.004", "$#,##0.00;($#,##0.00)", "$0.00"},
                          {"12.5", "0.0 %", "12.5 %"}};
    for (const Case& it : cases)
        EXPECT_EQ(formatNumber(*Decimal::parse(QString(it.number)), it.pattern), QString(it.expected)) << it.number;
}

TEST(Numbers, FormatBinaryFractionsByTheDigitsTheyMean) {
    EXPECT_EQ(formatNumber(2.0 / 3 * 100, "##0.000"), QString("66.667"));
    EXPECT_EQ(formatNumber(1.005, "0.00"), QString("1.01"));   // in binary a little less
    EXPECT_EQ(formatNumber(0.285 * 100, "0"), QString("29"));  // 28.499999999999996
    EXPECT_EQ(formatNumber(1e20, "#,##0"), QString("100,000,000,000,000,000,000"));
    EXPECT_EQ(formatNumber(std::nan(""), "0.00"), QString());
    EXPECT_EQ(formatNumber(HUGE_VAL, "0.00"), QString());
}

TEST(Money, IsExactToTheCent) {
    Money sum;
    for (int i = 0; i < 10; ++i) sum += *Money::parse(u"0.10");
    EXPECT_EQ(sum, Money{100});
    EXPECT_EQ(Money::parse(u"1.125"), Money{113});
    EXPECT_EQ(Money::parse(u"($1.125)"), Money{-113});
    EXPECT_EQ(Money::parse(u".07"), Money{7});
    EXPECT_EQ(Money::parse(u"9999999999999.99"), Money{999999999999999});
    EXPECT_EQ(Money::parse(u"1e13"), std::nullopt);
    EXPECT_EQ(Money::parse(u""), std::nullopt);
    EXPECT_EQ(Money::orZero(u"paid by aunt"), Money{0});

    const Money due = Money::orZero(u"$45.00") + Money::orZero(u"$5.00") - Money::orZero(u"60");
    EXPECT_LT(due, Money{});
    EXPECT_EQ(due.text(), QString("($10.00)"));
    EXPECT_EQ(Money{-5}.text("0.00"), QString("-0.05"));
    EXPECT_EQ(Money{}.text(), QString("$0.00"));
    EXPECT_EQ(Money{123456789}.text(), QString("$1,234,567.89"));
    EXPECT_EQ(Money{123456789}.text("$0.00"), QString("$1234567.89"));
}
