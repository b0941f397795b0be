// Roots, powers of numbers, absolute values.
#include "FaultOf.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

using Lines = std::vector<std::string>;

TEST(Roots, GiveUpTheirSquareFactors) {
    struct Root {
        const char* text;
        Lines lines;
    };
    const Root cases[] = {
        {"2~50-~8", {"2~50~-~8~", "2*5~2~-~8~", "10~2~-~8~", "10~2~-2~2~"}},
        {"2*3~4", {"2*3~4~", "2*3*2", "2*6"}},
        {"~0", {"~0~", "0"}},
        {"~1+~7", {"~1~+~7~", "1+~7~"}},
        {"~9801", {"~9801~", "99"}},
        {"~9800", {"~9800~", "70~2~"}},
    };
    for (const Root& one : cases) {
        startText(82, one.text);
        SimplifyRadicals();
        EXPECT_EQ(recorded().lines, one.lines) << one.text;
    }
}

TEST(Roots, OfNothingAreMultipliedAway) {
    startText(82, "0~5+1");
    SimplifyRadicals();
    EXPECT_EQ(recorded().lines, (Lines{"0~5~+1", "0+1"}));
    EXPECT_EQ(recorded().notes[1], "Multiply the 0 by the ~5~ using the order of operations.");
}

TEST(Roots, WithAPrimeBeyondTheTableFault) {
    startText(82, "~200003*2");
    EXPECT_EQ(faultOf([] { SimplifyRadicals(); }), 9);
}

TEST(PowersOfNumbers, AreWrittenOut) {
    struct Power {
        const char* text;
        const char* line;
    };
    const Power cases[] = {
        {"2^3+1", "2*2*2+1"}, {"4-3^2", "4-3*3"}, {"5^0", "1"},         {"2^-3", "#1/8#"},  {"2^3/4", "#8/4#"},
        {"5*4^2", "5*4*4"},   {"2^0/3", "#1/3#"}, {"2^-2/3", "#1/12#"}, {"2^3x", "2*2*2x"}, {"2^-1x", "#x/2#"},
    };
    for (const Power& one : cases) {
        startText(102, one.text);
        ExpandPowers(0);
        EXPECT_EQ(recorded().last(), one.line) << one.text;
    }
}

TEST(PowersOfNumbers, OfAFractionRaiseTheWholeFraction) {
    startText(81, "10/2^2");
    ExpandPowers(0);
    EXPECT_EQ(ImplodeTokens(), "+10/2*10/2");
}

TEST(PowersOfNumbers, OfZeroBelowTheBarDivideByZero) {
    startText(81, "0^-2");
    EXPECT_EQ(faultOf([] { ExpandPowers(0); }), 11);
}

TEST(PowersOfNumbers, AreNotThoseOfLetters) {
    for (const char* text : {"x^3+2", "5^1+2", "3x"}) {
        startText(102, text);
        EXPECT_FALSE(ExpandIfPowers(0)) << text;
        EXPECT_EQ(recorded().lines.size(), 1U);
    }
}

TEST(AbsoluteValue, DropsTheSignAndSaysWhy) {
    struct Bars {
        const char* text;
        const char* line;
        const char* note;
    };
    const Bars cases[] = {
        {"|-5|+3", "5+3", "Since -5 < 0, the absolute value of -5 is 5."},
        {"|5|-1", "5-1", "Since 5 > 0, the absolute value of 5 is 5."},
        {"|0|", "0", "The absolute value of 0 is 0."},
        {"|-1/2|", "#1/2#", "Since -#1/2# < 0, the absolute value of -#1/2# is #1/2#."},
        {"2|-3|", "2*3", "Since -3 < 0, the absolute value of -3 is 3."},
        {"|-3|*2", "3*2", "Since -3 < 0, the absolute value of -3 is 3."},
    };
    for (const Bars& one : cases) {
        startText(120, one.text);
        EXPECT_TRUE(AbsoluteValueStep(0)) << one.text;
        EXPECT_EQ(recorded().last(), one.line) << one.text;
        EXPECT_EQ(recorded().notes.back(), one.note);
    }
}

}  // namespace
}  // namespace ordwise::test
