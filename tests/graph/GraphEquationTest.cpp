// Reading the tokens of a solved equation, and the value of y at a place.
#include "FaultOf.hpp"
#include "GraphEquation.hpp"
#include "GraphWords.hpp"
#include "TextTools.hpp"

#include <gtest/gtest.h>

#include <string_view>

namespace ordwise {
namespace {

// One token a word. e.g. "+ 1/1 y ^ + 1 = + 3/1"
TokenArray tokensOf(std::string_view words) {
    TokenArray tokens;
    int slot = 0;
    for (const std::string& word : split(words, ' ')) tokens.set(slot++, word);
    return tokens;
}

GraphEquation equationOf(std::string_view words) {
    const std::optional<GraphEquation> read = readEquation(tokensOf(words));
    EXPECT_TRUE(read) << words;
    return read.value_or(GraphEquation{});
}

TEST(GraphEquationTest, ASignStandsInACellOfItsOwn) {
    const GraphEquation equation = equationOf("+ 1/1 y ^ + 1 = - 2/3 x + 2/1");
    EXPECT_DOUBLE_EQ(valueAt(equation, 3, false), 0);
    EXPECT_DOUBLE_EQ(valueAt(equation, -6, false), 6);
    EXPECT_TRUE(isStraight(equation));
    EXPECT_FALSE(isVertical(equation));
}

TEST(GraphEquationTest, MissingPartsCountAsOne) {
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y = x"), 7, false), 7);
    EXPECT_DOUBLE_EQ(valueAt(equationOf("Y = - X + 5"), 7, false), -2);
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y ^ 1 = x ^ - 2"), 2, false), 0.25);
}

TEST(GraphEquationTest, TheRightSideIsDividedByTheCoefficientOfY) {
    EXPECT_DOUBLE_EQ(valueAt(equationOf("- 2/1 y = + 3/1 x + 4/1"), 2, false), -5);
}

TEST(GraphEquationTest, GroupsAndBarsAreWorkedOutBeforeTheirExponent) {
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y = + 3/1 ( + 1/1 x - 2/1 ) ^ + 2"), 5, false), 27);
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y = - | + 1/1 x - 2/1 | + 1/1"), -1, false), -2);
    EXPECT_FALSE(isStraight(equationOf("y = | x |")));
}

TEST(GraphEquationTest, AnEvenRootOfANegativeNumberIsAFaultAndAnOddOneIsNot) {
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y = x ^ + 1/2"), 9, false), 3);
    EXPECT_EQ(faultOf([] { return valueAt(equationOf("y = x ^ + 1/2"), -9, false); }), 6);
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y = x ^ + 1/3"), -8, false), -2);
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y = x ^ + 2/3"), -8, false), 4) << "a square under the root";
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y = x ^ + 2/2"), -8, false), -8) << "in lowest terms no root at all";
    EXPECT_DOUBLE_EQ(valueAt(equationOf("y = x ^ + 1/3 + x ^ + 2"), -8, false), 62)
        << "a root beside it does not turn the sign of a square";
}

TEST(GraphEquationTest, AnEvenPowerOfYHasTwoBranches) {
    const GraphEquation sideways = equationOf("y ^ + 2 = x");
    EXPECT_TRUE(hasTwoBranches(sideways));
    EXPECT_DOUBLE_EQ(valueAt(sideways, 9, false), 3);
    EXPECT_DOUBLE_EQ(valueAt(sideways, 9, true), -3);
    EXPECT_EQ(faultOf([&] { return valueAt(sideways, -9, false); }), 6);
    const GraphEquation cubic = equationOf("y ^ + 3 = x");
    EXPECT_FALSE(hasTwoBranches(cubic));
    EXPECT_DOUBLE_EQ(valueAt(cubic, -27, false), -3);
}

TEST(GraphEquationTest, ADivisionByZeroIsAFault) {
    const GraphEquation hyperbola = equationOf("y = x ^ - 1");
    EXPECT_TRUE(isBrokenAtZero(hyperbola));
    EXPECT_EQ(faultOf([&] { return valueAt(hyperbola, 0, false); }), 6);
    EXPECT_EQ(faultOf([] { return valueAt(equationOf("+ 0/1 y = x"), 1, false); }), 11);
}

TEST(GraphEquationTest, ALoneXOnTheLeftIsAVerticalLine) {
    EXPECT_TRUE(isVertical(equationOf("+ 1/1 x ^ + 1 = + 3/1")));
    EXPECT_DOUBLE_EQ(placeOfVertical(equationOf("+ 1/1 x ^ + 1 = - 3/4")), -0.75);
}

TEST(GraphEquationTest, WhatIsNoSolvedEquationIsNotRead) {
    for (const char* words : {"", "+ 0/1 = + 0/1", "y", "y =", "y = q", "y = ( x", "y = x ^", "x = + 1/1 x",
                              "y = + 1/1 y", "+ 1/1 y + 1/1 = x", "y = 1/2/3 x", "= x", "y = x = 2"}) {
        EXPECT_FALSE(readEquation(tokensOf(words))) << words;
    }
}

TEST(GraphEquationTest, IsSaidAsItWouldBeTyped) {
    const auto said = [](std::string_view words) { return equationWords(equationOf(words)); };
    EXPECT_EQ(said("+ 1/1 y ^ + 1 = - 2/3 x + 2/1"), "y = -2x/3 + 2");
    EXPECT_EQ(said("+ 3/1 y = - 1/7 x - 4/5"), "3y = -x/7 - 4/5");
    EXPECT_EQ(said("+ 1/1 x ^ + 1 = + 0/1"), "x = 0");
    EXPECT_EQ(said("y ^ 2 = 4 x ^ - 1 + x ^ 1/2 - x ^ 3"), "y^2 = 4x^(-1) + x^(1/2) - x^3");
    EXPECT_EQ(said("y = 2 ( x - 1 ) ^ 2 - | x |"), "y = 2(x - 1)^2 - |x|");
}

}  // namespace
}  // namespace ordwise
