// Lengths, weights, temperatures and metric prefixes.
//
// The value arrives as it was typed and prints so. The factors are the program's own: several are
// rough, and what a line tells is not always what is computed.
#pragma once

#include <string>

namespace ordwise {

// One stage: fact, rule, result. e.g. ConvertFeetToInches("2") -> "2 feet = 24 inches"
void ConvertFeetToInches(const std::string& value);
void ConvertFeetToYards(const std::string& value);
void ConvertFeetToMiles(const std::string& value);
void ConvertYardsToMiles(const std::string& value);
void ConvertMilesToYards(const std::string& value);
void ConvertMetersToInches(const std::string& value);
void ConvertMetersToFeet(const std::string& value);
void ConvertInchesToMeters(const std::string& value);
void ConvertFeetToMeters(const std::string& value);
void ConvertKilometersToMiles(const std::string& value);
void ConvertMilesToKilometers(const std::string& value);
void ConvertGramsToPounds(const std::string& value);
void ConvertPoundsToGrams(const std::string& value);
void ConvertGramsToOunces(const std::string& value);
void ConvertOuncesToGrams(const std::string& value);

// One stage that also serves inside a longer conversion. With `standalone` it restates the problem
// and shows the steps. The result is the value rounded to RoundPlaces, which may be coarser or finer
// than what its last line shows. e.g. ConvertInchesToFeet("12", true) -> "12 inches = 1 feet"
std::string ConvertInchesToFeet(const std::string& value, bool standalone);
std::string ConvertYardsToFeet(const std::string& value, bool standalone);
std::string ConvertMilesToFeet(const std::string& value, bool standalone);
std::string ConvertOuncesToPounds(const std::string& value, bool standalone);
std::string ConvertPoundsToOunces(const std::string& value, bool standalone);
std::string ConvertPoundsToTons(const std::string& value, bool standalone);
std::string ConvertTonsToPounds(const std::string& value, bool standalone);

// Two stages. e.g. ConvertInchesToYards("72") -> "72 inches = 2 yards"
void ConvertInchesToYards(const std::string& value);
void ConvertInchesToMiles(const std::string& value);
void ConvertYardsToInches(const std::string& value);
void ConvertMilesToInches(const std::string& value);
void ConvertOuncesToTons(const std::string& value);
void ConvertTonsToOunces(const std::string& value);

// Metric prefixes, by the factors of the two units: 0.001, 0.01, 0.1, 1, 10, 100 or 1000 of the base
// unit; any other factor has no prefix. Lines start below the boxes.
// e.g. "5", 1000, 1, Meters -> "5 km = 5000 m"
enum class MetricKind { Meters = 1, Grams = 2 };
void MetricConvert(const std::string& value, double fromFactor, double toFactor, MetricKind kind);

void FahrenheitToCelsius(const std::string& f);  // e.g. "212" -> "212^o^ F = 100^o^ C"
void CelsiusToFahrenheit(const std::string& c);  // e.g. "100" -> "100^o^ C = 212^o^ F"

}  // namespace ordwise
