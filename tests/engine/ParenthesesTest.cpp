// Freeing, distributing, writing out and wrapping: what stands around a parenthesis.
#include "SolveText.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace ordwise::test {
namespace {

struct Rewrite {
    const char* before;
    const char* after;
};

TEST(RemoveParentheses, FreesAGroupThatNothingActsOn) {
    const Rewrite cases[] = {
        {"(x+2)", "+x+2"},        {"2+(-x+1)", "+2-x+1"},     {"2^3*(3)", "+2^3*3"},  {"(3)*2", "+3*2"},
        {"(x)-3(x)", "+x-3(+x)"}, {"((1+2)+3)", "+(+1+2+3)"}, {"((3)*2)", "+(+3*2)"},
    };
    for (const Rewrite& one : cases) {
        startText(102, one.before);
        EXPECT_TRUE(RemoveParentheses()) << one.before;
        EXPECT_EQ(ImplodeTokens(), one.after) << one.before;
        EXPECT_EQ(ws.CurrentNote, "Remove the parenthesis.");
    }
}

TEST(RemoveParentheses, KeepsAGroupThatIsMultipliedDividedOrRaised) {
    for (const char* text : {"-(x+1)", "3(x+1)", "x(2)", "2^3*(1+2)", "2^3*(-4)", "(x+1)*3", "(x+1)^2", "(x+1)(x+2)",
                             "((1+2)*3)", "(x+1)/2"}) {
        startText(102, text);
        const std::string before = ImplodeTokens();
        EXPECT_TRUE(RemoveParentheses()) << text;
        EXPECT_EQ(ImplodeTokens(), before) << text;
    }
}

TEST(RemoveParentheses, PutsAStarBetweenAFractionAndWhatItMultiplies) {
    startText(102, "3/4*(x)");
    dropStarInFront(1, 0);
    EXPECT_TRUE(RemoveParentheses(true));
    EXPECT_EQ(ImplodeTokens(), "+3/4(+x)");
    EXPECT_TRUE(RemoveParentheses());
    EXPECT_EQ(ImplodeTokens(), "+3/4*x");

    startText(102, "3/4*(-x)");
    dropStarInFront(1, 0);
    EXPECT_TRUE(RemoveParentheses());
    EXPECT_EQ(ImplodeTokens(), "+3/4(-x)");
}

TEST(RemoveParentheses, LeavesTokensAndStoreFitForTheNextRule) {
    startText(102, "(2x+1)*3");
    EXPECT_TRUE(RemoveParentheses());
    EXPECT_EQ(ws.TokenBuffer[groupOf(1, 0).closeIndex], ")");
    EXPECT_EQ(ws.TokenBuffer[groupOf(1, 0).closeIndex + 2], "3");
}

TEST(DistributeFactor, SaysWhatMultipliesWhat) {
    const Rewrite cases[] = {
        {"3(x+2)", "Multiply the 3 by each one of the terms inside the parenthesis."},
        {"x(x)", "Multiply the x by the term inside the parenthesis."},
        {"4-(x-2)", "Multiply the 1 by each one of the terms inside the parenthesis."},
        {"3x^2(x-2)", "Multiply the 3x^2^ by each one of the terms inside the parenthesis."},
    };
    for (const Rewrite& one : cases) {
        startText(102, one.before);
        DistributeFactor(1, 0);
        EXPECT_EQ(recorded().notes[1], one.after) << one.before;
    }
}

TEST(DistributeFactor, ReducesTheFactorFirst) {
    startText(102, "4/2*(x+1)");
    dropStarInFront(1, 0);
    DistributeFactor(1, 0);
    const std::vector<std::string> lines{"#4/2#*(x+1)", "2(x+1)", "(2x+2)", "2x+2"};
    EXPECT_EQ(recorded().lines, lines);
    EXPECT_EQ(recorded().notes[1], "Reduce the term in front of the parenthesis before multiplying.");
}

TEST(ExpandPrefixPower, WorksTheNumberOutBeforeItMultiplies) {
    startText(102, "5-2^3x(x+1)");
    EXPECT_TRUE(ExpandPrefixPower(0));
    const std::vector<std::string> lines{"5-2^3^x(x+1)", "5-2*2*2x(x+1)", "5-4*2x(x+1)", "5-8x(x+1)"};
    EXPECT_EQ(recorded().lines, lines);

    startText(102, "2^-2(x+1)");
    EXPECT_TRUE(ExpandPrefixPower(0));
    EXPECT_EQ(recorded().last(), "#1/4#(x+1)");

    startText(102, "2^0(x+1)");
    EXPECT_TRUE(ExpandPrefixPower(0));
    EXPECT_EQ(recorded().last(), "1(x+1)");
    EXPECT_EQ(recorded().notes.back(), "Any variable or number raised to the 0th power is 1.");
}

TEST(ExpandPrefixPower, LetsOtherFactorsBe) {
    for (const char* text : {"3(x+1)", "x^3(x+1)", "2^3*(x+1)", "2^3+(x+1)", "(x+1)"}) {
        startText(102, text);
        EXPECT_FALSE(ExpandPrefixPower(0)) << text;
        EXPECT_EQ(recorded().lines.size(), 1U) << text;
    }
}

TEST(OrderPolynomial, ReadsFactorsOfEveryKind) {
    struct Product {
        const char* text;
        const char* line;
        const char* note;
    };
    const Product cases[] = {
        {"3x^2*4x", "12x^3^", "Multiply 3x^2^ by 4x using the order of operations."},
        {"1/2*3/4", "#3/8#", "Multiply #1/2# by #3/4# using the order of operations."},
        {"x/2*3", "#3x/2#", "Multiply #x/2# by 3 using the order of operations."},
        {"x^-2*x^5", "x^3^", "Multiply x^-2^ by x^5^ using the order of operations."},
        {"2-0*5", "2+0", "Multiply 0 by 5 using the order of operations."},
        {"2^2*3", "4*3", "Multiply 2 by 2 using the order of operations."},
        {"2x*2^2", "4x*2", "Multiply 2x by 2 using the order of operations."},
    };
    for (const Product& one : cases) {
        startText(102, one.text);
        OrderPolynomial(0);
        const Recorded steps = recorded();
        const auto at = std::find(steps.notes.begin(), steps.notes.end(), one.note);
        ASSERT_NE(at, steps.notes.end()) << one.text;
        EXPECT_EQ(steps.lines[static_cast<std::size_t>(at - steps.notes.begin())], one.line);
    }
}

TEST(OrderPolynomial, ReadsNumbersInENotationAboveABar) {
    startText(91, "1");
    ExplodeTokens("+6.5E+13/9*2");
    CommitStep();
    OrderPolynomial(0);
    EXPECT_EQ(ImplodeTokens(), "+1.3E+14/9");
}

}  // namespace
}  // namespace ordwise::test
