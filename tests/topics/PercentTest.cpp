#include "PercentSolvers.hpp"

#include "SolutionOf.hpp"

#include <cmath>

namespace ordwise::test {
namespace {

struct PercentCase {
    std::string amount, n, base;
    Lines linesAfterTheProportion;
};

TEST(Percent, SolvesForEachUnknownAndComplainsOfZeroDivisors) {
    const std::string complaint = "Division by 0 is not allowed.";
    const std::vector<PercentCase> cases = {
        {"amount", "20", "50", {"#20/100# = #amount/50#", "0.2 [* 50] = #amount / 50# [* 50]", "10 = amount"}},
        {"10", "N", "50", {"#N/100# = #10/50#", "#N/100# [* 100] = 0.2 [* 100]", "N = 20%"}},
        {"1", "N", "3", {"#N/100# = #1/3#", "#N/100# [* 100] = 0.33 [* 100]", "N = 33.33%"}},
        {"10", "20", "base", {"#20/100# = #10/base#", "#20 * base/[20]# = #1000/[20]#", "base = 50"}},
        {"-7.5", "30", "base", {"#30/100# = #-7.5/base#", "#30 * base/[30]# = #-750/[30]#", "base = -25"}},
        {"10", "0", "base", {"#0/100# = #10/base#", complaint}},
        {"10", "N", "0", {"#N/100# = #10/0#", complaint}},
        {"amount", "20", "0.0", {"#20/100# = #amount/0.0#", complaint}},
    };
    for (const PercentCase& each : cases) {
        const auto shown = [](const std::string& text) { return std::isalpha(text[0]) ? "?" : text; };
        const Solution solution = solutionOf([&] { PercentProblem(each.amount, each.n, each.base); });
        Lines expected = {"amount = " + shown(each.amount) + ", N = " + shown(each.n) + ", base = " + shown(each.base),
                          each.amount + " = " + each.n + "% of " + each.base, "#N/100# = #amount/base#"};
        expected.insert(expected.end(), each.linesAfterTheProportion.begin(), each.linesAfterTheProportion.end());
        expectSound(solution, expected[0]);
        EXPECT_EQ(solution.lines, expected);
    }
}

TEST(Percent, LinesStartBelowTheBoxes) {
    solutionOf([] { PercentProblem("amount", "20", "50"); });
    const auto& first = std::get<Glyphs>(frmPaper.Paper[0].drawn().front());
    EXPECT_GE(first.y, 243);
}

TEST(Percent, SolvesEachNotation) {
    const std::string remove = "Remove the % symbol and multiply by .01:";
    const std::string add = "Multiply by 100 and add a % symbol:";
    const struct {
        void (*solve)(const std::string&);
        const char* text;
        Lines lines;
    } cases[] = {
        {PercentToDecimal, "50%", {"50%", remove, "0.5"}},
        {PercentToDecimal, "7%", {"7%", remove, "0.07"}},
        {[](const std::string& text) { DecimalToPercent(text, true); }, ".125", {".125", add, "12.5%"}},
        {FractionToPercent,
         "1/3",
         {"#1/3#", "To convert #1/3# to percent notation:", "Divide the numerator by the denominator:", "0.33", add,
          "33%"}},
        {FractionToPercent,
         "1/8",
         {"#1/8#", "To convert #1/8# to percent notation:", "Divide the numerator by the denominator:", "0.12", add,
          "12%"}},
        {FractionToPercent, "1/0", {"#1/0#", "To convert #1/0# to percent notation:", "Division by 0 is illegal."}},
    };
    for (const auto& each : cases) {
        const Solution solution = solutionOf([&] { each.solve(each.text); });
        expectSound(solution, each.text);
        EXPECT_EQ(solution.lines, each.lines);
    }
}

TEST(Percent, TheStageNeitherRestatesNorShows) {
    const Solution solution = solutionOf([] { DecimalToPercent("0.5", false); });
    EXPECT_EQ(solution.lines, (Lines{"Multiply by 100 and add a % symbol:", "50%"}));
    EXPECT_EQ(ws.ShownStep, 0);
}

TEST(Percent, AFractionWithoutABarKeepsTheStepsBeforeItsFault) {
    const Solution solution = solutionOf([] { FractionToPercent("5"); });
    EXPECT_NE(solution.fault, 0);
    EXPECT_EQ(solution.lines.size(), 2U);
}

TEST(Percent, APercentBecomesAFractionOfTheSameValue) {
    for (int percent = 1; percent <= 250; ++percent) {
        const std::string text = std::to_string(percent) + "%";
        const Solution solution = solutionOf([&] { PercentToFraction(text); });
        expectSound(solution, text);
        const auto fraction = valueOfMarkup(solution.last());
        ASSERT_TRUE(fraction.has_value()) << solution.last();
        EXPECT_TRUE(same(*fraction, ExactValue(percent, 100), 0)) << text << " became " << solution.last();
    }
}

TEST(Percent, AgreesWithIndependentArithmetic) {
    for (int a = 1; a <= 40; a += 3) {
        for (int b = 1; b <= 60; b += 7) {
            const std::string first = std::to_string(a);
            const std::string second = std::to_string(b);
            const Solution amount = solutionOf([&] { PercentProblem("amount", first, second); }, 4);
            EXPECT_NEAR(std::stod(amount.last()), a * b / 100.0, 0.51e-4);
            const Solution n = solutionOf([&] { PercentProblem(first, "N", second); }, 4);
            EXPECT_NEAR(numberIn(n.last(), "N = ", "%"), 100.0 * a / b, 0.51e-4);
            const Solution base = solutionOf([&] { PercentProblem(first, second, "base"); }, 4);
            EXPECT_NEAR(numberIn(base.last(), "base = "), 100.0 * a / b, 0.51e-4);
            const Solution fraction = solutionOf([&] { FractionToPercent(first + "/" + second); }, 4);
            EXPECT_NEAR(numberIn(fraction.last(), "", "%"), 100.0 * a / b, 0.51e-2);
            for (const Solution* each : {&amount, &n, &base, &fraction}) {
                EXPECT_EQ(each->fault, 0);
                EXPECT_TRUE(each->messages.empty());
            }
        }
    }
}

}  // namespace
}  // namespace ordwise::test
