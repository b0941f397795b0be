// Units, prefixes and temperatures. The factors are the program's own, some of them approximate.
#include "TopicFamilies.hpp"

#include <cmath>

namespace ordwise::test {

namespace {

constexpr int asSet = -1;  // rounded to the places that the settings ask for
constexpr int asIs = 15;   // not rounded

struct Unit {
    const char* topic;
    double factor;
    int places;
    double secondStage = 0;  // the factor of a second stage, which begins with the rounded first
};

constexpr Unit units[] = {
    {"Converting Grams To Ounces", 0.03524, asSet},
    {"Converting Kilometers To Miles", 0.621, asIs},
    {"Converting Meters To Feet", 3.3, asIs},
    {"Converting Meters To Inches", 39.37, asIs},
    {"Converting Ounces To Grams", 28.375, asSet},
    {"Converting Pounds To Grams", 454, asSet},
    {"Converting Miles To Kilometers", 1 / 0.621, asSet},
    {"Converting Feet To Meters", 1 / 3.3, asSet},
    {"Converting Inches To Meters", 1 / 39.37, asSet},
    {"Converting Tons To Pounds", 2000, asSet},
    {"Converting Tons To Ounces", 32000, asSet, 16},
    {"Converting Pounds To Tons", 1.0 / 2000, 5},
    {"Converting Pounds To Ounces", 16, asSet},
    {"Converting Ounces To Tons", 1.0 / 32000, 5, 1.0 / 2000},
    {"Converting Ounces To Pounds", 1.0 / 16, asSet},
    {"Converting Miles To Yards", 1760, asIs},
    {"Converting Miles To Feet", 5280, asIs},
    {"Converting Miles To Inches", 63360, asIs, 12},
    {"Converting Yards To Miles", 1.0 / 1760, 5},
    {"Converting Yards To Feet", 3, asIs},
    {"Converting Yards To Inches", 36, asIs, 12},
    {"Converting Feet To Miles", 1.0 / 5280, 5},
    {"Converting Feet To Yards", 1.0 / 3, asIs},
    {"Converting Feet To Inches", 12, asIs},
    {"Converting Inches To Feet", 1.0 / 12, 2},
    {"Converting Inches To Yards", 1.0 / 36, asSet, 1.0 / 3},
    {"Converting Inches To Miles", 1.0 / 63360, 5, 1.0 / 5280},
    {"Converting Grams To Pounds", 1.0 / 454, 3},
};

DrawnProblem drawConversion(const Unit& unit, Draws& draws) {
    std::string text = draws.number(4);
    if (draws.chance(30)) text += "." + std::to_string(draws.between(1, 99));
    DrawnProblem drawn{{unit.topic, text}, {}};
    const int places = placesFor(draws, drawn.problem);
    drawn.wanted.last = valueText(text) * unit.factor;
    drawn.wanted.places = unit.places == asSet ? places : unit.places;
    drawn.wanted.slack = 0.5 * std::pow(10.0, -places) * unit.secondStage;
    return drawn;
}

DrawnProblem drawPrefix(const char* topic, Draws& draws) {
    static constexpr double factors[] = {0.001, 0.01, 0.1, 1, 10, 100, 1000};
    const std::string text = positiveText(draws);
    const int from = draws.below(7);
    const int to = draws.below(7);
    DrawnProblem drawn{{topic, "", {{4, text}}, {{1, from}, {2, to}}}, {}};
    drawn.wanted.last = valueText(text) * factors[from] / factors[to];
    drawn.wanted.places = 7;
    return drawn;
}

DrawnProblem drawCelsius(Draws& draws) {
    const std::string text = draws.number(3);
    DrawnProblem drawn{{"Converting Celsius To Fahrenheit", text}, {}};
    drawn.wanted.places = placesFor(draws, drawn.problem);
    drawn.wanted.last = valueText(text) * 9 / 5 + 32;
    drawn.wanted.part = text + "^o^ C = ";
    return drawn;
}

DrawnProblem drawFahrenheit(Draws& draws) {
    const std::string text = draws.number(3);
    DrawnProblem drawn{{"Converting Fahrenheit To Celsius", text}, {}};
    drawn.wanted.places = placesFor(draws, drawn.problem);
    drawn.wanted.last = (valueText(text) - 32) * 5 / 9;
    drawn.wanted.part = text + "^o^ F = ";
    return drawn;
}

}  // namespace

std::vector<TopicGenerator> conversionGenerators() {
    std::vector<TopicGenerator> all;
    for (const Unit& unit : units) {
        all.push_back([&unit](Draws& draws) { return drawConversion(unit, draws); });
    }
    all.push_back([](Draws& draws) { return drawPrefix("Meter Conversions", draws); });
    all.push_back([](Draws& draws) { return drawPrefix("Gram Conversions", draws); });
    all.push_back(drawCelsius);
    all.push_back(drawFahrenheit);
    return all;
}

}  // namespace ordwise::test
