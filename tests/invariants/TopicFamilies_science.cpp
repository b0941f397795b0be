// Scientific notation.
#include "TopicFamilies.hpp"

#include <cmath>

namespace ordwise::test {

namespace {

std::string exponentText(Draws& draws) {
    return (draws.chance(35) ? "-" : "") + std::to_string(draws.below(10));
}

DrawnProblem drawScientificToRegular(Draws& draws) {
    const std::string base = positiveText(draws);
    const std::string exponent = exponentText(draws);
    DrawnProblem drawn{{"Converting Scientific To Regular Notation", "", {{1, base}, {2, exponent}}}, {}};
    drawn.wanted.last = valueText(base) * std::pow(10.0, valueText(exponent));
    return drawn;
}

// The last line is "m * 10^e^" with m from 1 to below 10.
DrawnProblem drawRegularToScientific(Draws& draws) {
    std::string text = draws.number(4);
    if (draws.chance(30)) text += "." + std::to_string(draws.between(1, 99));
    if (draws.chance(20)) text = draws.oneOf<const char*>({"0.05", "0.5", ".25", "0.99", "1", "10"});
    DrawnProblem drawn{{"Converting Regular To Scientific Notation", text}, {}};
    const double value = valueText(text);
    const double exponent = std::floor(std::log10(value) + 1e-12);
    drawn.wanted.first = value / std::pow(10.0, exponent);
    drawn.wanted.places = 12;
    drawn.wanted.part = " * 10^" + std::to_string(static_cast<int>(exponent)) + "^";
    return drawn;
}

DrawnProblem drawScientificProduct(Draws& draws, bool divides) {
    const std::string a = positiveText(draws);
    const std::string p = exponentText(draws);
    const std::string b = divides && draws.chance(4) ? "0" : positiveText(draws);
    const std::string q = exponentText(draws);
    const char* topic = divides ? "Dividing Scientific Notation" : "Multiplying Scientific Notation";
    DrawnProblem drawn{{topic, "", {{1, a}, {2, p}, {3, b}, {4, q}}}, {}};
    drawn.wanted.places = placesFor(draws, drawn.problem);
    if (divides && b == "0") {
        drawn.wanted.line = "Division by 0 is illegal.";
        return drawn;
    }
    const double exponent = valueText(p) + (divides ? -1 : 1) * valueText(q);
    drawn.wanted.first = divides ? valueText(a) / valueText(b) : valueText(a) * valueText(b);
    drawn.wanted.part = " * 10^" + std::to_string(static_cast<int>(exponent)) + "^";
    return drawn;
}

}  // namespace

std::vector<TopicGenerator> scienceGenerators() {
    return {drawScientificToRegular, drawRegularToScientific,
            [](Draws& draws) { return drawScientificProduct(draws, false); },
            [](Draws& draws) { return drawScientificProduct(draws, true); }};
}

}  // namespace ordwise::test
