// The chains of the topics: expand, evaluate, find primes. Whole solutions with all their notes
// stand with the cases; here are the ends of many, and what leads there by an unusual way.
#include "FaultOf.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace ordwise::test {
namespace {

using Lines = std::vector<std::string>;

struct Ending {
    const char* text;
    const char* last;
};

TEST(ExpandPolynomial, WorksArithmeticInsideOut) {
    const Ending cases[] = {
        {"2(3+4(1+2))", "30"},
        {"((1+2)*3)*4", "36"},
        {"3/4*(1+2)", "#9/4#"},
        {"2^3*(1-3)", "-16"},
        {"2^-3*(1-3)", "-#1/4#"},
        {"-(2-5)*3", "9"},
        {"5-2*(3-1)*4", "-11"},
        {"(1/2+1/3)*6", "5"},
        {"3*(-2)-(-2)", "-4"},
        {"5(12^3)-40-(12^3)-2*7", "6858"},
        {"(2^2)*(3^2)-(2^2)", "32"},
        {"2(3^2+1)^2", "200"},
        {"(1+1)*(1+2)*(1+3)*(1+4)", "120"},
        // Twelve changes at one level: more than a handful of rounds.
        {"2*(3+4)+2*(1+2)+3*(2+1)+4*(5-2)+2*(1+1)+3*(1+1)", "51"},
    };
    for (const Ending& one : cases) EXPECT_EQ(solveText(121, one.text).last(), one.last) << one.text;
}

TEST(ExpandPolynomial, ExpandsAndGathers) {
    const Ending cases[] = {
        {"(x+1)*(x+2)*(x+3)", "x^3^+6x^2^+11x+6"},
        {"(x-3)^3", "x^3^-9x^2^+27x-27"},
        {"x/2*(x+4)", "#x^2^/2#+2x"},
        {"3*x*(x+1)-x", "3x^2^+2x"},
        {"((x+1)*2)*x", "2x^2^+2x"},
        {"(x-1)*x^2*3", "3x^3^-3x^2^"},
        {"2^3x+x", "9x"},
        {"2^3(x+1)", "8x+8"},
        {"x^-2(x+1)", "#1/x#+#1/x^2^#"},
        {"(x+x)*(3-3)", "0"},
        {"4-(x+2)-(3-x)", "-1"},
        {"x^-1*x", "1"},
    };
    for (const Ending& one : cases) EXPECT_EQ(solveText(102, one.text).last(), one.last) << one.text;
}

TEST(ExpandPolynomial, KeepsTheLettersBehindANumbersPower) {
    EXPECT_EQ(solveText(150, "2^4x-8").last(), "16x-8");
    EXPECT_EQ(solveText(150, "3+7^2x^-1").last(), "#49/x#+3");
    EXPECT_EQ(solveText(150, "8^3x/10").last(), "#256x/5#");
    EXPECT_EQ(solveText(150, "7/3-6^3").last(), "-#641/3#");
}

TEST(ExpandPolynomial, MultipliesDecimalsAsTheyPrint) {
    EXPECT_EQ(solveText(91, "8.1*85").lines[1], "688.5");
    EXPECT_EQ(solveText(120, "254*4*9.22").lines[2], "9367.52");
}

TEST(ExpandPolynomial, TakesBarsFromTheLeft) {
    EXPECT_EQ(solveText(120, "|3-8|+|-3|").lines, (Lines{"|3-8|+|-3|", "|-5|+|-3|", "5+|-3|", "5+3", "8"}));
    EXPECT_EQ(solveText(120, "-|5-7|").last(), "-2");
    EXPECT_EQ(solveText(120, "|2*3-10|-4").last(), "0");
}

// --- roots and primes --------------------------------------------------------------------------

TEST(ReduceFinalRadicals, CombinesRootsOfOneNumber) {
    const Ending cases[] = {
        {"~18+~8-~50", "0"}, {"2*~3*~6", "6~2~"},    {"~2*~8", "4"}, {"~2+~3-~2", "~3~"},
        {"3*4+~9", "15"},    {"2~12+3~27", "13~3~"}, {"0~5", "0"},
    };
    for (const Ending& one : cases) EXPECT_EQ(solveText(82, one.text).last(), one.last) << one.text;
}

TEST(FindPrimeFactors, CountsInTheOrderOfAppearance) {
    const Ending cases[] = {
        {"12*18", "2^3^*3^3^"}, {"9*2", "3^2^*2"}, {"9999999", "3^2^*239*4649"}, {"2^0*9", "3^2^"},
        {"0*4", "0*2^2^"},      {"13*1", "13"},    {"2+10", "2^2^*3"},
    };
    for (const Ending& one : cases) EXPECT_EQ(solveText(83, one.text).last(), one.last) << one.text;
}

TEST(FindPrimeFactors, HasNothingToSayOfAPrimeAOneOrAZero) {
    for (const char* text : {"7", "1", "0"}) EXPECT_EQ(solveText(83, text).lines.size(), 1U) << text;
}

// --- evaluation --------------------------------------------------------------------------------

TEST(EvaluateProblem, GivesTheValueAtTheAnswers) {
    const Ending cases[] = {
        {"x^2y", "12"}, {"x^-2y", "#3/4#"}, {"x(y+1)-z", "4"},       {"-x", "-2"},     {"x-y*2", "-4"},
        {"x^0", "1"},   {"x*y^2*z", "72"},  {"4x^3z-5y^3z", "-864"}, {"4x^-1+y", "5"},
    };
    for (const Ending& one : cases) EXPECT_EQ(solveText(103, one.text, {"2", "3", "4"}).last(), one.last) << one.text;
    EXPECT_EQ(solveText(103, "x^2-x", {"-3"}).last(), "12");
    EXPECT_EQ(solveText(103, "x^-2", {"-3"}).last(), "#1/9#");
    EXPECT_EQ(solveText(103, "2x", {".5"}).last(), "1");
}

TEST(EvaluateProblem, TakesTheValuesInTheOrderOfTheLetters) {
    EXPECT_EQ(solveText(103, "4y^3z-5x^3z", {"5", "6", "1"}).last(), "2970");
}

TEST(EvaluateProblem, SimplifiesOneVariableFirst) {
    const Recorded steps = solveText(103, "2x+3x", {"2"});
    EXPECT_EQ(steps.lines, (Lines{"2x+3x", "5x", "5[(2)]", "(10)", "10"}));
    EXPECT_EQ(steps.notes[2], "Replace all the [x]'s in the expression with 2 .");
}

TEST(EvaluateProblem, AsksUntilTheAnswerIsANumberBelowTheLimit) {
    PlainPlatform outside;
    outside.dialogs.answers = {"abc", "", "999999999", "2"};
    startText(103, "x+y");
    EXPECT_THROW(EvaluateProblem(), NoAnswerLeft);
    const ShownMessage complaint{"x = ?", "Please enter a number to replace for x"};
    EXPECT_EQ(outside.dialogs.messages, (std::vector<ShownMessage>{complaint, complaint}));
    ASSERT_EQ(outside.dialogs.prompts.size(), 4U);
    EXPECT_EQ(outside.dialogs.prompts[3], (ShownPrompt{"x = ?", "Enter a value for x", "2"}));
}

TEST(EvaluateProblem, DividesByZeroWhereTheAnswerDoes) {
    PlainPlatform outside;
    outside.dialogs.answers = {"0"};
    startText(103, "x^-2");
    EXPECT_EQ(faultOf([] { EvaluateProblem(); }), 11);
}

// --- limits ------------------------------------------------------------------------------------

// A text of factors that outgrows the token buffer by a hundred characters is cut; that stays.
TEST(FindPrimeFactors, CountsAllOfThemWhereTheirLineIsCut) {
    const Recorded steps = solveText(83, "256^8");
    EXPECT_EQ(steps.lines[2], "2*2*2*2*2*2*2*2*2");
    EXPECT_EQ(steps.last(), "2^64^");
}

}  // namespace
}  // namespace ordwise::test
