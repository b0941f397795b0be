// Equations: moving, dividing, the three ends, and polynomials set to zero.
#include "SolveText.hpp"
#include "basFactoring.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

using Lines = std::vector<std::string>;

struct Ending {
    const char* text;
    const char* last;
};

TEST(SolveEquation, KeepsTheProblemWhereItsVariableVanishesUnseen) {
    EXPECT_EQ(solveText(101, "0x=5").lines, (Lines{"0x=5", "0$5"}));
    EXPECT_EQ(solveText(101, "0x=0").lines, (Lines{"0x=0", "0=0"}));
}

TEST(SolveEquation, TurnsToTheOtherVariableWhenTheFirstCancels) {
    const Recorded steps = solveText(105, "y+x=y+3");
    EXPECT_EQ(steps.last(), "x=3");
    EXPECT_EQ(
        steps.notes.back(),
        "Subtract y from y to form the new term (0). This cannot be solved for y because it has been cancelled out "
        "of the equation. Instead we will solve for x.");
}

TEST(SolveEquation, WithTwoVariablesLeavesTheOtherOnTheRight) {
    const Ending cases[] = {
        {"2x+3y=6", "y=-#2x/3#+2"}, {"2x=y+3", "y=2x-3"}, {"x+y=0", "y=-x"},
        {"3y=-x", "y=-#x/3#"},      {"a+b=3", "a=-b+3"},  {"-y=x-4", "y=-x+4"},
    };
    for (const Ending& one : cases) EXPECT_EQ(solveText(105, one.text).last(), one.last) << one.text;
}

TEST(SolveEquation, DoesNotSpeakOfCancellingWhereItOnlyReorders) {
    const Recorded steps = solveText(105, "y=3+2x");
    EXPECT_EQ(steps.last(), "y=2x+3");
    EXPECT_EQ(steps.notes.back().substr(0, 45), "Polynomials are written in decreasing order o");
    EXPECT_EQ(solveText(105, "2x=y+3").notes.back(), "Remove cancelled terms from both sides.");
}

TEST(SolveEquation, WithParenthesesExpandsBothSides) {
    startText(101, "2(x+3)=3(x-1)");
    ws.PlainSum = false;
    ExpandBothSides();
    SolveEquation("x");
    EXPECT_EQ(recorded().last(), "x=9");
}

TEST(DivideBothSides, WritesAFractionUpInParentheses) {
    startText(101, "x/2=3");
    DivideBothSides("x");
    EXPECT_EQ(recorded().lines[1], "#(x/2)/[0.5]#=#3/[0.5]#");
    EXPECT_EQ(recorded().last(), "x=6");
}

TEST(DivideBothSides, ToDecimalsInDecimalsMode) {
    startText(101, "4x=6");
    ws.UseFractions = false;
    DivideBothSides("x");
    EXPECT_EQ(recorded().last(), "x=1.5");
    startText(105, "500y=x+60");
    ws.UseFractions = false;
    DivideBothSides("y");
    EXPECT_EQ(recorded().last(), "y=0.12") << "a term that rounds to nothing is left out";
}

// --- higher degrees ----------------------------------------------------------------------------

Recorded solvePolynomial(const std::string& text, int detail = 1) {
    startText(101, text);
    ws.StepDetail = detail;
    ws.PlainSum = false;
    ExpandBothSides();
    EXPECT_FALSE(SolveEquation("x"));
    return recorded();
}

TEST(SolveEquation, FactorsPolynomials) {
    const Ending cases[] = {
        {"x^2-5x+6=0", "(x-3)(x-2)=0"}, {"2x^2-5x-3=0", "(x-3)(2x+1)=0"},   {"x^2-4=0", "(x-2)(x+2)=0"},
        {"2x^2+4x=0", "2x(x+2)=0"},     {"2x^2-10x+12=0", "2(x-3)(x-2)=0"}, {"-x^2+4=0", "(x-2)(x+2)=0"},
        {"x^2=5x-6", "(x-3)(x-2)=0"},   {"x^3-5x^2+6x=0", "x(x-3)(x-2)=0"}, {"x^2+2x+1=0", "(x+1)(x+1)=0"},
    };
    for (const Ending& one : cases) EXPECT_EQ(solvePolynomial(one.text).last(), one.last) << one.text;
}

TEST(SolveEquation, SetsAPolynomialToZeroFirst) {
    const Recorded steps = solvePolynomial("x^2=5x-6");
    EXPECT_EQ(steps.lines[1], "x^2^[-5x][+6]=5x[-5x]-6[+6]");
    EXPECT_EQ(steps.notes[1], "Set the polynomial equal to zero.");
    EXPECT_EQ(solvePolynomial("6=5x-x^2").lines[3], "x^2^-5x+6=0");
}

TEST(SolveEquation, TakesAMinusOffBothSides) {
    const Lines lines = solvePolynomial("-x^2+4=0").lines;
    EXPECT_EQ(lines[1], "-(-x^2^+4)=-(0)");
}

TEST(QuadraticFormula, IsShownAtTheHighestDetail) {
    EXPECT_EQ(solvePolynomial("x^2-2=0", 3).lines[1], "x=#-b\\~b^2^-4ac~/2a# for ax^2^+bx+c=0");
}

TEST(Factor, LeavesWhatDoesNotComeApart) {
    for (const char* text : {"x+3", "x^2", "3x+2y"}) {
        startText(103, text);
        const std::string before = ImplodeTokens();
        EXPECT_FALSE(Factor(0, 0, true)) << text;
        EXPECT_EQ(ImplodeTokens(), before);
    }
}

TEST(Factor, TakesTheSignOfTheFirstTermOut) {
    startText(102, "-2x^3-4x");
    EXPECT_FALSE(Factor(0, 0, true));
    EXPECT_EQ(ImplodeTokens(), "-2x^1(+1x^2+2)");
    EXPECT_EQ(ws.CurrentNote, "  -  Factor out the GCF");
    startText(102, "-x^2+x");
    EXPECT_FALSE(Factor(0, 0, true));
    EXPECT_EQ(ImplodeTokens(), "-x^1(+1x^1-1)");
}

TEST(GcfOfList, IsTheGreatestNumberThatDividesAll) {
    EXPECT_EQ(GcfOfList("4 6 10"), "2");
    EXPECT_EQ(GcfOfList("7"), "7");
    EXPECT_EQ(GcfOfList("3 5"), "1");
}

}  // namespace
}  // namespace ordwise::test
