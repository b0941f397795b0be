#include "FractionSolvers.hpp"

#include "NumberText.hpp"
#include "SolutionOf.hpp"

#include <cstdlib>

namespace ordwise::test {
namespace {

TEST(SimplifyFraction, WritesNumbersAnew) {
    EXPECT_EQ(answerOf([] { SimplifyFraction("0/7", true); }), "0");
    EXPECT_EQ(answerOf([] { SimplifyFraction("04/7", true); }), "#4/7#");
}

// Tries every divisor from 2 to the numerator and keeps the last.
std::string plainSimplify(int top, int bottom, int& divisor) {
    divisor = bottom == 0 ? -1 : 0;
    if (bottom == 0) return "";
    if (top % bottom == 0) return textOf(top / bottom);
    for (int d = 2; d <= std::abs(top); ++d) {
        if (top % d == 0 && bottom % d == 0) divisor = d;
    }
    const int d = divisor == 0 ? 1 : divisor;
    return textOf(top / d) + "/" + textOf(bottom / d);
}

TEST(SimplifyFractionText, AgreesWithThePlainSearch) {
    for (int top = -40; top <= 60; ++top) {
        for (int bottom = 0; bottom <= 60; ++bottom) {
            int divisor = 0;
            const std::string plain = plainSimplify(top, bottom, divisor);
            EXPECT_EQ(SimplifyFractionText(textOf(top) + "/" + textOf(bottom)), plain);
            EXPECT_EQ(ws.LargestCommonDivisor, divisor) << top << '/' << bottom;
        }
    }
    EXPECT_EQ(SimplifyFractionText("2147483646/2147483647"), "2147483646/2147483647");
    EXPECT_EQ(SimplifyFractionText("1.5/4.5"), "1.5/4.5");
}

TEST(DecimalToFraction, MovesThePoint) {
    EXPECT_EQ(answerOf([] { DecimalToFraction("7.", true); }), "7");
    EXPECT_EQ(solutionOf([] { DecimalToFraction("0.37", false); }).lines[0], "The fractional notation of 0.37 is:");
    EXPECT_EQ(DecimalToFractionText("-.25"), "-25/100");
    EXPECT_EQ(DecimalToFractionText("12"), "12/1");
    EXPECT_EQ(solutionOf([] { DecimalToFraction(".", true); }).fault, 13);
}

TEST(FractionToDecimal, LeavesADecimalAlone) {
    EXPECT_EQ(FractionToDecimalText("5"), "5");
    EXPECT_EQ(solutionOf([] { FractionToDecimal("5"); }).last(), "#5# is already in decimal form.");
}

}  // namespace
}  // namespace ordwise::test
