#include "ConversionSolvers.hpp"

#include "SolutionOf.hpp"

#include <cmath>
#include <random>

namespace ordwise::test {
namespace {

constexpr int asComputed = 12;  // places that a printed figure keeps at least
constexpr int settings = -1;    // as many as RoundPlaces

template <std::string (*stage)(const std::string&, bool)>
void alone(const std::string& value) {
    stage(value, true);
}

// The factor by which a value is really multiplied, and the places of the line that shows it.
struct Fact {
    void (*convert)(const std::string&);
    const char* from;
    const char* to;
    double factor;
    int places;
};

const Fact facts[] = {
    {alone<ConvertInchesToFeet>, " inches = ", " feet", 1.0 / 12, 2},
    {ConvertFeetToInches, " feet = ", " inches", 12, asComputed},
    {ConvertFeetToYards, " feet = ", " yards", 1.0 / 3, asComputed},
    {ConvertFeetToMiles, " feet = ", " miles", 1.0 / 5280, 5},
    {alone<ConvertYardsToFeet>, " yards = ", " feet", 3, asComputed},
    {ConvertYardsToMiles, " yards = ", " miles", 1.0 / 1760, 5},
    {alone<ConvertMilesToFeet>, " miles = ", " feet", 5280, asComputed},
    {ConvertMilesToYards, " miles = ", " yards", 1760, asComputed},
    {alone<ConvertOuncesToPounds>, " oz = ", " lb", 1.0 / 16, settings},
    {alone<ConvertPoundsToOunces>, " lb = ", " oz", 16, settings},
    {alone<ConvertPoundsToTons>, "lb = ", " T", 1.0 / 2000, 5},
    {alone<ConvertTonsToPounds>, "T = ", " lb", 2000, settings},
    {ConvertMetersToInches, " m = ", " in", 39.37, asComputed},
    {ConvertMetersToFeet, " m = ", " ft", 3.3, asComputed},
    {ConvertInchesToMeters, " in = ", " m", 1 / 39.37, settings},
    {ConvertFeetToMeters, " ft = ", " m", 1 / 3.3, settings},
    {ConvertKilometersToMiles, " km = ", " mile(s)", 0.621, asComputed},
    {ConvertMilesToKilometers, " mile(s) = ", " km", 1 / 0.621, settings},
    {ConvertGramsToPounds, " g = ", " lb", 1.0 / 454, 3},
    {ConvertPoundsToGrams, " lb = ", " g", 454, settings},
    {ConvertGramsToOunces, " g = ", " oz", 0.03524, settings},
    {ConvertOuncesToGrams, " oz = ", " g", 28.375, settings},
    {ConvertInchesToYards, " inches = ", " yards", 1.0 / 36, settings},
    {ConvertInchesToMiles, " inches = ", " miles", 1.0 / 63360, 5},
    {ConvertYardsToInches, " yards = ", " inches", 36, settings},
    {ConvertMilesToInches, " miles = ", " inches", 63360, settings},
    {ConvertOuncesToTons, " oz = ", " T", 1.0 / 32000, settings},
    {ConvertTonsToOunces, " T = ", " oz", 32000, settings},
};

TEST(Conversion, EndsInTheFigureOfItsFact) {
    std::mt19937 random(7);
    for (const Fact& fact : facts) {
        for (int round = 0; round < 40; ++round) {
            const std::string value =
                std::to_string(random() % 10000) + (round % 3 == 0 ? "." + std::to_string(random() % 100) : "");
            // Six places: enough to tell factors apart, and fewer than a stage may lose.
            const Solution solution = solutionOf([&] { fact.convert(value); }, 6);
            expectSound(solution, value + fact.from);
            EXPECT_EQ(solution.lines.front(), value);
            EXPECT_EQ(solution.last().rfind(value + fact.from, 0), 0U) << solution.last();
            const double expected = std::stod(value) * fact.factor;
            const double shown = numberIn(solution.last(), fact.from, fact.to);
            const double half = 0.51 * std::pow(10, -(fact.places == settings ? 6 : fact.places));
            EXPECT_NEAR(shown, expected, half + std::abs(expected) * 1e-13 + 16 * 0.5e-6 * (fact.places != asComputed))
                << solution.last();
        }
    }
}

TEST(Conversion, ShowsSoManyPlacesAsItsTopicWants) {
    const struct {
        void (*convert)(const std::string&);
        const char* value;
        const char* last;
    } cases[] = {
        {alone<ConvertInchesToFeet>, "12", "12 inches = 1 feet"},
        {alone<ConvertInchesToFeet>, "7", "7 inches = 0.58 feet"},
        {ConvertFeetToMiles, "100", "100 feet = 0.01894 miles"},
        {ConvertGramsToPounds, "100", "100 g = 0.22 lb"},
        {ConvertGramsToOunces, "1000", "1000 g = 35.2 oz"},
        {alone<ConvertPoundsToTons>, "5000", "5000lb = 2.5 T"},
        {alone<ConvertPoundsToTons>, "1", "1lb = 0.0005 T"},
        {alone<ConvertTonsToPounds>, "1.5", "1.5T = 3000 lb"},
        {ConvertFeetToYards, "1", "1 feet = 0.333333333333333 yards"},
        {ConvertKilometersToMiles, "05.", "05. km = 3.105 mile(s)"},
        // A stage hands on what RoundPlaces leaves of it, here one place of 0.58333 feet.
        {ConvertInchesToYards, "7", "7 inches = 0.2 yards"},
        {ConvertOuncesToTons, "5000", "5000 oz = 0.2 T"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(solutionOf([&] { each.convert(each.value); }, 1).last(), each.last) << each.value;
}

TEST(Conversion, TellsItsFactAndRule) {
    const Solution grams = solutionOf([] { ConvertGramsToOunces("1000"); });
    EXPECT_EQ(grams.lines, (Lines{"1000", "There are 0.035 ounces (oz) in a gram (g):",
                                  "Multiply the number of grams (1000) by 0.035:", "1000 g = 35.24 oz"}));
    EXPECT_EQ(grams.notes,
              (Lines{"", "0.035 ounces = 1 gram", "Multiplying by 0.035 approximately converts grams to ounces.",
                     "Grams converted to ounces."}));
}

TEST(Conversion, TheLongWaysGoThroughBothStages) {
    EXPECT_EQ(
        solutionOf([] { ConvertInchesToYards("90"); }).lines,
        (Lines{"90", "To convert inches to yards, first convert inches to feet:", "There are 12 inches in a foot.",
               "To convert inches to feet, divide the number of inches (90) by 12:", "90 inches = 7.5 feet",
               "There are 3 feet in a yard.", "To convert feet to yards, divide the number of feet (7.5) by 3:",
               "7.5 feet = 2.5 yards", "90 inches = 2.5 yards"}));
    EXPECT_EQ(
        solutionOf([] { ConvertInchesToMiles("6336"); }).lines,
        (Lines{"6336", "To convert inches to miles, first convert inches to feet:", "There are 12 inches in a foot.",
               "To convert inches to feet, divide the number of inches (6336) by 12:", "6336 inches = 528 feet",
               "There are 5280 feet in a mile.",
               "To convert from feet to miles, divide the number of feet (528) by 5280:", "528 feet = 0.1 miles",
               "6336 inches = 0.1 miles"}));
    EXPECT_EQ(solutionOf([] { ConvertYardsToInches("2"); }).lines,
              (Lines{"2", "To convert yards to inches, first convert yards to feet:", "There are 3 feet in a yard.",
                     "To convert yards to feet, multiply the number of yards (2) by 3:", "2 yards = 6 feet",
                     "There are 12 inches in a foot.",
                     "To convert feet to inches, multiply the number of feet (6) by 12:", "6 feet = 72 inches",
                     "2 yards = 72 inches"}));
    EXPECT_EQ(solutionOf([] { ConvertTonsToOunces("2"); }).lines,
              (Lines{"2", "To convert from tons (T) to ounces (oz):", "First, convert from tons (T) to pounds (lb):",
                     "There are 2000 pounds (lb) in a ton (T):", "Multiply the number of tons (2) by 2000:",
                     "2T = 4000 lb", "There are 16 ounces (oz) in a pound (lb):",
                     "Multiply the number of pounds (4000) by 16:", "4000 lb = 64000 oz", "2 T = 64000 oz"}));
}

TEST(Conversion, AStageNeitherRestatesNorShowsAndHandsOnTheRoundedValue) {
    std::string feet;
    const Solution solution = solutionOf([&] { feet = ConvertInchesToFeet("7", false); }, 4);
    EXPECT_EQ(feet, "0.5833");
    EXPECT_EQ(solution.last(), "7 inches = 0.58 feet");
    EXPECT_EQ(solution.lines.size(), 3U);
    EXPECT_EQ(ws.ShownStep, 0);
}

TEST(MetricPrefixes, AreMultipliedAndDivided) {
    const Solution solution = solutionOf([] { MetricConvert("5", 1000, 1, MetricKind::Meters); });
    expectSound(solution, "5 km");
    EXPECT_EQ(solution.lines,
              (Lines{"5 km = ? m", "To convert 5 km to m:", "Multiply 5 by the number of meters in a km (1000)",
                     "Then divide by the number of meters in a m (1) ", "#5 * 1000/1#", "5 km = 5000 m"}));
    EXPECT_EQ(solutionOf([] { MetricConvert("5", 7, 10, MetricKind::Grams); }).last(), "5 g = 3.5 dag");

    const struct {
        double factor;
        std::string sign;
    } units[] = {{0.001, "mg"}, {0.01, "cg"}, {0.1, "dg"}, {1, "g"}, {10, "dag"}, {100, "hg"}, {1000, "kg"}};
    for (const auto& from : units) {
        for (const auto& to : units) {
            const Solution each = solutionOf([&] { MetricConvert("2.5", from.factor, to.factor, MetricKind::Grams); });
            expectSound(each, from.sign + " to " + to.sign);
            EXPECT_NEAR(numberIn(each.last(), "2.5 " + from.sign + " = ", " " + to.sign), 2.5 * from.factor / to.factor,
                        0.51e-7 + 1e-9 * from.factor / to.factor);
        }
    }
}

TEST(Temperature, IsConvertedBothWays) {
    EXPECT_EQ(solutionOf([] { FahrenheitToCelsius("100"); }).lines,
              (Lines{"100", "To convert 100^o^ Fahrenheit (F) to Celsius (C):", "Use the formula: C = #5/9# * (F - 32)",
                     "C = #5/9# * (100 - 32)", "C = 37.78", "100^o^ F = 37.78^o^ C"}));
    EXPECT_EQ(solutionOf([] { CelsiusToFahrenheit("37.5"); }).lines,
              (Lines{"37.5", "To convert 37.5^o^ Celsius (C) to Fahrenheit (F):", "Use the formula: F = #9/5# * C + 32",
                     "F = #9/5# * 37.5 + 32", "F = 99.5", "37.5^o^ C = 99.5^o^ F"}));
    for (int degrees = 0; degrees < 1000; degrees += 13) {
        const std::string text = std::to_string(degrees);
        const Solution celsius = solutionOf([&] { FahrenheitToCelsius(text); });
        expectSound(celsius, text + " F");
        EXPECT_NEAR(numberIn(celsius.lines[4], "C = "), (degrees - 32) * 5 / 9.0, 0.00501);
        const Solution fahrenheit = solutionOf([&] { CelsiusToFahrenheit(text); });
        expectSound(fahrenheit, text + " C");
        EXPECT_NEAR(numberIn(fahrenheit.lines[4], "F = "), degrees * 9 / 5.0 + 32, 0.00501);
    }
}

}  // namespace
}  // namespace ordwise::test
