// Products, powers and letter parts, one rewrite at a time.
#include "FaultOf.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

struct Rewrite {
    const char* before;
    const char* after;
};

TEST(LetterParts, AreMultipliedInTheOrderOfTheVariables) {
    startText(103, "xyz");
    EXPECT_EQ(MultiplyLetterParts("x^2", "x"), "x^3");
    EXPECT_EQ(MultiplyLetterParts("y", "xy"), "x^1y^2");
    EXPECT_EQ(MultiplyLetterParts("x^-3", "x^2"), "x^-1");
    EXPECT_EQ(MultiplyLetterParts("x^2", "x^-2"), "");
    EXPECT_EQ(MultiplyLetterParts("", ""), "");
    EXPECT_EQ(MultiplyLetterParts("", "z^1"), "z^1");
}

TEST(LetterParts, ReadOneCharacterOfAnExponent) {
    startText(102, "x");
    EXPECT_EQ(MultiplyLetterParts("x^12", "x"), "x^2");
}

TEST(LowestForm, MovesNegativeExponentsBelowTheBarAndReducesTheNumber) {
    startText(150, "xy");
    EXPECT_EQ(NegativeExponentText("x^-2", 9, "", 6), "3/2x^2");
    EXPECT_EQ(NegativeExponentText("x^-2", -1, "", 1), "1/x^2");
    EXPECT_EQ(NegativeExponentText("x^2", 4, "x", 2), "2x^1");
    EXPECT_EQ(NegativeExponentText("x^2y^-1", 3, "x^2", 1), "3/y^1");
    EXPECT_EQ(NegativeExponentText("", 4, "", 2), "2^1");
    EXPECT_EQ(NegativeExponentText("", 3, "", 4), "3^1/4");
    EXPECT_EQ(NegativeExponentText("x", 1, "x^-3", 1), "1x^4");
}

TEST(Monomials, HaveTheirMarksClosedInANote) {
    EXPECT_EQ(markupOf("3x^2/4"), "#3x^2^/4#");
    EXPECT_EQ(markupOf("x^2y^-3"), "x^2^y^-3^");
    EXPECT_EQ(markupOf("5~3"), "5~3~");
    EXPECT_EQ(markupOf("1x^1"), "x");
    EXPECT_EQ(markupOf("-1x^12"), "-x^12^");
    EXPECT_EQ(markupOf("11x"), "11x");
    EXPECT_EQ(markupOf("1~3"), "~3~");
    EXPECT_EQ(markupOf("1"), "1");
}

TEST(MultiplyGroups, NamesWhatIsMultiplied) {
    const Rewrite cases[] = {
        {"(x+1)(x+2)",
         "Multiply the polynomials together by multiplying each term of the first by every term in the second."},
        {"(x^2)(x+2)", "Multiply the polynomial inside the parenthesis by x^2^."},
        {"(x+2)(3)", "Multiply the polynomial inside the parenthesis by 3."},
        {"(2x)(-3)", "Multiply 2x by -3 using the order of operations."},
        {"(3)(4)", "Multiply the 3 by 4 to form the new term (12)."},
        {"(1/2)(3)", "Multiply the #1/2# by 3 to form the new term (#3/2#)."},
    };
    for (const Rewrite& one : cases) {
        startText(102, one.before);
        MultiplyGroups(1, 0, 1);
        EXPECT_EQ(ws.CurrentNote, one.after) << one.before;
    }
}

TEST(MultiplyGroups, HasRoomForAHundredProducts) {
    const std::string tenTerms = "(1+2+3+4+5+6+7+8+9+1)";
    const std::string elevenTerms = "(1+2+3+4+5+6+7+8+9+1+2)";
    startText(121, tenTerms + tenTerms);
    EXPECT_EQ(faultOf([] { MultiplyGroups(1, 0, 1); }), 0);
    startText(121, elevenTerms + tenTerms);
    EXPECT_EQ(faultOf([] { MultiplyGroups(1, 0, 1); }), 9);
}

TEST(ExpandPower, RepeatsTheGroup) {
    const Rewrite cases[] = {
        {"(x+1)^3", "+(+x+1)(+x+1)(+x+1)"},
        {"2(7)^2-1", "+2(+7)(+7)-1"},
        {"(x+1)^0+2", "+(+1)+2"},
        {"3(2)^-2", "+3(+1/4)"},
        {"(-2)^-3", "+(-1/8)"},
    };
    for (const Rewrite& one : cases) {
        startText(102, one.before);
        EXPECT_TRUE(ExpandPower(1, 0)) << one.before;
        EXPECT_EQ(ImplodeTokens(), one.after) << one.before;
    }
}

TEST(ExpandPower, LeavesTheTextAloneWhereItCannotBeWrittenOut) {
    for (const char* text : {"(x+1)^-2", "(x+1)"}) {
        startText(102, text);
        const std::string before = ImplodeTokens();
        EXPECT_FALSE(ExpandPower(1, 0)) << text;
        EXPECT_EQ(ImplodeTokens(), before);
    }
    startText(102, "(0)^-2");
    EXPECT_EQ(faultOf([] { ExpandPower(1, 0); }), 11);
}

}  // namespace
}  // namespace ordwise::test
