#include "store/AgeRule.h"

#include <gtest/gtest.h>

namespace {

TEST(AgeRuleTest, AgeIsReachedByTheCutOffDateOfTheSeason) {
    const struct {
        const char* birth;
        const char* month;
        const char* day;
        const char* season;
        int age;
    } cases[]{
        {"7/31/1990", "8", "1", "2001", 11},   {"8/1/1990", "8", "1", "2001", 11},
        {"8/2/1990", "8", "1", "2001", 10},    {"12/31/1990", "8", "1", "2001", 10},
        {"10/5/1990", "12", "31", "2001", 11}, {"1/15/1990", "1", "9", "2001", 10},
        {"3/4/1929", "8", "1", "2001", 0},                                         // counts as 2029
        {"3/4/1930", "8", "1", "2001", 71},    {"3/4/2005", "8", "1", "2001", 0},  // not born yet
        {"3/4/1990", "", "", "2001", 10},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CalculateAge(c.birth, c.month, c.day, c.season), c.age) << c.birth << ' ' << c.month << '/' << c.day;
}

TEST(AgeRuleTest, TheTwoLaddersDifferWhereADivisionHasNoDay) {
    const CutOff division{"8", ""};
    const CutOff defaults{"5", "15"};
    EXPECT_EQ(cutOffByField(division, defaults).day, "15");
    EXPECT_EQ(cutOffByPair(division, defaults).day, "1");
    EXPECT_EQ(cutOffByPair({"", "9"}, defaults).day, "15");
    EXPECT_EQ(cutOffByField({"", "9"}, defaults).day, "9");
    EXPECT_EQ(cutOffByPair({"", "9"}, {"", "15"}).day, "1");
    EXPECT_EQ(cutOffByField({}, {"x", "y"}).month, "1");
}

}  // namespace
