#include "ScienceSolvers.hpp"

#include "PercentSolvers.hpp"
#include "SolutionOf.hpp"

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
        EXPECT_EQ(solution.fault, 0);
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

TEST(ScientificNotation, ZeroAndNegativeNumbersRunOverAfterTwoSteps) {
    for (const char* number : {"0", "-5", "-0.5"}) {
        const Solution solution = solutionOf([&] { RegularToScientific(number); });
        EXPECT_EQ(solution.fault, 6) << number;
        EXPECT_EQ(solution.lines.size(), 2U);
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

TEST(RowOfBoxes, LeavesItsLinesBelowIt) {
    const std::vector<void (*)()> solvers = {
        [] { WorkFormula("work", "1", "2"); }, [] { ScientificToRegular("1", "2"); },
        [] { ScientificMultiply("1", "2", "3", "4"); }, [] { ScientificDivide("1", "2", "3", "4"); },
        [] { PercentProblem("amount", "20", "50"); }};
    for (const auto solver : solvers) {
        solutionOf(solver);
        EXPECT_GE(std::get<Glyphs>(frmPaper.Paper[0].drawn().front()).y, 243);
    }
}

}  // namespace
}  // namespace ordwise::test
