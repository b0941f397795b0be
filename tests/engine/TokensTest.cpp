// Text to tokens: exploding, merging, signs, and what enters from the paper.
#include "FaultOf.hpp"
#include "SolveText.hpp"
#include "TextTools.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

struct Row {
    const char* text;
    const char* tokens;  // separated by blanks
};

// The slots from 0 to TokenLast, the empty ones left out.
std::string tokens() {
    std::vector<std::string> filled;
    for (int i = 0; i <= ws.TokenLast; ++i) {
        if (!ws.TokenBuffer[i].empty()) filled.push_back(ws.TokenBuffer[i]);
    }
    return joined(filled, " ");
}

void write(const std::vector<std::string>& slots) {
    ws = Workspace();
    for (int i = 0; i < static_cast<int>(slots.size()); ++i) ws.TokenBuffer.set(i, slots[static_cast<std::size_t>(i)]);
    ws.TokenLast = static_cast<int>(slots.size());
}

TEST(ExplodeTokens, CutsATextThatGrowsByMoreThanAHundred) {
    ws = Workspace();
    ExplodeTokens("+12");
    const std::string longer(150, '1');
    ExplodeTokens(longer);
    EXPECT_EQ(ws.TokenLast, 4) << "the end of the text before";
    EXPECT_EQ(ws.TokenBuffer[103], "1");
    EXPECT_EQ(ws.TokenBuffer[104], "");
}

TEST(MergeNumbers, JoinsWhatBelongsToANumber) {
    const Row rows[] = {{"3/4+1", "3/4 + 1"},
                        {"12.5*4", "12.5 * 4"},
                        {"3/4x", "3 / 4 x"},
                        {"3/x", "3 / x"},
                        {"(a+1)/2", "( a + 1 ) / 2"},
                        {"x^2/3", "x ^ 2 / 3"},
                        {"9x^-2/6", "9 x ^ - 2 / 6"},
                        {"1/2=x", "1/2 = x"},
                        {"[1/2]*3/3", "[ 1/2 ] * 3/3"},
                        {"1/2/3/4", "1/2 / 3/4"},
                        {"3/12+1", "3/12 + 1"},
                        {"5~18-~8", "5~18 - ~8"},
                        {"3.5E+12+1", "3.5E+12 + 1"},
                        {"2E-3x", "2E-3 x"}};
    for (const Row& row : rows) {
        ws = Workspace();
        ExplodeTokens(row.text);
        MergeNumbers();
        EXPECT_EQ(tokens(), row.tokens) << row.text;
    }
}

TEST(MergeNumbers, TakesCellsOfManyDigits) {
    write({"5", "~", "18", "-", "~", "8"});
    MergeNumbers();
    EXPECT_EQ(tokens(), "5~18 - ~8");
}

TEST(NormaliseSigns, GivesEveryTermASignAndLeavesSlot0Empty) {
    const Row rows[] = {{"x=3", "+ x = + 3"},
                        {"-x=-3", "- x = - 3"},
                        {"(x)(-1)", "+ ( + x ) ( - 1 )"},
                        {"=[-x]", "+ = [ - x ]"},
                        {"2*(x+1)", "+ 2 ( + x + 1 )"},
                        {"2*x", "+ 2 * x"},
                        {"2^3*(x)", "+ 2 ^ 3 * ( + x )"},
                        {"|3-8|*2", "+ | + 3 - 8 | * 2"},
                        {"|5|/2+|-1|", "+ | + 5 | / 2 + | - 1 |"}};
    for (const Row& row : rows) {
        ws = Workspace();
        ExplodeTokens(row.text);
        NormaliseSigns();
        EXPECT_EQ(tokens(), row.tokens) << row.text;
        EXPECT_EQ(ws.TokenBuffer[0], "");
        EXPECT_EQ(ws.TokenBuffer[ws.TokenLast], "") << "TokenLast stands behind the text";
        EXPECT_NE(ws.TokenBuffer[ws.TokenLast - 1], "");
    }
}

TEST(NormaliseSigns, KeepsTheStarBehindAFraction) {
    write({"1/2", "*", "(", "x", ")"});
    NormaliseSigns();
    EXPECT_EQ(tokens(), "+ 1/2 * ( + x )");
}

TEST(NormaliseSigns, MayRunAgainAfterAMerge) {
    startText(102, "9(3x^2+8^2)-3/4+4x");
    const std::string once = tokens();
    EXPECT_EQ(once, "+ 9 ( + 3 x ^ 2 + 8 ^ 2 ) - 3/4 + 4 x");
    CommitStep({.silent = true});
    EXPECT_EQ(tokens(), once);
    EXPECT_EQ(ws.TokenLast, 19);
}

// Nothing writes two operators in a row; a text that has them loses the second.
TEST(NormaliseSigns, DoesNotWriteASecondOperator) {
    write({"3", "+", "-", "2"});
    NormaliseSigns();
    EXPECT_EQ(tokens(), "+ 3 + 2 2");
}

TEST(CanonToTokens, RefusesATypedDivisionByZero) {
    for (const char* text : {"5/0", "-5/0", "5/0+1", "1+5/0*2", "5/00", "5/0.0", "5/0.00-1"})
        EXPECT_EQ(faultOf([&] { startText(91, text); }), 11) << text;
    for (const char* text : {"5/0.5", "0/5", "10/20", "1/0.01+1"})
        EXPECT_EQ(faultOf([&] { startText(91, text); }), 0) << text;
}

TEST(CanonToTokens, TellsAPlainSumFromAPolynomial) {
    startText(91, "2+3*4");
    EXPECT_TRUE(ws.PlainSum);
    for (const char* text : {"x+1", "2(3+4)", "(1+2)^2", "(1+2)(3)"}) {
        startText(102, text);
        EXPECT_FALSE(ws.PlainSum) << text;
    }
}

TEST(ExpandExponential, DropsTheSignBehindTheE) {
    EXPECT_EQ(ExpandExponential("3.5E+02"), "350");
    EXPECT_EQ(ExpandExponential("2E-3"), "2000");
    EXPECT_EQ(ExpandExponential("7"), "7");
}

TEST(FractionToDecimal, LeavesWhatIsNoFraction) {
    EXPECT_EQ(FractionToDecimal("3/4", false), "0.75");
    EXPECT_EQ(FractionToDecimal("2/3", true), "0.67");
    EXPECT_EQ(FractionToDecimal("5/0", false), "5/0");
    EXPECT_EQ(FractionToDecimal("12", true), "12");
}

TEST(MaskValue, ReadsABinaryNumber) {
    EXPECT_EQ(MaskValue("00000000000001"), 1);
    EXPECT_EQ(MaskValue("10000000000000"), 8192);
    EXPECT_EQ(MaskValue("00x00000000101"), 5);
}

}  // namespace
}  // namespace ordwise::test
