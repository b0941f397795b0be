// Numbers as text, and the direct methods against the plain searches that they stand for.
#include "FaultOf.hpp"
#include "NumberText.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>

namespace ordwise::test {
namespace {

void fractionsMode() {
    ws = Workspace();
}
void decimalsMode(int places) {
    ws = Workspace();
    ws.UseFractions = false;
    ws.RoundPlaces = places;
}

TEST(NumberToText, WritesFractionsAndWholeNumbers) {
    fractionsMode();
    EXPECT_EQ(NumberToText(0.5F, 0, false, 2, 4), "1/2");
    EXPECT_EQ(NumberToText(0.333333F, 0, false, 1, 3), "1/3");
    EXPECT_EQ(NumberToText(3.0F, 0, true, 3, 1), "3/1");
    EXPECT_EQ(NumberToText(3.0F, 0, false, 3, 1), "3");
    EXPECT_EQ(NumberToText(1e20F, 0, false, 1, 1), "1E+20");
    EXPECT_EQ(FractionText(-0.75F), "3/4");
    EXPECT_EQ(DecimalText(-0.75F), "-3/4");
    EXPECT_EQ(DecimalText(-2.0F), "-2");
    EXPECT_EQ(FractionText(0.0F), "0");
}

TEST(NumberToText, FindsTheFractionOfTwoDecimals) {
    fractionsMode();
    EXPECT_EQ(FractionText(0.01F), "1/100");
    EXPECT_EQ(FractionText(2.37F), "237/100");
    EXPECT_EQ(FractionText(2.0F / 101), "2/101");
    for (int hundredths = 1; hundredths < 999'999; hundredths += hundredths < 2000 ? 1 : 997) {
        const auto value = static_cast<float>(hundredths) / 100;
        EXPECT_EQ(FractionText(value), CommonFactorText(hundredths, 100)) << hundredths;
    }
}

TEST(NumberToText, KeepsAFormThatIsNoSimpler) {
    fractionsMode();
    EXPECT_EQ(FractionText(0.75F, 1, 2), "1/2") << "a numerator above the caller's own gives that form back";
    EXPECT_EQ(FractionText(0.75F, 1.5F, 2), "3/4") << "unless that one holds a decimal";
}

TEST(NumberToText, RoundsInDecimalsMode) {
    decimalsMode(2);
    EXPECT_EQ(FractionText(2.456F), "2.46");
    EXPECT_EQ(DecimalText(-0.001F), "0");
    EXPECT_EQ(FractionText(2.0F / 3), "0.67");
    decimalsMode(0);
    EXPECT_EQ(FractionText(2.5F), "2");
    decimalsMode(5);
    EXPECT_EQ(FractionText(1.0F / 7), "0.14286");
}

// --- against the plain searches

// |value| as a fraction, denominator by denominator.
std::string plainFraction(float value) {
    const std::string shown = textOf(value);
    if (shown.find('.') == std::string::npos || shown.find("E+") != std::string::npos) return shown;
    for (int i = 1; i <= 100'000'000; ++i) {
        const double whole = Round(valueOf(shown) * i, 4);
        if (whole == std::nearbyint(whole) && whole != 0)
            return textOf(static_cast<float>(whole)) + (i < 2 ? "" : "/" + textOf(i));
    }
    return "0";
}

TEST(FractionSearch, FindsWhatThePlainSearchFinds) {
    fractionsMode();
    std::mt19937 draw(7);
    const auto below = [&](int limit) {
        return static_cast<float>(1 + static_cast<int>(draw() % static_cast<unsigned>(limit)));
    };
    std::vector<float> values = {0.00005F, 0.000051F,  0.99995F,  0.9999499F, 1.00005F,  1.00006F,
                                 0.5F,     0.4999999F, 123456.7F, 0.0001F,    999.9999F, 8388607.5F};
    for (int i = 0; i < 400; ++i) values.push_back(below(99) / below(60));     // within the first search
    for (int i = 0; i < 40; ++i) values.push_back(below(5000) / below(5000));  // mostly past it
    for (int i = 0; i < 30; ++i) values.push_back(below(1'000'000) / 1'000'000);
    for (int i = 0; i < 20; ++i) values.push_back(std::sqrt(below(200)));  // no fraction at all
    for (const float value : values) EXPECT_EQ(FractionText(value), plainFraction(value)) << textOf(value);
}

TEST(FractionSearch, EndsWhereThereIsNoFraction) {
    fractionsMode();
    const std::vector<float> hard = {3.141593F, 0.7071068F, 1e-7F, 1.23456e-9F, 0.00003F, 54321.98F};
    for (const float value : hard) EXPECT_FALSE(FractionText(value).empty());
    EXPECT_EQ(FractionText(1.23456e-9F), "0") << "no multiple below the limit is 1";
}

std::string plainCommonFactor(long above, long below) {
    long d = std::min(std::labs(above), below);
    while (d >= 2 && (above % d != 0 || below % d != 0)) --d;
    if (above == 0) return "0";
    if (d < 2) d = 1;
    return std::to_string(above / d) + (below / d == 1 ? "" : "/" + std::to_string(below / d));
}

TEST(CommonFactorText, IsTheSearchFromTheTop) {
    for (int above = -40; above <= 60; ++above) {
        for (int below = 1; below <= 60; ++below)
            ASSERT_EQ(CommonFactorText(above, below), plainCommonFactor(above, below)) << above << "/" << below;
    }
    EXPECT_EQ(CommonFactorText(0, 6), "0");
    EXPECT_EQ(CommonFactorText(2147483647.0, 2147483646.0), "2147483647/2147483646");
    EXPECT_EQ(faultOf([] { (void)CommonFactorText(2147483648.0, 2); }), 6);
    EXPECT_EQ(faultOf([] { (void)CommonFactorText(1, 0); }), 11);
}

std::string plainPrimes(int number) {
    if (number == 1) return "1";
    std::string text;
    for (int d = 2; d <= number;) {
        if (number % d != 0) {
            ++d;
            continue;
        }
        text += (text.empty() ? "" : "*") + std::to_string(d);
        number /= d;
    }
    return text;
}

TEST(PrimeFactorsText, IsTheSearchFromBelow) {
    for (int number = 1; number <= 3000; ++number)
        ASSERT_EQ(PrimeFactorsText(std::to_string(number)), plainPrimes(number));
    EXPECT_EQ(PrimeFactorsText("-12"), "2*2*3");
    EXPECT_EQ(PrimeFactorsText("2147483647"), "2147483647");
    EXPECT_EQ(PrimeFactorsText("16777217"), "97*257*673") << "beyond the whole numbers of a single";
    EXPECT_EQ(faultOf([] { (void)PrimeFactorsText("2147483648"); }), 6);
}

int plainMultiple(int a, int b, int c) {
    const int largest = std::max({a, b, c});
    int multiple = largest;
    while (multiple % a != 0 || multiple % b != 0 || multiple % c != 0) multiple += largest;
    return multiple;
}

TEST(LeastCommonMultipleText, IsTheSearchThroughTheMultiples) {
    std::mt19937 draw(3);
    for (int i = 0; i < 2000; ++i) {
        const int a = 1 + static_cast<int>(draw() % 60);
        const int b = 1 + static_cast<int>(draw() % 60);
        const int c = 1 + static_cast<int>(draw() % 60);
        const std::string list = std::to_string(a) + "," + std::to_string(b) + "," + std::to_string(c);
        ASSERT_EQ(LeastCommonMultipleText(list), std::to_string(plainMultiple(a, b, c))) << list;
    }
    EXPECT_EQ(LeastCommonMultipleText("7"), "7");
    EXPECT_EQ(LeastCommonMultipleText("4,0,6"), "0");
    EXPECT_EQ(LeastCommonMultipleText("99991,99989,0"), "0");
    EXPECT_EQ(faultOf([] { (void)LeastCommonMultipleText("99991,99989"); }), 6);
}

}  // namespace
}  // namespace ordwise::test
