// Tokens to store, and what holds of the store between parses.
#include "FaultOf.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

// Token text into the store, without a step.
void parse(const std::string& text, int side = 0) {
    ws = Workspace();
    for (const char c : text) {
        if (!IsLetter(std::string(1, c))) continue;
        ws.InputTokens.set(ws.InputLast, std::string(1, c));
        ws.InputLast += 1;
    }
    ws.TokenLast = static_cast<int>(text.size());
    ExplodeTokens(text);
    ws.CurrentSide = side;
    CommitStep({.silent = true});
}

const ExprTerm& term(int index, int depth = 0, int group = 0) {
    return termOf(depth, group, index);
}

struct TermRow {
    const char* text;
    float numerator;
    float denominator;
    const char* numText;
    const char* denText;
    const char* fractionText;
};

TEST(ParseExpression, ReadsATerm) {
    const TermRow rows[] = {
        {"+x", 1, 1, "x", "", ""},           {"-x", -1, 1, "x", "", ""},    {"-3x", -3, 1, "x", "", ""},
        {"-1x", -1, 1, "x", "", ""},         {"+3/4", 3, 4, "", "", "3/4"}, {"-3/4", -3, 4, "", "", "3/4"},
        {"+3/x", 3, 1, "", "x", ""},         {"-x/2", -1, 2, "x", "", ""},  {"+3x^2y/4", 3, 4, "x^2y", "", ""},
        {"-9x^-2/6", -9, 6, "x^-2", "", ""}, {"+3~5", 3, 1, "~5", "", ""},  {"-~8", -1, 1, "~8", "", ""},
        {"+2^3", 2, 1, "^3", "", ""},        {"+2.5", 2.5F, 1, "", "", ""}};
    for (const TermRow& row : rows) {
        parse(row.text);
        ASSERT_EQ(ws.TermLast[0][0], 1) << row.text;
        EXPECT_EQ(term(1).numerator, row.numerator) << row.text;
        EXPECT_EQ(term(1).denominator, row.denominator) << row.text;
        EXPECT_EQ(term(1).numText, row.numText) << row.text;
        EXPECT_EQ(term(1).denText, row.denText) << row.text;
        EXPECT_EQ(term(1).fractionText, row.fractionText) << row.text;
    }
}

TEST(ParseExpression, TakesTheFactorInFrontOutOfTheOuterGroup) {
    parse("-3x(2x+1)-4");
    EXPECT_EQ(ws.MaxDepth, 1);
    EXPECT_EQ(ws.TermLast[0][0], 1);
    EXPECT_EQ(term(1).numerator, -4.0F);
    EXPECT_EQ(term(1).numText, "") << "nothing of the factor may stay in the slot";
    const ExprGroup& group = groupOf(1, 0);
    EXPECT_EQ(ws.TermLast[1][0], 2);
    EXPECT_EQ(group.prefixCoef, -3.0F);
    EXPECT_EQ(group.prefixNumerator, -3.0F);
    EXPECT_EQ(group.prefixText, "x");
    EXPECT_EQ(groupText(1, 0), "+2x+1");
    EXPECT_EQ(textBefore(group), "-3x(");
    EXPECT_EQ(textFrom(group), ")-4");
}

TEST(ParseExpression, ChainsGroupsThatStandSideBySide) {
    parse("(a)(b)");
    EXPECT_EQ(groupOf(1, 0).nextGroup, 1);
    EXPECT_EQ(groupOf(1, 1).nextGroup, -1);
    EXPECT_EQ(ws.GroupTable[1].lastGroup, 1);
    parse("(a)+(b)");
    EXPECT_EQ(groupOf(1, 0).nextGroup, -1);
    EXPECT_EQ(ws.GroupTable[1].lastGroup, 1);
    // The sign inside the first group is no sign of the second.
    parse("(-a)(b)");
    EXPECT_EQ(groupOf(1, 1).prefixCoef, 1.0F);
}

TEST(ParseExpression, ReadsThePowerOfAGroup) {
    parse("(x+1)^2-3");
    EXPECT_EQ(groupOf(1, 0).power, 2.0F);
    EXPECT_EQ(ws.TokenBuffer[groupOf(1, 0).powerIndex], "-");
    parse("(x)^-2(y)");
    EXPECT_EQ(groupOf(1, 0).power, -2.0F);
    EXPECT_EQ(ws.TokenBuffer[groupOf(1, 0).powerIndex], "(");
    EXPECT_EQ(ws.GroupTable[1].lastGroup, 1) << "the token behind a negative exponent is read";
    parse("|x|^2");
    EXPECT_EQ(groupOf(1, 0).power, 2.0F);
    EXPECT_TRUE(groupOf(1, 0).isAbsolute);
}

TEST(ParseExpression, LeavesTheOtherSideReadable) {
    parse("2x+3=7");
    EXPECT_EQ(ws.TermLast[0][0], 2);
    EXPECT_EQ(ws.TokenBuffer[groupOf(0, 0).closeIndex], "=");
    ws.CurrentSide = 1;
    CommitStep({.silent = true});
    EXPECT_EQ(ws.TermLast[0][0], 1);
    EXPECT_EQ(term(1).numerator, 7.0F);
    EXPECT_EQ(ws.TokenBuffer[groupOf(0, 0).openIndex], "=");
    EXPECT_EQ(groupText(0, 0), "+7");
    EXPECT_EQ(ws.TermTable[0][0][0][1].numerator, 2.0F);
    EXPECT_EQ(ws.TermTable[0][0][0][2].numerator, 3.0F);
}

TEST(ParseExpression, ForgetsEverythingOfALongerText) {
    parse("1+2x+3(4x+5(6+7))(8)+|9|");
    ExplodeTokens("+x");
    CommitStep({.silent = true});
    EXPECT_EQ(ws.MaxDepth, 0);
    EXPECT_EQ(ws.TermLast[0][0], 1);
    EXPECT_EQ(ws.TermLast[1][0], 0);
    EXPECT_EQ(ws.GroupTable[1].lastGroup, 0);
    EXPECT_EQ(term(1).numerator, 1.0F);
    EXPECT_FALSE(ws.GroupProduct[0][0]);
}

TEST(ParseExpression, CountsTheGroupsOfDeepLevelsAfresh) {
    parse("((((((((1+2+3))))))))");
    for (int commit = 0; commit < 3; ++commit) CommitStep({.silent = true});
    EXPECT_EQ(ws.MaxDepth, 8);
    EXPECT_EQ(ws.GroupTable[8].lastGroup, 0);
    EXPECT_EQ(ws.TermLast[8][0], 3);
}

// --- limits

std::string repeated(const std::string& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += piece;
    return text;
}

void expectFreshStart() {
    ResetEngine(true);
    EXPECT_EQ(solveText(91, "2+3").last(), "5");
}

TEST(Limits, OfTheTablesAreTheSubscriptFault) {
    EXPECT_EQ(faultOf([] { parse(repeated("+1", 100)); }), 0);
    EXPECT_EQ(faultOf([] { parse(repeated("+1", 101)); }), 9);
    expectFreshStart();
    EXPECT_EQ(faultOf([] { parse(repeated("(", 20) + "1" + repeated(")", 20)); }), 0);
    EXPECT_EQ(faultOf([] { parse(repeated("(", 21) + "1" + repeated(")", 21)); }), 9);
    expectFreshStart();
    EXPECT_EQ(faultOf([] { parse("1)"); }), 9);
    expectFreshStart();
}

TEST(Limits, OfGroupsShowAtTheNextParseAndNotAfterIt) {
    parse(repeated("+(1)", 46));
    EXPECT_EQ(faultOf([] { CommitStep({.silent = true}); }), 0) << "lastGroup 45";
    parse(repeated("+(1)", 47));
    EXPECT_EQ(faultOf([] { CommitStep({.silent = true}); }), 9) << "lastGroup 46";
    EXPECT_EQ(faultOf([] { ResetStore(false); }), 0) << "the fault leaves a clean store";
    parse(repeated("+(1)", 51));
    EXPECT_EQ(faultOf([] { ResetStore(true); }), 0) << "a new problem never faults";
    EXPECT_EQ(faultOf([] { parse(repeated("+(1)", 52)); }), 9);
    expectFreshStart();
}

TEST(Store, AnswersWithAFreshRecordWhereNothingWasWritten) {
    ws = Workspace();
    const ExprTerm& untouched = ws.TermTable[1][20][50][100];
    EXPECT_EQ(untouched.numerator, 1.0F);
    EXPECT_EQ(untouched.varExp[2], 1.0F);
    EXPECT_EQ(untouched.nextVar, 1);
    EXPECT_EQ(ws.TermTable[1].used(), 0) << "reading makes nothing";
    EXPECT_EQ(ws.GroupTable[20][100].nextGroup, -1);
}

TEST(Store, FaultsPastEachBound) {
    ws = Workspace();
    const auto reads = [](int side, int depth, int group, int index) {
        return faultOf([=] { (void)ws.TermTable[side][depth][group][index]; });
    };
    EXPECT_EQ(reads(1, 20, 50, 100), 0);
    EXPECT_EQ(reads(2, 0, 0, 0), 9);
    EXPECT_EQ(reads(0, 21, 0, 0), 9);
    EXPECT_EQ(reads(0, 0, 51, 0), 9);
    EXPECT_EQ(reads(0, 0, 0, 101), 9);
    EXPECT_EQ(reads(0, 0, 0, -1), 9);
    EXPECT_EQ(faultOf([] { (void)ws.GroupTable[0][101]; }), 9);
    EXPECT_EQ(faultOf([] { (void)ws.GroupTable[21]; }), 9);
    EXPECT_EQ(faultOf([] { (void)ws.TermLast[0][51]; }), 9);
    EXPECT_EQ(faultOf([] { (void)ws.GroupProduct[101]; }), 9);
}

}  // namespace
}  // namespace ordwise::test
