// The statistics topics: a list is split at its commas and its values print as they were typed; only
// sums, differences and averages are numbers.
#include "StatisticsSolvers.hpp"

#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "basOrdwise.hpp"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace ordwise {
namespace {

using Values = std::vector<std::string>;

// Sorts by value with exchange passes, each slot being compared with every later one. The passes also
// settle the order of values that are equal but typed differently. e.g. 2, 1.0, 1, 0 -> 0, 1, 1.0, 2
template <class OutOfOrder>
void exchangeSort(Values& values, OutOfOrder outOfOrder) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (std::size_t j = i + 1; j < values.size(); ++j) {
            if (outOfOrder(valueOf(values[i]), valueOf(values[j]))) std::swap(values[i], values[j]);
        }
    }
}

// e.g. "-2" -> "(-2)"
std::string inParenthesesIfNegative(const std::string& value) {
    return valueOf(value) < 0 ? replaced(value, "-", "(-") + ")" : value;
}

struct Occurrence {
    std::string value;
    int times;
};

// The different texts in the order of their first appearance. e.g. 2, 1, 2 -> 2 twice, 1 once
std::vector<Occurrence> countedOccurrences(const Values& values) {
    std::vector<Occurrence> counts;
    for (const std::string& value : values) {
        const auto known = std::find_if(counts.begin(), counts.end(),
                                        [&](const Occurrence& occurrence) { return occurrence.value == value; });
        if (known == counts.end()) {
            counts.push_back({value, 1});
        } else {
            ++known->times;
        }
    }
    return counts;
}

int signOf(double value) {
    return value > 0 ? 1 : value < 0 ? -1 : 0;
}

struct PlaceOfPoint {
    int signOfX;
    int signOfY;
    const char* line;
    const char* note;
};

// clang-format off
constexpr PlaceOfPoint placesOfPoint[] = {
    { 1,  1, "Both coordinates are positive - Quadrant I", "Both coordinates are greater than 0."},
    {-1,  1, "The first coordinate is negative, the second is positive - Quadrant II.", "The first coordinate is less than 0, and the second is greater than 0."},
    {-1, -1, "Both coordinates are negative - Quadrant III", "Both coordinates are less than 0."},
    { 1, -1, "The first coordinate is positive, the second is negative - Quadrant IV.", "The first coordinate is greater than 0, and the second is less than 0."},
    { 1,  0, "The point is located along the axis between Quadrant I and IV", "The first coordinate is greater than 0, and the second is 0."},
    {-1,  0, "The point is located along the axis between Quadrant II and III", "The first coordinate is less than 0, and the second is 0."},
    { 0,  1, "The point is located along the axis between Quadrant I and II", "The first coordinate is 0, and the second is greater than 0."},
    { 0, -1, "The point is located along the axis between Quadrant III and IV", "The first coordinate is 0, and the second is less than 0."},
    { 0,  0, "The point is located at the origin.", "The origin of the graph is located at point (0,0)."},
};
// clang-format on

}  // namespace

void Mean(const std::string& list) {
    AddStep(list);
    const Values values = split(replaced(list, "+", ""), ',');
    const int count = static_cast<int>(values.size());
    const std::string sumText = replaced(joined(values, "+"), "+-", "-");
    double sum = 0;
    for (const std::string& value : values) sum += valueOf(value);

    AddStep("Add all the numbers then divide by the amount of numbers:",
            "The mean of a group of numbers is the average of that group.");
    AddStep(text("Average = #", sumText, " / ", count, "#"),
            text("There are ", count, " numbers, so add all the numbers and divide by ", count, "."));
    AddStep(text("Average = #", sum, " / ", count, "#"), "Add all the numbers in the numerator.");
    AddStep(text("Average = ", rounded(sum / count)), "Divide to find the average.");
    ShowSteps();
}

void Median(const std::string& list) {
    AddStep(list);
    AddStep("To determine the median, arrange the numbers from smallest to largest:",
            "The median of a group of numbers is the number in the middle of that group after it is arranged from "
            "smallest to largest.");
    Values values = split(list, ',');
    exchangeSort(values, std::greater<>());
    AddStep(joined(values, ","), "Arranged from smallest to largest.");
    AddStep("If the amount of numbers is odd, the median is the number in the middle.",
            "If there are an odd amount of numbers, an equal amount of numbers fall on both sides of the median.");
    AddStep("If the amount is even, the median is the average of the two middle numbers.",
            "The average of two numbers is the sum divided by 2.");

    const int count = static_cast<int>(values.size());
    const std::string& upper = values[values.size() / 2];
    if (count % 2 == 0) {
        const std::string& lower = values[values.size() / 2 - 1];
        AddStep(text("There is an even amount of numbers: ", count), "The sum of the numbers divides evenly by 2.");
        AddStep(text("Take the average of the two middle numbers: ", lower, " and ", upper),
                "The average is the sum of the two middle numbers divided by 2.");
        AddStep(text("The median is ", (valueOf(lower) + valueOf(upper)) / 2), "Determine the median.");
    } else {
        AddStep(text("There is an odd amount of numbers: ", count), "The sum of the numbers does not divide evenly.");
        AddStep(text("The median is ", upper), "Determine the median.");
    }
    ShowSteps();
}

void Range(const std::string& list) {
    AddStep(list);
    AddStep("The range of a group of numbers is the difference between the largest",
            "To find the range, determine the largest and smallest numbers in the group and subtract.");
    AddStep("and smallest numbers in that group.",
            "To find the range, determine the largest and smallest numbers in the group and subtract.");
    Values values = split(list, ',');
    exchangeSort(values, std::less<>());
    const std::string& largest = values.front();
    const std::string& smallest = values.back();
    AddStep(text(inParenthesesIfNegative(largest), " - ", inParenthesesIfNegative(smallest)),
            "Subtract the smallest number from the largest.");
    AddStep(text("The range is ", valueOf(largest) - valueOf(smallest), "."), "Calculate the range.");
    ShowSteps();
}

void Mode(const std::string& list) {
    AddStep(list);
    AddStep("The mode is the number (or numbers) that occurs most often in a group.",
            "Count the occurrence of each number in the group:");
    const std::vector<Occurrence> counts = countedOccurrences(split(list, ','));
    int top = 0;
    for (const Occurrence& occurrence : counts) top = std::max(top, occurrence.times);
    Values modes;
    for (const Occurrence& occurrence : counts) {
        if (occurrence.times == top) modes.push_back(occurrence.value);
    }

    if (modes.size() == counts.size()) {
        AddStep(text("Each number occurs the same number of times (", top, ")."),
                "To find a mode, one or more of the numbers have to occur more than at least one number.");
        AddStep("There is no mode.", "A mode could not be calculate from the given numbers.");
    } else if (modes.size() == 1) {
        AddStep(text(modes.front(), " occurs the most (", top, " times):"), "One mode has been found.");
        AddStep(text("Mode: ", modes.front()), "The mode of the given group of numbers.");
    } else {
        AddStep(text("There are ", static_cast<int>(modes.size()), " modes, each occuring ", top, " times:"),
                "Mulitple modes have been calculated.");
        AddStep(text("Mode: ", joined(modes, ", ")), "Modes of the given group of numbers.");
    }
    ShowSteps();
}

void Quadrant(const std::string& x, const std::string& y) {
    AddStep(text("(", x, " , ", y, ")"));
    AddStep(text("Point (", x, " , ", y, ") is located:"),
            "The location of the point is detemined by the coordinates and whether each is positive or negative.");
    const int signOfX = signOf(valueOf(x));
    const int signOfY = signOf(valueOf(y));
    for (const PlaceOfPoint& place : placesOfPoint) {
        if (place.signOfX == signOfX && place.signOfY == signOfY) AddStep(place.line, place.note);
    }
    ShowSteps();
}

}  // namespace ordwise
