// The judge is judged: what it calls equal and what it calls different, on both sides of each line
// that it draws.
#include "LineEquality.hpp"

#include <gtest/gtest.h>

namespace ordwise::exact {
namespace {

constexpr Rounding fractions{false, 2};
constexpr Rounding decimals{true, 2};

std::string nameOf(Relation relation) {
    switch (relation) {
        case Relation::Same: return "same";
        case Relation::Rounded: return "rounded";
        case Relation::Different: return "different";
        case Relation::Fewer: return "fewer";
        case Relation::More: return "more";
        case Relation::NoValue: return "no value";
        default: return "unknown";
    }
}

// "different x=2: 7, 9", "fewer x=-2: yes, no", "unknown: there is ..."
std::string told(const Comparison& comparison) {
    std::string all = nameOf(comparison.relation);
    if (!comparison.because.empty()) all += ": " + comparison.because;
    if (!comparison.evidence) return all;
    const Evidence& e = *comparison.evidence;
    for (const auto& [letter, value] : e.at) all += std::string(" ") + letter + "=" + value;
    if (e.before.empty()) return all + (e.beforeHolds ? " before" : "") + (e.lineHolds ? " line" : "");
    return all + ": " + e.before + ", " + e.line;
}

std::string compared(const char* before, const char* line, const Rounding& rounding = fractions) {
    if (std::string_view(before).find('=') != std::string_view::npos)
        return told(compareEquations(*readEquation(before), *readEquation(line), rounding));
    return told(compareExpressions(*readExpression(before), *readExpression(line), rounding));
}

TEST(LineEquality, OfNumbersIsExact) {
    EXPECT_EQ(compared("#1/3#+0.5", "#5/6#"), "same");
    EXPECT_EQ(compared("-3^2^", "9"), "different: -9, 9");
    EXPECT_EQ(compared("2^-2^", "#1/4#"), "same");
    EXPECT_EQ(compared("8/2/2", "2"), "same");
    EXPECT_EQ(compared("#1/2#{#3/4#*#4/5#", "#8/15#"), "same");
    EXPECT_EQ(compared("99^99^*2-99^99^", "99^99^"), "same");
    EXPECT_EQ(compared("99^99^+1", "99^99^").substr(0, 9), "different");
    EXPECT_EQ(compared("#5/0#", "5"), "unknown: the line before has no value");
    EXPECT_EQ(compared("5", "#5/(3-3)#"), "no value");
}

TEST(LineEquality, OfRootsIsExact) {
    EXPECT_EQ(compared("5~18~-~8~", "13~2~"), "same");
    EXPECT_EQ(compared("~2~*~8~", "4"), "same");
    EXPECT_EQ(compared("#1/(~2~+~3~)#", "~3~-~2~"), "same");
    EXPECT_EQ(compared("#1/(1+~2~+~6~)#*(1+~2~+~6~)", "1"), "same");
    EXPECT_EQ(compared("#6/(~6~+~15~)#*(~2~+~5~)", "2~3~"), "same");
    EXPECT_EQ(compared("|1-~2~|", "~2~-1"), "same");
    EXPECT_EQ(compared("~9~+~16~", "~25~"), "different: 7, 5");
    EXPECT_EQ(compared("~2~+1", "~3~+1"), "different: 1+~2, 1+~3");
    EXPECT_EQ(compared("~(1+~2~)~", "2"), "unknown: there is a root of a root in it");
    EXPECT_EQ(compared("~-4~", "2"), "unknown: the line before has no value");
}

TEST(LineEquality, OfPolynomialsHoldsForAllLetters) {
    EXPECT_EQ(compared("9(3x^2^+64)-#3/4#+4x", "27x^2^+4x+#2301/4#"), "same");
    EXPECT_EQ(compared("(x+1)^2^", "x^2^+1"), "different x=2: 9, 5");
    EXPECT_EQ(compared("(x-2)(x-3)", "0").substr(0, 13), "different x=1");
    EXPECT_EQ(compared("#9x^-2^/6#+8x^-2^", "#19/2x^2^#"), "same");
    EXPECT_EQ(compared("#x^2^/x#", "x"), "same");
    EXPECT_EQ(compared("3x+2y", "2x+3y"), "different x=2 y=3: 12, 13");
    EXPECT_EQ(compared("a+b+c+d", "d"), "unknown: there are more than three letters in it");
    EXPECT_EQ(compared("(x+y+z)^60^", "x").substr(0, 7), "unknown");
}

TEST(LineEquality, OfBarsGoesByCases) {
    EXPECT_EQ(compared("|x-3|", "|3-x|"), "same");
    EXPECT_EQ(compared("|x^2^+1|", "x^2^+1"), "same");
    EXPECT_EQ(compared("|x^2^-2|*|x|", "|x^3^-2x|"), "same");
    EXPECT_EQ(compared("|x-3|", "x-3").substr(0, 9), "different");
    EXPECT_EQ(compared("|(|x|-1)|", "|x-1|").substr(0, 9), "different");
    EXPECT_EQ(compared("|(|x|)|", "|x|"), "same");
}

TEST(LineEquality, OfEquationsIsThatOfTheirSolutions) {
    EXPECT_EQ(compared("2x+3=7", "#2x/[2]#=#4/[2]#"), "same");
    EXPECT_EQ(compared("2x+3=7", "x=5"), "different x=2 before");
    EXPECT_EQ(compared("x^2^=4", "x=2"), "fewer x=-2 before");
    EXPECT_EQ(compared("x=2", "x^2^=2x"), "more x=0 line");
    EXPECT_EQ(compared("x^2^=2", "x^3^=2x"), "more x=0 line");
    EXPECT_EQ(compared("x^2^=2", "x^4^=4"), "same");
    EXPECT_EQ(compared("x^2^=2", "x^2^=3"), "different");
    EXPECT_EQ(compared("x=x", "x=0"), "fewer x=2 before");
    EXPECT_EQ(compared("x+1=x+2", "1$2"), "same");
    EXPECT_EQ(compared("x+1=x+2", "2$2"), "no value");
    EXPECT_EQ(compared("2x=4", "0=5"), "fewer x=2 before");
    EXPECT_EQ(compared("2x=4", "0=0"), "more x=3 line");
    EXPECT_EQ(compared("#(x^2^-x)/x#=0", "x=1"), "same");
    EXPECT_EQ(compared("#(x^2^-x)/x#=0", "x^2^=x"), "more x=0 line");
}

TEST(LineEquality, OfEquationsInSeveralLettersIsThatOfTheirDifferences) {
    EXPECT_EQ(compared("2x+3y=6", "y=-#2x/3#+2"), "same");
    EXPECT_EQ(compared("2x+3y=6", "y=#2x/3#+2"), "different x=-3 y=4 before");
    EXPECT_EQ(compared("2x+3y=6", "0=1"), "fewer x=-3 y=4 before");
    EXPECT_EQ(compared("xy=6", "2xy=12"), "same");
    EXPECT_EQ(compared("xy=6", "x=6").substr(0, 7), "unknown");
}

TEST(LineEquality, AllowsRoundingAsTheSettingSays) {
    EXPECT_EQ(compared("#1/3#+#1/3#", "0.33+0.33", decimals), "rounded");
    EXPECT_EQ(compared("#1/3#+#1/3#", "0.33+#1/3#", decimals), "rounded");
    EXPECT_EQ(compared("#1/3#+#1/3#", "0.67", decimals), "rounded");
    EXPECT_EQ(compared("#1/3#+#1/3#", "0.66", decimals), "rounded");
    EXPECT_EQ(compared("#1/3#+#1/3#", "0.68", decimals), "different: 2/3, 0.68");
    EXPECT_EQ(compared("#1/3#", "0.33"), "different: 1/3, 33/100");
    EXPECT_EQ(compared("#1/8#", "0.12", decimals), "rounded");
    EXPECT_EQ(compared("3x=1", "x=0.33", decimals), "rounded");
    EXPECT_EQ(compared("3x=1", "x=0.34", decimals), "different x=1/3 before");
    EXPECT_EQ(compared("11y=-6x-58", "y=-0.55x-5.27", decimals), "rounded");
    EXPECT_EQ(compared("9999*9999*99", "9.8980E+09").substr(0, 9), "different");
}

TEST(LineEquality, ReadsNothingIntoAnUnfinishedLine) {
    for (const char* line : {"", "2+", "2*+", "x^", "x^2", "1)2", "(x", "#1/2", "#1/#", "~2", "1.2.3", "2*|3-|", "^2^"})
        EXPECT_FALSE(readExpression(line)) << line;
    for (const char* line : {"x", "x=", "=x", "x=1=2", "x=(2"}) EXPECT_FALSE(readEquation(line)) << line;
}

}  // namespace
}  // namespace ordwise::exact
