// Like terms, fractions and decimals, step by step. Whole solutions of the common problems stand
// with the cases; here are the sentences of the rarer rules and the places where rules meet.
#include "FaultOf.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

using Lines = std::vector<std::string>;

Recorded decimals(int topic, const std::string& text, int places = 2) {
    startText(topic, text);
    ws.UseFractions = false;
    ws.RoundPlaces = places;
    ExpandPolynomial();
    return recorded();
}

// A step that one rule makes: the line before it, the line, its note.
struct Rule {
    int topic;
    const char* text;
    const char* line;
    const char* note;
};

void expectSecondStep(const Rule& rule, const Recorded& steps) {
    ASSERT_GE(steps.lines.size(), 2U) << rule.text;
    EXPECT_EQ(steps.lines[1], rule.line);
    EXPECT_EQ(steps.notes[1], rule.note) << rule.text;
}

TEST(TermRules, ExplainTheirRewrite) {
    const Rule rules[] = {
        {102, "3x-2x", "x", "Subtract 2x from 3x to form the new term (x)."},
        {102, "2x-2x", "0", "Subtract 2x from 2x to form the new term (0)."},
        {102, "-3x-2x", "-5x", "Subtract 2x from -3x to form the new term (-5x)."},
        {102, "x^2/2+x^2/3", "#5x^2^/6#", "Add #x^2^/3# and #x^2^/2# to form the new term (#5x^2^/6#)."},
        {102, "4x/6", "#2x/3#", "Reduce fraction by dividing the numerator and denominator by 2."},
        {102, "3x/1", "3x", "Reduce fraction by dividing the numerator and denominator by 1."},
        {102, "x+4/6", "x+#2/3#", "Reduce #4/6# by dividing the numerator and denominator by 2."},
        {102, "x+0/6", "x+0", "0 divided by any number equals 0."},
        {102, "2x+0", "2x", "Add 0 and 2x to form the new term (2x)."},
        {102, "0x-3", "-3", "Add 0x and -3 to form the new term (-3)."},
        {102, "x^0+x", "x+1", "Any variable or number raised to the 0th power is 1."},
        {91, "4/6", "#2/3#", "Reduce #4/6# by dividing the numerator and denominator by 2. ( #4/6# = #2*2/2*3# )"},
        {91, "-6/3", "-2", "Reduce #-6/3# by dividing the numerator and denominator by 3. ( #-6/3# = #-3*2/3*1# )"},
        {91, "0/6", "0", "0 divided by any number equals 0."},
        {91, "2.5/3", "#5/6#", "Convert the decimal number to a fraction."},
        {91, "0.25", "#1/4#", "Convert the decimal number to a fraction."},
        {91, "27/5-0", "#27/5#", "Subtract 0 from #27/5# to form the new term (#27/5#)."},
        {91, "-5-3", "-8", "Subtract 3 from -5 to form the new term (-8)."},
        {91, "5-5", "0", "Subtract 5 from 5 to form the new term (0)."},
    };
    for (const Rule& rule : rules) expectSecondStep(rule, solveText(rule.topic, rule.text));
}

TEST(TermRules, ExplainDecimals) {
    const Rule rules[] = {
        {91, "1/2", "0.5", "Convert #1/2# to decimal notation by dividing the numerator by the denominator. (0.5)."},
        {91, "-4/6", "-0.67",
         "Convert #-4/6# to decimal notation by dividing the numerator by the denominator. (-0.67)."},
        {91, "5/0.5", "10", "Convert #5/0.5# to decimal notation by dividing the numerator by the denominator (10)."},
        {102, "x+1/2", "x+0.5",
         "Convert #1/2# to decimal notation by dividing the numerator by the denominator (0.5)."},
        {102, "3x/4", "0.75x",
         "Convert #3x/4# to decimal notation by dividing the numerator by the denominator (0.75)."},
    };
    for (const Rule& rule : rules) expectSecondStep(rule, decimals(rule.topic, rule.text));
}

TEST(TermRules, MakeNoMoreThanSixteenBins) {
    startText(103, "x");
    std::string terms;
    for (int exponent = 2; exponent <= 16; ++exponent) terms += "+x^" + std::to_string(exponent);
    ExplodeTokens(terms);
    CommitStep({.silent = true});
    EXPECT_EQ(faultOf([] { ReduceGroup(0, false, false); }), 0) << "fifteen shapes and the numbers";
    ExplodeTokens(terms + "+x^17");
    CommitStep({.silent = true});
    EXPECT_EQ(faultOf([] { ReduceGroup(0, false, false); }), 9);
}

TEST(TermRules, KeepProductsTogether) {
    startText(82, "2*3+~5+4*5");
    ReduceGroup(0, false, false);
    EXPECT_EQ(ImplodeTokens(), "+2*3+~5+4*5");
}

TEST(TermRules, KeepNumbersBesideRootsInTheirPlace) {
    EXPECT_EQ(solveText(82, "2~3+5-~3+4").lines, (Lines{"2~3~+5-~3~+4", "~3~+5+4", "~3~+9"}));
}

TEST(TermRules, LeaveLongFractionsExact) {
    EXPECT_EQ(solveText(102, "x/997+x/991").last(), "#1988x/988027#");
    EXPECT_EQ(solveText(91, "1234/5679+1").last(), "#6913/5679#");
    EXPECT_EQ(solveText(91, "85.51*174").last(), "#743937/50#");
    EXPECT_EQ(solveText(91, "0.33*0.33*0.33").last(), "#35937/1000000#");
}

TEST(OrderedPolynomialText, PutsHigherExponentsFirst) {
    startText(102, "3+x+x^3-2x^2+x");
    EXPECT_EQ(OrderedPolynomialText(0), "+x^3-2x^2+x+x+3");
    startText(150, "x^-2+2+x");
    EXPECT_EQ(OrderedPolynomialText(0), "+x+x^-2+2") << "a negative exponent is no degree";
    startText(101, "3+x=2");
    EXPECT_EQ(OrderedPolynomialText(0), "+x+3=+2");
}

TEST(LeadingTermHint, IsGivenOnce) {
    const Recorded steps = solveText(102, "3+x");
    EXPECT_EQ(steps.lines, (Lines{"3+x", "x+3"}));
    EXPECT_EQ(steps.notes[1], leadingTermHint);
    ExplodeTokens("+4+x");
    ws.CurrentNote = "Another polynomial.";
    CommitStep();
    ReduceExpression(0);
    EXPECT_EQ(recorded().lines.size(), 3U) << "the second time the order changes in silence";
}

TEST(LeadingTermHint, IsNotGivenInSilence) {
    startText(102, "3+x");
    ReduceExpression(0, true);
    EXPECT_EQ(recorded().lines, (Lines{"3+x"}));
    EXPECT_EQ(ImplodeTokens(), "+x+3");
}

TEST(ReduceExpression, FillsWhatCancels) {
    startText(101, "x-x=5");
    ReduceExpression(0);
    EXPECT_EQ(ImplodeTokens(), "+0=+5");
    EXPECT_EQ(solveText(91, "3-3-0").lines, (Lines{"3-3-0", "0"}));
    startText(121, "2(3-3)");
    ReduceExpression(0);
    EXPECT_EQ(ImplodeTokens(), "+2(+0)");
}

TEST(ReduceExpression, ChangesNothingInSimplestForm) {
    for (const char* text : {"7", "-7", "3/4", "0"}) EXPECT_EQ(solveText(91, text).lines.size(), 1U) << text;
    EXPECT_EQ(solveText(102, "x^2+2x+1").lines.size(), 1U);
}

TEST(ReduceExpression, SolvesTheSidesOfAnEquationInSilence) {
    startText(101, "2x+3x=4+5");
    ws.CurrentSide = 1;
    CommitStep({.silent = true});
    ReduceExpression(0, true);
    EXPECT_EQ(ImplodeTokens(), "+2x+3x=+9");
    EXPECT_EQ(recorded().lines.size(), 1U);
}

TEST(PrePass, MovesOneNegativeExponentAtATime) {
    startText(150, "x^-2+x^-3");
    ReduceExpression(0);
    EXPECT_EQ(recorded().lines, (Lines{"x^-2^+x^-3^", "#1/x^2^#+x^-3^", "#1/x^2^#+#1/x^3^#"}));
    EXPECT_EQ(recorded().notes[2],
              "Remove the negative exponent by moving the term to the denominator (ex. x^-3^=#1/x^3^#).");
}

// --- fractions

TEST(FractionArithmetic, TakesProductsAndQuotientsFromLeftToRight) {
    EXPECT_EQ(solveText(76, "1/2/3/4*5/6").lines,
              (Lines{"#1/2#{#3/4#*#5/6#", "#1/2#*#4/3#*#5/6#", "#4/6#*#5/6#", "#20/36#", "#5/9#"}));
    EXPECT_EQ(solveText(76, "1/2*3").lines, (Lines{"#1/2#*3", "#3/2#"}));
    EXPECT_EQ(solveText(76, "1/2/3").lines, (Lines{"#1/2#{3", "#1/2#*#1/3#", "#1/6#"}));
    EXPECT_EQ(solveText(76, "-1/2*3/4+1").last(), "#5/8#");
}

TEST(FractionArithmetic, CombinesOnePairAStep) {
    const Recorded steps = solveText(76, "1/3+1/2-2/3+1/2");
    EXPECT_EQ(steps.lines, (Lines{"#1/3#+#1/2#-#2/3#+#1/2#", "-#1/3#+#1/2#+#1/2#", "#2/2#-#1/3#", "1-#1/3#",
                                  "[#1/1#]*#3/3#-[#1/3#]*#1/1#", "#3/3#-#1/3#", "#(3-1)/3#", "#2/3#"}));
    EXPECT_EQ(steps.notes[1], "Since #1/3# and #2/3# have common denominators, combine to form #-1/3#.");
    EXPECT_EQ(steps.notes[3], "Reduce fractions.");
}

TEST(FractionArithmetic, CombinesWholeNumbers) {
    EXPECT_EQ(solveText(76, "3+1/2-3").lines, (Lines{"3+#1/2#-3", "#1/2#"}));
    EXPECT_EQ(recorded().notes[1], "Combine 3 and -3 to form the new term (0).");
    EXPECT_EQ(solveText(76, "2/4+1/2").lines, (Lines{"#2/4#+#1/2#", "#1/2#+#1/2#", "#2/2#", "1"}));
    EXPECT_EQ(solveText(76, "6/3+1").last(), "3");
}

TEST(FractionArithmetic, EndsAtZero) {
    const Recorded steps = solveText(76, "1/3-1/2+1/6");
    EXPECT_EQ(steps.last(), "0");
    EXPECT_EQ(steps.lines[steps.lines.size() - 2], "#0/6#");
    EXPECT_EQ(steps.notes.back(), "0 divided by any number equals 0.");
    EXPECT_EQ(solveText(76, "0/5+0/3").last(), "0");
    EXPECT_EQ(solveText(76, "0/5*1/2").last(), "0");
}

TEST(FractionArithmetic, WorksInsideBarsAndParentheses) {
    EXPECT_EQ(solveText(120, "|1/2-3/4|+1").last(), "#5/4#");
    EXPECT_EQ(solveText(120, "|1/2-3/4|+1").lines[3], "|#(2-3)/4#|+1");
}

TEST(FractionArithmetic, OverflowsPastItsIntegers) {
    EXPECT_EQ(faultOf([] { (void)solveText(76, "1500000000/7+1500000000/7"); }), 6) << "a total of 32 bits";
    EXPECT_EQ(faultOf([] { (void)solveText(76, "1/99991+1/99989"); }), 6) << "a denominator of 32 bits";
    EXPECT_EQ(faultOf([] { (void)solveText(76, "1/2/0/5"); }), 11);
    EXPECT_EQ(solveText(76, "1/2+1/3").last(), "#5/6#") << "and the next problem is solved";
}

TEST(FractionArithmetic, ListsNoMoreThanTwentyOneFractions) {
    const auto sum = [](int count) {
        std::string text = "1/2";
        for (int i = 1; i < count; ++i) text += i % 2 == 0 ? "+1/2" : "+1/3";
        return text;
    };
    startText(76, sum(22));
    EXPECT_EQ(faultOf([] { CombineByCommonDenominator(0); }), 9);
    startText(76, sum(12));
    EXPECT_EQ(faultOf([] { CombineByCommonDenominator(0); }), 0);
    EXPECT_EQ(recorded().last(), "5");
}

// A text may grow by a hundred characters a step; this is the shortest problem that reaches the limit.
// The line is cut, and the lines behind it, which are written anew, are right again.
TEST(FractionArithmetic, CutsALineThatGrowsTooFast) {
    const Recorded steps = solveText(76, "1/9+1/79+1/83+1/89+1/97");
    EXPECT_EQ(steps.lines[1], "[#1/9#]*56606");
    EXPECT_EQ(steps.lines[4], "#80169913/509459229#");
}

// --- decimals

TEST(Decimals, ConvertOneFractionAStepAndAddThem) {
    EXPECT_EQ(decimals(91, "1/2+1/3").lines, (Lines{"#1/2#+#1/3#", "0.5+#1/3#", "0.5+0.33", "0.83"}));
    EXPECT_EQ(decimals(91, "4/2+1/2").lines, (Lines{"#4/2#+#1/2#", "2+#1/2#", "2+0.5", "2.5"}));
    EXPECT_EQ(decimals(102, "x/2+x/3").last(), "0.83x");
}

TEST(Decimals, AreRoundedAtTheEndOnly) {
    const Recorded steps = decimals(91, "0.25*0.25");
    EXPECT_EQ(steps.lines, (Lines{"0.25*0.25", "0.0625", "0.06"}));
    EXPECT_EQ(steps.notes[2], "Round to the nearest hundredth (two digits after the decimal point).");
    EXPECT_EQ(decimals(91, "0.25+0.25", 1).last(), "0.5");
    EXPECT_EQ(decimals(91, "0.5+0.4", 0).last(), "1");
    EXPECT_EQ(decimals(91, "1/7+0.1", 5).last(), "0.24286");
}

}  // namespace
}  // namespace ordwise::test
