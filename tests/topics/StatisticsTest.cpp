#include "StatisticsSolvers.hpp"

#include "SolutionOf.hpp"

#include <algorithm>
#include <map>
#include <random>

namespace ordwise::test {
namespace {

struct Case {
    void (*solver)(const std::string&);
    std::string list;
    Lines linesAfterTheFirst;
};

TEST(Statistics, SolvesEachBranchWhole) {
    const std::string middle[] = {"To determine the median, arrange the numbers from smallest to largest:",
                                  "If the amount of numbers is odd, the median is the number in the middle.",
                                  "If the amount is even, the median is the average of the two middle numbers."};
    const std::string range[] = {"The range of a group of numbers is the difference between the largest",
                                 "and smallest numbers in that group."};
    const std::string add = "Add all the numbers then divide by the amount of numbers:";
    const std::string mode = "The mode is the number (or numbers) that occurs most often in a group.";
    const std::vector<Case> cases = {
        {Mean, "2,-3", {add, "Average = #2-3 / 2#", "Average = #-1 / 2#", "Average = -0.5"}},
        {Mean, "7", {add, "Average = #7 / 1#", "Average = #7 / 1#", "Average = 7"}},
        {Mean, "1,+1,2.5", {add, "Average = #1+1+2.5 / 3#", "Average = #4.5 / 3#", "Average = 1.5"}},
        {Median,
         "3,1,2",
         {middle[0], "1,2,3", middle[1], middle[2], "There is an odd amount of numbers: 3", "The median is 2"}},
        {Median,
         "4,1,3,2",
         {middle[0], "1,2,3,4", middle[1], middle[2], "There is an even amount of numbers: 4",
          "Take the average of the two middle numbers: 2 and 3", "The median is 2.5"}},
        {Median,
         "10,9.5,-1",
         {middle[0], "-1,9.5,10", middle[1], middle[2], "There is an odd amount of numbers: 3", "The median is 9.5"}},
        {Range, "-2,5", {range[0], range[1], "5 - (-2)", "The range is 7."}},
        {Range, "-7,-2,-5", {range[0], range[1], "(-2) - (-7)", "The range is 5."}},
        {Range, "0.3,0.1", {range[0], range[1], "0.3 - 0.1", "The range is 0.2."}},
        {Mode, "1,1,2", {mode, "1 occurs the most (2 times):", "Mode: 1"}},
        {Mode, "1,1,2,2", {mode, "Each number occurs the same number of times (2).", "There is no mode."}},
        {Mode, "4", {mode, "Each number occurs the same number of times (1).", "There is no mode."}},
        {Mode, "1,1.0,1", {mode, "1 occurs the most (2 times):", "Mode: 1"}},
        {Mode, "2,1,3,2,1", {mode, "There are 2 modes, each occuring 2 times:", "Mode: 2, 1"}},
    };
    for (const Case& each : cases) {
        const Solution solution = solutionOf([&] { each.solver(each.list); });
        expectSound(solution, each.list);
        Lines expected = each.linesAfterTheFirst;
        expected.insert(expected.begin(), each.list);
        EXPECT_EQ(solution.lines, expected);
    }
}

TEST(Statistics, ValuesThatAreEqualButTypedDifferentlyKeepTheirText) {
    EXPECT_EQ(solutionOf([] { Median("2,1.0,1,0"); }).lines[2], "0,1,1.0,2");
}

TEST(Statistics, TextThatIsNoNumberEndsInTheTypeFault) {
    for (const auto solver : {Mean, Median, Range}) EXPECT_EQ(solutionOf([&] { solver("1,,2"); }).fault, 13);
}

TEST(Statistics, EveryPointHasOnePlace) {
    const struct {
        const char* x;
        const char* y;
        const char* line;
        const char* note;
    } cases[] = {
        {"3", "4", "Both coordinates are positive - Quadrant I", "Both coordinates are greater than 0."},
        {"-3", "4", "The first coordinate is negative, the second is positive - Quadrant II.",
         "The first coordinate is less than 0, and the second is greater than 0."},
        {"-3", "-4", "Both coordinates are negative - Quadrant III", "Both coordinates are less than 0."},
        {"3", "-4", "The first coordinate is positive, the second is negative - Quadrant IV.",
         "The first coordinate is greater than 0, and the second is less than 0."},
        {"3", "0", "The point is located along the axis between Quadrant I and IV",
         "The first coordinate is greater than 0, and the second is 0."},
        {"-3", "-0", "The point is located along the axis between Quadrant II and III",
         "The first coordinate is less than 0, and the second is 0."},
        {"0", "4", "The point is located along the axis between Quadrant I and II",
         "The first coordinate is 0, and the second is greater than 0."},
        {"0", "-4", "The point is located along the axis between Quadrant III and IV",
         "The first coordinate is 0, and the second is less than 0."},
        {"0", "0", "The point is located at the origin.", "The origin of the graph is located at point (0,0)."},
    };
    for (const auto& each : cases) {
        const std::string point = std::string("(") + each.x + " , " + each.y + ")";
        const Solution solution = solutionOf([&] { Quadrant(each.x, each.y); });
        expectSound(solution, point);
        EXPECT_EQ(solution.lines, (Lines{point, "Point " + point + " is located:", each.line}));
        EXPECT_EQ(solution.notes.back(), each.note);
    }
}

// Lists of up to nine whole numbers and hundredths, solved by other means: the values are counted in
// hundredths, so sums and differences are exact.
TEST(Statistics, AgreesWithIndependentArithmetic) {
    std::mt19937 random(5);
    const auto spelled = [](int hundredths) {
        std::string text = std::to_string(std::abs(hundredths) / 100);
        if (hundredths % 100 != 0) text += "." + std::to_string(100 + std::abs(hundredths) % 100).substr(1);
        return (hundredths < 0 ? "-" : "") + text;
    };
    for (int round = 0; round < 400; ++round) {
        std::vector<int> values;
        std::string list;
        const int count = 1 + static_cast<int>(random() % 9);
        for (int i = 0; i < count; ++i) {
            const int whole = static_cast<int>(random() % 13) - (i > 0 ? 6 : 0);
            values.push_back(whole * 100 + (random() % 4 == 0 ? 25 * (whole < 0 ? -1 : 1) : 0));
            list += (i > 0 ? "," : "") + spelled(values.back());
        }
        double sum = 0;
        for (const int value : values) sum += value;
        const Solution mean = solutionOf([&] { Mean(list); }, 6);
        expectSound(mean, list);
        EXPECT_NEAR(numberIn(mean.last(), "Average = "), sum / count / 100, 0.6e-6) << list;

        std::vector<int> sorted = values;
        std::sort(sorted.begin(), sorted.end());
        const auto half = static_cast<std::size_t>(count / 2);
        const double median = count % 2 == 1 ? sorted[half] : (sorted[half - 1] + sorted[half]) / 2.0;
        const Solution middle = solutionOf([&] { Median(list); });
        expectSound(middle, list);
        EXPECT_NEAR(numberIn(middle.last(), "The median is "), median / 100, 1e-12) << list;

        const Solution range = solutionOf([&] { Range(list); });
        expectSound(range, list);
        EXPECT_NEAR(numberIn(range.last(), "The range is ", "."), (sorted.back() - sorted.front()) / 100.0, 1e-12);

        std::map<int, int> counts;
        int top = 0;
        for (const int value : values) top = std::max(top, ++counts[value]);
        std::vector<std::string> modes;
        for (const int value : values) {
            const std::string text = spelled(value);
            if (counts[value] == top && std::find(modes.begin(), modes.end(), text) == modes.end())
                modes.push_back(text);
        }
        std::string expected = "There is no mode.";
        if (modes.size() != counts.size()) {
            expected = "Mode: " + modes[0];
            for (std::size_t i = 1; i < modes.size(); ++i) expected += ", " + modes[i];
        }
        const Solution mode = solutionOf([&] { Mode(list); });
        expectSound(mode, list);
        EXPECT_EQ(mode.last(), expected) << list;
    }
}

}  // namespace
}  // namespace ordwise::test
