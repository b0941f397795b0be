// Numbers to text and back, and rounding: every digit that a student reads goes through here.
#include "FaultOf.hpp"
#include "NumberText.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace ordwise {
namespace {

TEST(TextOfDouble, WritesShortestDecimalsAsAPersonDoes) {
    EXPECT_EQ(textOf(0.5), "0.5");
    EXPECT_EQ(textOf(-0.5), "-0.5");
    EXPECT_EQ(textOf(2.50), "2.5");
    EXPECT_EQ(textOf(-1250.0), "-1250");
    EXPECT_EQ(textOf(0.1), "0.1");
    EXPECT_EQ(textOf(100.0), "100");
}

TEST(TextOfDouble, HidesWhatFifteenDigitsDoNotShow) {
    EXPECT_EQ(textOf(0.1 + 0.2), "0.3");
    EXPECT_EQ(textOf(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(textOf(2.0 / 3.0), "0.666666666666667");
    EXPECT_EQ(textOf(200.0 / 3.0), "66.6666666666667");
    EXPECT_EQ(textOf(0.99999999999999999), "1");
}

TEST(TextOfDouble, HasNoMinusZero) {
    EXPECT_EQ(textOf(-0.0), "0");
    EXPECT_EQ(textOf(-0.0F), "0");
}

TEST(TextOfDouble, GoesToTheEFormWhereTheWholePartHasNoRoom) {
    EXPECT_EQ(textOf(999999999999999.0), "999999999999999");
    EXPECT_EQ(textOf(-999999999999999.0), "-999999999999999");
    EXPECT_EQ(textOf(1e15), "1E+15");
    EXPECT_EQ(textOf(999999999999999.9), "1E+15") << "rounded up into the next digit";
    EXPECT_EQ(textOf(123456789012345678.0), "1.23456789012346E+17");
    EXPECT_EQ(textOf(-2.5e100), "-2.5E+100");
}

TEST(TextOfDouble, KeepsSmallValuesPlainDownToTheFifteenthDecimal) {
    EXPECT_EQ(textOf(1e-5), "0.00001");
    EXPECT_EQ(textOf(-0.00045), "-0.00045");
    EXPECT_EQ(textOf(1e-15), "0.000000000000001");
    EXPECT_EQ(textOf(1e-16), "1E-16");
    EXPECT_EQ(textOf(2.5e-100), "2.5E-100");
}

TEST(TextOfDouble, FaultsForWhatIsNoNumber) {
    EXPECT_EQ(faultOf([] { (void)textOf(std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(faultOf([] { (void)textOf(std::nan("")); }), 6);
}

TEST(TextOfSingle, IsAPlainDecimalAsLongAsASingleKeepsItsDigits) {
    EXPECT_EQ(textOf(-5.12e-16F), "-0.000000000000000512");
    EXPECT_EQ(textOf(1.25e-37F), "0." + std::string(36, '0') + "125");
    EXPECT_EQ(textOf(1e-40F), "0");
}

TEST(TextOfSingle, HasSevenDigitsAndThenTheEForm) {
    EXPECT_EQ(textOf(1.0F / 3.0F), "0.3333333");
    EXPECT_EQ(textOf(0.1F), "0.1") << "and not the digits of the double nearest to it";
    EXPECT_EQ(textOf(9999999.0F), "9999999");
    EXPECT_EQ(textOf(1e7F), "1E+07");
    EXPECT_EQ(textOf(9999.0F * 9999.0F), "9.998E+07");
    EXPECT_EQ(textOf(1e-5F), "0.00001");
}

TEST(TextOfInteger, StandsWithoutALeadingBlankExceptInMessages) {
    EXPECT_EQ(textOf(4), "4");
    EXPECT_EQ(textOf(-4), "-4");
    EXPECT_EQ(textOf(std::int64_t{9007199254740993}), "9007199254740993");
    EXPECT_EQ(signedTextOf(4), " 4");
    EXPECT_EQ(signedTextOf(0), " 0");
    EXPECT_EQ(signedTextOf(-4), "-4");
}

TEST(ValueOf, ReadsOneNumberAndNothingElse) {
    EXPECT_EQ(valueOf("2.45"), 2.45);
    EXPECT_EQ(valueOf("-.5"), -0.5);
    EXPECT_EQ(valueOf("+7."), 7.0);
    EXPECT_EQ(valueOf("05"), 5.0);
    EXPECT_EQ(valueOf(" 3 "), 3.0);
    EXPECT_EQ(valueOf("1E+15"), 1e15);
    EXPECT_EQ(valueOf("9.998e-07"), 9.998e-7);
    for (const char* text : {"", " ", ".", "-", "-.", "1/2", "|5|", "1.2.3", "3x", "1 2", "--3", "1E", "E5", "1,000",
                             "inf", "nan", "0x10"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
        EXPECT_EQ(faultOf([&] { (void)valueOf(text); }), 13) << text;
    }
}

TEST(ValueOf, KnowsTheEndsOfItsRange) {
    EXPECT_EQ(faultOf([] { (void)valueOf("1E+309"); }), 6);
    EXPECT_EQ(faultOf([] { (void)valueOf("-1E+99999999999999999999"); }), 6);
    EXPECT_EQ(faultOf([] { (void)valueOf(std::string(400, '9')); }), 6);
    EXPECT_EQ(valueOf("1E-400"), 0.0) << "too small to be told from zero";
    EXPECT_EQ(valueOf("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(valueOf("0E+999"), 0.0);
    EXPECT_EQ(valueOf("0." + std::string(400, '0') + "1E+401"), 1.0);
    EXPECT_EQ(valueOf("1.7976931348623157E+308"), std::numeric_limits<double>::max());
}

// The desk program takes the user's locale; a comma for a point must not reach the numbers.
TEST(ValueOf, ReadsAPointInEveryLocale) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    const char* german = std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    if (german == nullptr) german = std::setlocale(LC_NUMERIC, "de_DE");
    if (german == nullptr) GTEST_SKIP() << "no locale with a decimal comma is installed";
    EXPECT_EQ(valueOf("2.45"), 2.45);
    EXPECT_EQ(lenientValueOf("2.45x"), 2.45);
    EXPECT_EQ(textOf(2.45), "2.45");
    EXPECT_EQ(Round(2.451, 1), 2.5);
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(LongOf, RoundsHalvesToTheEvenNeighbourAndFitsThirtyTwoBits) {
    EXPECT_EQ(longOf("2.5"), 2);
    EXPECT_EQ(longOf("3.5"), 4);
    EXPECT_EQ(longOf("-2.5"), -2);
    EXPECT_EQ(longOf("-3.5"), -4);
    EXPECT_EQ(longOf("0.5"), 0);
    EXPECT_EQ(longOf("149.5"), 150);
    EXPECT_EQ(longOf("2.50001"), 3);
    EXPECT_EQ(longOf("-2.4"), -2);
    EXPECT_EQ(longOf("-2.6"), -3);
    EXPECT_EQ(longOf("2147483647.4"), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(longOf("-2147483648.5"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(faultOf([] { (void)longOf("2147483647.5"); }), 6);
    EXPECT_EQ(faultOf([] { (void)longOf(-3e9); }), 6);
    EXPECT_EQ(faultOf([] { (void)longOf("x"); }), 13);
}

TEST(LenientReader, TakesTheNumberAtTheBeginning) {
    EXPECT_EQ(lenientValueOf("3x"), 3.0);
    EXPECT_EQ(lenientValueOf("-3.5a~2"), -3.5);
    EXPECT_EQ(lenientValueOf("+4"), 4.0);
    EXPECT_EQ(lenientValueOf("3/4"), 3.0);
    EXPECT_EQ(lenientValueOf("1.2.3"), 1.2);
    EXPECT_EQ(lenientValueOf("7."), 7.0);
    EXPECT_EQ(lenientValueOf("  5 6"), 5.0);
    EXPECT_EQ(lenientValueOf("1E+15"), 1e15);
    EXPECT_EQ(lenientValueOf("2e"), 2.0) << "a letter e is no exponent without digits";
    EXPECT_EQ(lenientValueOf("2ex"), 2.0);
    for (const char* text : {"", "x", "-x", "--3", "-", ".", "/2", "E5", " "})
        EXPECT_EQ(lenientValueOf(text), 0.0) << text;
}

TEST(Round, SendsAnExactHalfToTheEvenDigit) {
    EXPECT_EQ(Round(0.125, 2), 0.12);
    EXPECT_EQ(Round(0.375, 2), 0.38);
    EXPECT_EQ(Round(2.5, 0), 2.0);
    EXPECT_EQ(Round(3.5, 0), 4.0);
    EXPECT_EQ(Round(-2.5, 0), -2.0);
    EXPECT_EQ(Round(-0.125, 2), -0.12);
    EXPECT_EQ(Round(0.5, 0), 0.0);
    EXPECT_EQ(Round(1.5, 0), 2.0);
    EXPECT_EQ(Round(2.51, 0), 3.0);
    EXPECT_EQ(Round(2.451, 1), 2.5);
}

// No binary fraction is 0.035 or 2.675; what the student sees on paper decides.
TEST(Round, JudgesTheHalfOnThePrintedDigits) {
    EXPECT_EQ(Round(0.35 * 0.1, 2), 0.04);
    EXPECT_EQ(Round(5.35 / 2, 2), 2.68);
    EXPECT_EQ(Round(2.675, 2), 2.68);
    EXPECT_EQ(Round(1.005, 2), 1.0);
    EXPECT_EQ(Round(1.015, 2), 1.02);
    EXPECT_EQ(Round(0.1 + 0.2, 1), 0.3);
}

TEST(Round, CarriesThroughNinesAndLeavesLittleThingsAlone) {
    EXPECT_EQ(Round(9.999, 2), 10.0);
    EXPECT_EQ(Round(99.5, 0), 100.0);
    EXPECT_EQ(Round(0.999, 0), 1.0);
    EXPECT_EQ(Round(0.004, 2), 0.0);
    EXPECT_EQ(Round(0.0004, 2), 0.0);
    EXPECT_EQ(Round(2.5, 2), 2.5);
    EXPECT_EQ(Round(1e15, 2), 1e15);
    EXPECT_FALSE(std::signbit(Round(-0.004, 2))) << "no minus zero";
    EXPECT_EQ(faultOf([] { (void)Round(std::nan(""), 2); }), 6);
}

TEST(Round, OfASingleLooksAtSevenDigits) {
    EXPECT_EQ(textOf(Round(2.675F, 2)), "2.68");
    EXPECT_EQ(textOf(Round(0.125F, 2)), "0.12");
    EXPECT_EQ(textOf(Round(16777.25F, 1)), "16777.2");
}

// Whatever is printed reads back as the same text, and rounding is at most half a unit away and
// has nothing left to round.
TEST(NumberText, ReadsBackWhatItPrintsAndRoundsOnce) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-12, 18);
    std::uniform_int_distribution<int> places(0, 4);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, exponent(random));
        const std::string text = textOf(value);
        ASSERT_TRUE(IsNumeric(text)) << text;
        ASSERT_EQ(textOf(valueOf(text)), text);
        ASSERT_EQ(textOf(Round(valueOf(text), 15)), textOf(Round(value, 15)));
        const int n = places(random);
        const double rounded = Round(value, n);
        ASSERT_EQ(Round(rounded, n), rounded) << text << " to " << n;
        const double unit = std::pow(10.0, -n);
        ASSERT_LE(std::abs(rounded - value), unit / 2 + std::abs(value) * 1e-14) << text << " to " << n;
    }
}

}  // namespace
}  // namespace ordwise
