#include "ScienceSolvers.hpp"

#include "SolutionOf.hpp"

#include <chrono>
#include <cmath>

namespace ordwise::test {
namespace {

TEST(ScientificNotation, BecomesARegularNumber) {
    const struct {
        const char* base;
        const char* exponent;
        const char* way;
        const char* result;
    } cases[] = {
        {"2.5", "3", "right 3", "2500"},
        {"1.1", "1", "right 1", "11"},
        {"7", "-2", "left 2", "0.07"},
        {"05", "0", "right 0", "05"},
        {"3", "-0", "right -0", "3"},
        {"-4.2", "2", "right 2", "-420"},
        {"1.23", "-8", "left 8", "0.0000000123"},
        {"9", "14", "right 14", "900000000000000"},
        {"0", "9999999999", "right 9999999999", "0"},
    };
    for (const auto& each : cases) {
        const Solution solution = solutionOf([&] { ScientificToRegular(each.base, each.exponent); });
        const std::string problem = std::string(each.base) + " * 10^" + each.exponent + "^";
        expectSound(solution, problem);
        EXPECT_EQ(solution.lines,
                  (Lines{problem, "To convert from scientific notation to regular notation:",
                         std::string("Move the decimal point to the ") + each.way + " place(s):", each.result}));
    }
}

TEST(ScientificNotation, BeyondTheRangeOfADoubleOverflowsBothWays) {
    for (const char* exponent : {"400", "-400", "9999999999", "-999999999"}) {
        const Solution solution = solutionOf([&] { ScientificToRegular("5", exponent); });
        EXPECT_EQ(solution.fault, 6) << exponent;
        EXPECT_EQ(solution.lines.size(), 3U);
    }
}

TEST(ScientificNotation, IsWrittenWithOneDigitBeforeThePoint) {
    const std::string heading = "To convert from regular notation to scientific notation:";
    const Solution large = solutionOf([] { RegularToScientific("4500"); });
    EXPECT_EQ(large.lines, (Lines{"4500", heading, "Move the decimal place to the left 3 time(s):", "4.5",
                                  "Then multiply by 10^number of places the decimal moved^", "4.5 * 10^3^"}));
    EXPECT_EQ(large.notes.back(), "Regular notation converted to scientific notation.");
    const Solution small = solutionOf([] { RegularToScientific("0.05"); });
    EXPECT_EQ(small.lines, (Lines{"0.05", heading, "Move the decimal place to the right 2 time(s):", "5",
                                  "Then multiply by 10^number of places the decimal moved preceded by a minus sign:^",
                                  "5 * 10^-2^"}));
    EXPECT_EQ(small.notes.back(), "Regular notation converted to scientific.");
    EXPECT_EQ(solutionOf([] { RegularToScientific("5"); }).last(), "5 * 10^0^");

    // Moving the point changes no digit: every number with four digits and two decimals.
    for (int hundredths = 1; hundredths < 1000000; hundredths += 997) {
        std::string number = std::to_string(hundredths / 100) + "." + std::to_string(100 + hundredths % 100).substr(1);
        const Solution solution = solutionOf([&] { RegularToScientific(number); });
        expectSound(solution, number);
        std::string digits = std::to_string(hundredths);
        const int exponent = static_cast<int>(digits.size()) - 3;
        while (digits.back() == '0') digits.pop_back();
        const std::string mantissa = digits.substr(0, 1) + (digits.size() > 1 ? "." + digits.substr(1) : "");
        EXPECT_EQ(solution.last(), mantissa + " * 10^" + std::to_string(exponent) + "^") << number;
    }
}

TEST(ScientificNotation, ZeroAndNegativeNumbersRunOverAfterTwoSteps) {
    for (const char* number : {"0", "-5", "-0.5"}) {
        const auto start = std::chrono::steady_clock::now();
        const Solution solution = solutionOf([&] { RegularToScientific(number); });
        EXPECT_EQ(solution.fault, 6) << number;
        EXPECT_EQ(solution.lines.size(), 2U);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    }
}

TEST(ScientificNotation, IsMultipliedAndDivided) {
    EXPECT_EQ(solutionOf([] { ScientificMultiply("2.5", "3", "-4", "-5"); }).lines,
              (Lines{"2.5 * 10^3^ * -4 * 10^-5^", "To multiply numbers in scientific notation:",
                     "First, multiply the bases: 2.5 * -4", "Next, add the exponents: 3 + -5", "-10 * 10^-2^"}));
    EXPECT_EQ(solutionOf([] { ScientificDivide("1", "3", "3", "-5"); }).lines,
              (Lines{"1 * 10^3^ { 3 * 10^-5^",
                     "To divide numbers in scientific notation:", "First, divide the bases: #1/3# = 0.33",
                     "Next, subtract the exponents: 3 - -5 = 8", "0.33 * 10^8^"}));
    EXPECT_EQ(
        solutionOf([] { ScientificDivide("1", "3", "0", "5"); }).lines,
        (Lines{"1 * 10^3^ { 0 * 10^5^", "To divide numbers in scientific notation:", "Division by 0 is illegal."}));
    for (int a = -9; a <= 9; a += 2) {
        for (int p = -4; p <= 4; ++p) {
            const std::string base = std::to_string(a);
            const std::string exponent = std::to_string(p);
            const Solution product = solutionOf([&] { ScientificMultiply(base, exponent, "1.5", "2"); });
            expectSound(product, base);
            EXPECT_NEAR(std::stod(product.last()) * std::pow(10, numberIn(product.last(), "10^", "^")),
                        a * std::pow(10, p) * 150, 1e-9 * std::pow(10, p + 2));
            const Solution quotient = solutionOf([&] { ScientificDivide("1.5", "2", base, exponent); }, 8);
            expectSound(quotient, base);
            EXPECT_NEAR(std::stod(quotient.last()) * std::pow(10, numberIn(quotient.last(), "10^", "^")),
                        150 / (a * std::pow(10, p)), 1e-8 * std::pow(10, 2 - p));
        }
    }
}

struct FormulaCase {
    std::string product, factor, time;
    Lines linesAfterTheFormula;
};

TEST(WorkAndDistance, SolveForEachUnknownAndComplainOfZeroDivisors) {
    const std::string complaint = "Division by 0 is illegal.";
    const std::vector<FormulaCase> works = {
        {"work", "3", "4.5", {"work = 3 * 4.5", "work = 13.5"}},
        {"10", "rate", "3", {"10 = rate * 3", "#10/3# = rate", "3.33 = rate"}},
        {"10", "4", "time", {"10 = 4 * time", "#10/4# = time", "2.5 = time"}},
        {"10", "rate", "0", {"10 = rate * 0", "#10/0# = rate", complaint}},
        {"10", "0", "time", {"10 = 0 * time", "#10/0# = time", complaint}},
    };
    const auto shown = [](const std::string& text) { return std::isalpha(text[0]) ? "?" : text; };
    for (const FormulaCase& each : works) {
        const Solution work = solutionOf([&] { WorkFormula(each.product, each.factor, each.time); });
        Lines expected = {
            "work = " + shown(each.product) + ", rate = " + shown(each.factor) + ", time = " + shown(each.time),
            "work = rate * time"};
        expected.insert(expected.end(), each.linesAfterTheFormula.begin(), each.linesAfterTheFormula.end());
        expectSound(work, expected[0]);
        EXPECT_EQ(work.lines, expected);

        // The same problem in the other words is the same solution in the other words.
        const auto translated = [](std::string text) {
            for (const auto& [from, to] : {std::pair{"work", "distance"}, {"rate", "speed"}}) {
                for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += std::string(to).size())
                    text.replace(at, std::string(from).size(), to);
            }
            return text;
        };
        const Solution distance =
            solutionOf([&] { DistanceFormula(translated(each.product), translated(each.factor), each.time); });
        ASSERT_EQ(distance.lines.size(), work.lines.size());
        for (std::size_t i = 0; i < work.lines.size(); ++i) {
            EXPECT_EQ(distance.lines[i], translated(work.lines[i]));
            EXPECT_EQ(distance.notes[i], translated(work.notes[i]));
        }
    }
    const Solution rate = solutionOf([] { WorkFormula("10", "rate", "4"); });
    EXPECT_EQ(rate.notes[3], "Divide both sides by time.");
    EXPECT_EQ(rate.notes[4], "Solve for rate.");
    const Solution time = solutionOf([] { DistanceFormula("10", "4", "time"); });
    EXPECT_EQ(time.notes[3], "Divide both sides by speed.");
    EXPECT_EQ(time.notes[4], "Solve for time.");
}

TEST(Angle, IsNamedByItsDegrees) {
    for (int degrees = 0; degrees <= 200; ++degrees) {
        const std::string text = std::to_string(degrees);
        const Solution solution = solutionOf([&] { ClassifyAngle(text); });
        expectSound(solution, text);
        const char* name = degrees == 0 || degrees > 180 ? "no more than 180"
                           : degrees < 90                ? " ACUTE "
                           : degrees == 90               ? " RIGHT "
                           : degrees < 180               ? " OBTUSE "
                                                         : " STRAIGHT ";
        EXPECT_NE(solution.last().find(name), std::string::npos) << solution.last();
    }
}

TEST(Angle, IsDrawnAsTwoArms) {
    const auto armsOf = [](const char* degrees) {
        solutionOf([&] { ClassifyAngle(degrees); });
        std::vector<Stroke> strokes;
        for (const DrawOperation& operation : frmPaper.Paper[0].drawn()) {
            if (const auto* stroke = std::get_if<Stroke>(&operation)) strokes.push_back(*stroke);
        }
        return strokes;
    };
    const Stroke ground{200, 175, 300, 175, 2, black};
    EXPECT_EQ(armsOf("180"), (std::vector<Stroke>{{200, 175, 100, 175, 2, black}, ground}));
    EXPECT_EQ(armsOf("90"), (std::vector<Stroke>{{200, 175, 200, 75, 2, black}, ground}));
    EXPECT_EQ(armsOf("45"), (std::vector<Stroke>{{200, 175, 250, 125, 2, black}, ground}));
    EXPECT_TRUE(armsOf("0").empty());
    EXPECT_TRUE(armsOf("200").empty());
    EXPECT_EQ(frmPaper.Paper[0].DrawWidth, 1);
}

TEST(WorkAndDistance, LinesStartBelowTheBoxesAsInAllTopicsWithARowOfThem) {
    const std::vector<void (*)()> solvers = {
        [] { WorkFormula("work", "1", "2"); }, [] { ScientificToRegular("1", "2"); },
        [] { ScientificMultiply("1", "2", "3", "4"); }, [] { ScientificDivide("1", "2", "3", "4"); }};
    for (const auto solver : solvers) {
        solutionOf(solver);
        EXPECT_GE(std::get<Glyphs>(frmPaper.Paper[0].drawn().front()).y, 243);
    }
}

}  // namespace
}  // namespace ordwise::test
