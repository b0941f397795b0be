// Unit conversions. Lengths and weights are one script over a table of facts; the longer ways are two
// of its stages. Metric prefixes and temperatures have scripts of their own.
#include "ConversionSolvers.hpp"

#include "StepDisplay.hpp"
#include "basOrdwise.hpp"

namespace ordwise {
namespace {

enum Operation { Multiply, Divide };

// How the result line shows its value: to so many places, or one of these.
constexpr int asComputed = -1;
constexpr int byRoundPlaces = -2;

struct UnitConversion {
    const char* fact;
    const char* equality;
    const char* ruleStart;  // the value stands between the two halves of the rule
    const char* ruleEnd;
    const char* ruleNote;
    const char* from;  // behind the value on the result line
    const char* to;
    Operation operation;
    double factor;
    int shownPlaces;
    const char* resultNote;
};

// The factors are not to be made better: each is the one that its sentence teaches, with one
// exception. A gram is told as 0.035 ounces and computed as 0.03524. Pounds and tons have no blank
// before "lb" and "T".
// clang-format off
constexpr UnitConversion inchesToFeet      = {"There are 12 inches in a foot.",               "12 inches = 1 foot",        "To convert inches to feet, divide the number of inches (",  ") by 12:",     "Dividing by 12 will convert inches to feet.",                     " inches = ",  " feet",    Divide,   12,      2,             "Inches converted to feet."};
constexpr UnitConversion feetToInches      = {"There are 12 inches in a foot.",               "12 inches = 1 foot",        "To convert feet to inches, multiply the number of feet (",  ") by 12:",     "Multiplying by 12 will convert feet to inches.",                  " feet = ",    " inches",  Multiply, 12,      asComputed,    "Feet converted to inches."};
constexpr UnitConversion feetToYards       = {"There are 3 feet in a yard.",                  "3 feet = 1 yard",           "To convert feet to yards, divide the number of feet (",     ") by 3:",      "Dividing by 3 will convert feet to yards.",                       " feet = ",    " yards",   Divide,   3,       asComputed,    "Feet converted to yards."};
constexpr UnitConversion feetToMiles       = {"There are 5280 feet in a mile.",               "5280 feet = 1 mile",        "To convert feet to miles, divide the number of feet (",     ") by 5280:",   "Dividing by 5280 will convert feet to miles.",                    " feet = ",    " miles",   Divide,   5280,    5,             "Feet converted to miles."};
constexpr UnitConversion yardsToFeet       = {"There are 3 feet in a yard.",                  "3 feet = 1 yard",           "To convert yards to feet, multiply the number of yards (",  ") by 3:",      "Multiplying by 3 will convert yards to feet.",                    " yards = ",   " feet",    Multiply, 3,       asComputed,    "Yards converted to feet."};
constexpr UnitConversion yardsToMiles      = {"There are 1760 yards in a mile.",              "1760 yards = 1 mile",       "To convert yards to miles, divide the number of yards (",   ") by 1760:",   "Dividing by 1760 will convert yards to miles.",                   " yards = ",   " miles",   Divide,   1760,    5,             "Yards converted to miles."};
constexpr UnitConversion milesToFeet       = {"There are 5280 feet in a mile.",               "5280 feet = 1 mile",        "To convert miles to feet, multiply the number of miles (",  ") by 5280:",   "Multiplying by 5280 will convert miles to feet.",                 " miles = ",   " feet",    Multiply, 5280,    asComputed,    "Miles converted to feet."};
constexpr UnitConversion milesToYards      = {"There are 1760 yards in a mile.",              "1760 yards = 1 mile",       "To convert miles to yards, multiply the number of miles (", ") by 1760:",   "Multiplying by 1760 will convert miles to yards.",                " miles = ",   " yards",   Multiply, 1760,    asComputed,    "Miles converted to yards."};
constexpr UnitConversion ouncesToPounds    = {"There are 16 ounces (oz) in a pound (lb):",    "16 ounces = 1 pound",       "Divide the number of ounces (",                             ") by 16:",     "Dividing by 16 converts ounces to pounds.",                       " oz = ",      " lb",      Divide,   16,      byRoundPlaces, "Ounces converted to pounds."};
constexpr UnitConversion poundsToOunces    = {"There are 16 ounces (oz) in a pound (lb):",    "16 ounces = 1 pound",       "Multiply the number of pounds (",                           ") by 16:",     "Multiplying by 16 converts pounds to ounces.",                    " lb = ",      " oz",      Multiply, 16,      byRoundPlaces, "Pounds converted to ounces."};
constexpr UnitConversion poundsToTons      = {"There are 2000 pounds (lb) in a ton (T):",     "2000 pounds = 1 ton",       "Divide the number of pounds (",                             ") by 2000:",   "Dividing by 2000 converts pounds to tons.",                       "lb = ",       " T",       Divide,   2000,    5,             "Pounds converted to tons."};
constexpr UnitConversion tonsToPounds      = {"There are 2000 pounds (lb) in a ton (T):",     "2000 pounds = 1 ton",       "Multiply the number of tons (",                             ") by 2000:",   "Multiplying by 2000 converts tons to pounds.",                    "T = ",        " lb",      Multiply, 2000,    byRoundPlaces, "Tons converted to pounds."};
constexpr UnitConversion metersToInches    = {"There are 39.37 inches (in) in a meter (m):",  "39.37 inches = 1 meter",    "Multiply the number of meters (",                           ") by 39.37:",  "Multiplying by 39.37 approximately convert meters to inches.",    " m = ",       " in",      Multiply, 39.37,   asComputed,    "Meters converted to inches."};
constexpr UnitConversion metersToFeet      = {"There are 3.3 feet (ft) in a meter (m):",      "3.3 feet = 1 meter",        "Multiply the number of meters (",                           ") by 3.3:",    "Multiplying by 3.3 approximately convert meters to feet.",        " m = ",       " ft",      Multiply, 3.3,     asComputed,    "Meters converted to feet."};
constexpr UnitConversion inchesToMeters    = {"There are 39.37 inches (in) in a meter (m):",  "39.37 inches = 1 meter",    "Divide the number of inches (",                             ") by 39.37:",  "Dividing by 39.37 approximately convert inches to meters.",       " in = ",      " m",       Divide,   39.37,   byRoundPlaces, "Inches converted to meters."};
constexpr UnitConversion feetToMeters      = {"There are 3.3 feet (ft) in a meter (m):",      "3.3 feet = 1 meter",        "Divide the number of feet (",                               ") by 3.3:",    "Dividing by 3.3 approximately convert feet to meters.",           " ft = ",      " m",       Divide,   3.3,     byRoundPlaces, "Feet converted to meters."};
constexpr UnitConversion kilometersToMiles = {"There are 0.621 miles in a kilometer (km):",   "0.621 miles = 1 kilometer", "Multiply the number of kilometers (",                       ") by 0.621:",  "Multiplying by 0.621 approximately convert kilometers to miles.", " km = ",      " mile(s)", Multiply, 0.621,   asComputed,    "Kilometers converted to miles."};
constexpr UnitConversion milesToKilometers = {"There are 0.621 miles in a kilometer (km):",   "0.621 miles = 1 kilometer", "Divide the number of miles (",                              ") by 0.621:",  "Dividing by 0.621 approximately convert miles to kilometers.",    " mile(s) = ", " km",      Divide,   0.621,   byRoundPlaces, "Miles converted to kilometers."};
constexpr UnitConversion gramsToPounds     = {"There are 454 grams (g) in a pound (lb):",     "454 grams = 1 pound",       "Divide the number of grams (",                              ") by 454:",    "Dividing by 454 converts grams to pounds.",                       " g = ",       " lb",      Divide,   454,     3,             "Grams converted to pounds."};
constexpr UnitConversion poundsToGrams     = {"There are 454 grams (g) in a pound (lb):",     "454 grams = 1 pound",       "Multiply the number of pounds (",                           ") by 454:",    "Multiplying by 454 converts pounds to grams.",                    " lb = ",      " g",       Multiply, 454,     byRoundPlaces, "Pounds converted to grams."};
constexpr UnitConversion gramsToOunces     = {"There are 0.035 ounces (oz) in a gram (g):",   "0.035 ounces = 1 gram",     "Multiply the number of grams (",                            ") by 0.035:",  "Multiplying by 0.035 approximately converts grams to ounces.",    " g = ",       " oz",      Multiply, 0.03524, byRoundPlaces, "Grams converted to ounces."};
constexpr UnitConversion ouncesToGrams     = {"There are 28.375 grams (g) in an ounce (oz):", "28.375 grams = 1 ounce",    "Multiply the number of ounces (",                           ") by 28.375:", "Multiplying by 28.375 approximately converts ounces to grams.",   " oz = ",      " g",       Multiply, 28.375,  byRoundPlaces, "Ounces converted to grams."};

// The second stages of the two long ways that end in words of their own.
constexpr UnitConversion feetToYardsOfInches = {"There are 3 feet in a yard.", "3 feet = 1 yard", "To convert feet to yards, divide the number of feet (", ") by 3:", "Dividing by 3 will convert feet to yards.", " feet = ", " yards", Divide, 3, byRoundPlaces, "Convert feet to yards."};
constexpr UnitConversion feetToMilesOfInches = {"There are 5280 feet in a mile.", "5280 feet = 1 mile", "To convert from feet to miles, divide the number of feet (", ") by 5280:", "Dividing by 5280 will convert feet to miles.", " feet = ", " miles", Divide, 5280, 5, "Convert feet to miles."};
// clang-format on

double converted(const UnitConversion& row, const std::string& value) {
    return row.operation == Multiply ? valueOf(value) * row.factor : valueOf(value) / row.factor;
}

std::string shown(const UnitConversion& row, double result) {
    if (row.shownPlaces == asComputed) return textOf(result);
    return textOf(row.shownPlaces == byRoundPlaces ? rounded(result) : Round(result, row.shownPlaces));
}

// Fact, rule and result. Leaves the result as its line shows it.
std::string addStage(const UnitConversion& row, const std::string& value) {
    AddStep(row.fact, row.equality);
    AddStep(text(row.ruleStart, value, row.ruleEnd), row.ruleNote);
    const std::string result = shown(row, converted(row, value));
    AddStep(text(value, row.from, result, row.to), row.resultNote);
    return result;
}

void convert(const UnitConversion& row, const std::string& value) {
    AddStep(value);
    addStage(row, value);
    ShowSteps();
}

std::string convertAsStage(const UnitConversion& row, const std::string& value, bool standalone) {
    if (standalone) AddStep(value);
    addStage(row, value);
    if (standalone) ShowSteps();
    return textOf(rounded(converted(row, value)));
}

struct MetricPrefix {
    double factor;
    const char* prefix;
};

constexpr MetricPrefix metricPrefixes[] = {{0.001, "m"}, {0.01, "c"}, {0.1, "d"}, {1, ""},
                                           {10, "da"},   {100, "h"},  {1000, "k"}};

// e.g. 1000, Grams -> "kg"
std::string unitSign(double factor, MetricKind kind) {
    const char* const base = kind == MetricKind::Meters ? "m" : "g";
    for (const MetricPrefix& row : metricPrefixes) {
        if (row.factor == factor) return text(row.prefix, base);
    }
    return base;
}

}  // namespace

void ConvertFeetToInches(const std::string& value) {
    convert(feetToInches, value);
}

void ConvertFeetToYards(const std::string& value) {
    convert(feetToYards, value);
}

void ConvertFeetToMiles(const std::string& value) {
    convert(feetToMiles, value);
}

void ConvertYardsToMiles(const std::string& value) {
    convert(yardsToMiles, value);
}

void ConvertMilesToYards(const std::string& value) {
    convert(milesToYards, value);
}

void ConvertMetersToInches(const std::string& value) {
    convert(metersToInches, value);
}

void ConvertMetersToFeet(const std::string& value) {
    convert(metersToFeet, value);
}

void ConvertInchesToMeters(const std::string& value) {
    convert(inchesToMeters, value);
}

void ConvertFeetToMeters(const std::string& value) {
    convert(feetToMeters, value);
}

void ConvertKilometersToMiles(const std::string& value) {
    convert(kilometersToMiles, value);
}

void ConvertMilesToKilometers(const std::string& value) {
    convert(milesToKilometers, value);
}

void ConvertGramsToPounds(const std::string& value) {
    convert(gramsToPounds, value);
}

void ConvertPoundsToGrams(const std::string& value) {
    convert(poundsToGrams, value);
}

void ConvertGramsToOunces(const std::string& value) {
    convert(gramsToOunces, value);
}

void ConvertOuncesToGrams(const std::string& value) {
    convert(ouncesToGrams, value);
}

std::string ConvertInchesToFeet(const std::string& value, bool standalone) {
    return convertAsStage(inchesToFeet, value, standalone);
}

std::string ConvertYardsToFeet(const std::string& value, bool standalone) {
    return convertAsStage(yardsToFeet, value, standalone);
}

std::string ConvertMilesToFeet(const std::string& value, bool standalone) {
    return convertAsStage(milesToFeet, value, standalone);
}

std::string ConvertOuncesToPounds(const std::string& value, bool standalone) {
    return convertAsStage(ouncesToPounds, value, standalone);
}

std::string ConvertPoundsToOunces(const std::string& value, bool standalone) {
    return convertAsStage(poundsToOunces, value, standalone);
}

std::string ConvertPoundsToTons(const std::string& value, bool standalone) {
    return convertAsStage(poundsToTons, value, standalone);
}

std::string ConvertTonsToPounds(const std::string& value, bool standalone) {
    return convertAsStage(tonsToPounds, value, standalone);
}

void ConvertInchesToYards(const std::string& value) {
    AddStep(value);
    AddStep("To convert inches to yards, first convert inches to feet:",
            "Convert inches to feet, then convert feet to yards.");
    const std::string feet = ConvertInchesToFeet(value, /*standalone=*/false);
    const std::string yards = addStage(feetToYardsOfInches, feet);
    AddStep(text(value, " inches = ", yards, " yards"), "Substitute the number of inches back into the equation.");
    ShowSteps();
}

void ConvertInchesToMiles(const std::string& value) {
    AddStep(value);
    AddStep("To convert inches to miles, first convert inches to feet:",
            "Convert inches to feet, then convert feet to miles.");
    const std::string feet = ConvertInchesToFeet(value, /*standalone=*/false);
    const std::string miles = addStage(feetToMilesOfInches, feet);
    AddStep(text(value, " inches = ", miles, " miles"), "Substitute the number of inches back into the equation.");
    ShowSteps();
}

void ConvertYardsToInches(const std::string& value) {
    AddStep(value);
    AddStep("To convert yards to inches, first convert yards to feet:",
            "Convert yards to feet, then convert feet to inches.");
    const std::string feet = ConvertYardsToFeet(value, /*standalone=*/false);
    const std::string inches = addStage(feetToInches, feet);
    AddStep(text(value, " yards = ", inches, " inches"), "Substitute the number of yards into the original equation.");
    ShowSteps();
}

void ConvertMilesToInches(const std::string& value) {
    AddStep(value);
    AddStep("To convert miles to inches, first convert miles to feet:",
            "Convert miles to feet, then convert feet to inches.");
    const std::string feet = ConvertMilesToFeet(value, /*standalone=*/false);
    const std::string inches = addStage(feetToInches, feet);
    AddStep(text(value, " miles = ", inches, " inches"), "Substitute the number of miles into the original equation.");
    ShowSteps();
}

void ConvertOuncesToTons(const std::string& value) {
    AddStep(value);
    AddStep("To convert from ounces (oz) to tons (T):", "First convert ounces to pounds, then convert pounds to tons.");
    AddStep("First, convert from ounces (oz) to pounds (lb):", "Convert ounces to pounds.");
    const std::string pounds = ConvertOuncesToPounds(value, /*standalone=*/false);
    const std::string tons = addStage(poundsToTons, pounds);
    AddStep(text(value, " oz = ", tons, " T"), "Ounces converted to tons.");
    ShowSteps();
}

void ConvertTonsToOunces(const std::string& value) {
    AddStep(value);
    AddStep("To convert from tons (T) to ounces (oz):", "First convert tons to pounds, then convert pounds to ounces.");
    AddStep("First, convert from tons (T) to pounds (lb):", "Convert tons to pounds.");
    const std::string pounds = ConvertTonsToPounds(value, /*standalone=*/false);
    const std::string ounces = ConvertPoundsToOunces(pounds, /*standalone=*/false);
    AddStep(text(value, " T = ", ounces, " oz"), "Tons converted to ounces.");
    ShowSteps();
}

void MetricConvert(const std::string& value, double fromFactor, double toFactor, MetricKind kind) {
    const std::string base = kind == MetricKind::Meters ? "meters" : "grams";
    const std::string from = unitSign(fromFactor, kind);
    const std::string to = unitSign(toFactor, kind);
    AddStep(text(value, " ", from, " = ? ", to));
    startLinesAt(belowFormula);
    AddStep(text("To convert ", value, " ", from, " to ", to, ":"),
            text("Convert ", value, " ", from, " to ", to, "."));
    AddStep(text("Multiply ", value, " by the number of ", base, " in a ", from, " (", fromFactor, ")"),
            text("Multiply ", value, " by ", fromFactor, "."));
    AddStep(text("Then divide by the number of ", base, " in a ", to, " (", toFactor, ") "),
            text("Divide by ", toFactor, "."));
    AddStep(text("#", value, " * ", fromFactor, "/", toFactor, "#"),
            "Multiply the values in the numerator then divide by the denominator.");
    AddStep(text(value, " ", from, " = ", Round(valueOf(value) * fromFactor / toFactor, 7), " ", to),
            text(value, " ", from, " converted to ", to, "."));
    ShowSteps();
}

void FahrenheitToCelsius(const std::string& f) {
    AddStep(f);
    AddStep(text("To convert ", f, "^o^ Fahrenheit (F) to Celsius (C):"),
            "Celsius can be converted to Fahrenheit using a formula.");
    AddStep("Use the formula: C = #5/9# * (F - 32)",
            "This formula converts Fahrenheit temperatures to Celsius temperatures.");
    AddStep(text("C = #5/9# * (", f, " - 32)"), "Substitute the Fahrenheit temperature into the equation.");
    const double celsius = rounded((valueOf(f) - 32) * (5.0 / 9.0));
    AddStep(text("C = ", celsius), "Solve for C.");
    AddStep(text(f, "^o^ F = ", celsius, "^o^ C"), "Fahrenheit converted to Celsius.");
    ShowSteps();
}

void CelsiusToFahrenheit(const std::string& c) {
    AddStep(c);
    AddStep(text("To convert ", c, "^o^ Celsius (C) to Fahrenheit (F):"),
            "Fahrenheit can be converted to Celsius using a formula.");
    AddStep("Use the formula: F = #9/5# * C + 32",
            "This formula converts Celsius temperatures to Fahrenheit temperatures.");
    AddStep(text("F = #9/5# * ", c, " + 32"), "Substitute the Celsius temperature into the equation.");
    const double fahrenheit = rounded(valueOf(c) * (9.0 / 5.0) + 32);
    AddStep(text("F = ", fahrenheit), "Solve for F.");
    AddStep(text(c, "^o^ C = ", fahrenheit, "^o^ F"), "Celsius converted to Fahrenheit.");
    ShowSteps();
}

}  // namespace ordwise
