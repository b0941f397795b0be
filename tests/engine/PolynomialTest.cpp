// The chains of the topics: expand, evaluate, find primes. Whole solutions with all their notes
// stand with the cases; here are the ends of many, and what leads there by an unusual way.
#include "FaultOf.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

using Lines = std::vector<std::string>;

struct Ending {
    const char* text;
    const char* last;
};

// What the random problems of the invariants do not reach: powers of groups, many changes at one level,
// negative exponents before a group, letters behind the power of a number.
TEST(ExpandPolynomial, EndsInTheSimplestForm) {
    const Ending cases[] = {
        {"2(3^2+1)^2", "200"},    {"(x-3)^3", "x^3^-9x^2^+27x-27"},
        {"2^-3*(1-3)", "-#1/4#"}, {"2*(3+4)+2*(1+2)+3*(2+1)+4*(5-2)+2*(1+1)+3*(1+1)", "51"},
        {"2^3(x+1)", "8x+8"},     {"x^-2(x+1)", "#1/x#+#1/x^2^#"},
        {"x^-1*x", "1"},          {"2^4x-8", "16x-8"},
        {"8^3x/10", "#256x/5#"},  {"7/3-6^3", "-#641/3#"},
    };
    for (const Ending& one : cases) EXPECT_EQ(solveText(102, one.text).last(), one.last) << one.text;
    EXPECT_EQ(solveText(150, "3+7^2x^-1").last(), "#49/x#+3");
}

TEST(ExpandPolynomial, MultipliesDecimalsAsTheyPrint) {
    EXPECT_EQ(solveText(91, "8.1*85").lines[1], "688.5");
    EXPECT_EQ(solveText(120, "254*4*9.22").lines[2], "9367.52");
}

// --- roots and primes --------------------------------------------------------------------------

TEST(FindPrimeFactors, HasNothingToSayOfAPrimeAOneOrAZero) {
    for (const char* text : {"7", "1", "0"}) EXPECT_EQ(solveText(83, text).lines.size(), 1U) << text;
}

// --- evaluation --------------------------------------------------------------------------------

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
