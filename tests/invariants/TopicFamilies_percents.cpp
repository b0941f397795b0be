// Percents, and the formulas on three quantities.
#include "TopicFamilies.hpp"

#include <cmath>
#include <numeric>

namespace ordwise::test {

namespace {

// A number with at most two decimals, as the paper takes it.
std::string decimalText(Draws& draws) {
    if (draws.chance(50)) return draws.number(3);
    return draws.number(2) + "." + std::to_string(draws.between(1, 99));
}

// amount = T1, N = T2, base = T4, one of them left empty.
DrawnProblem drawPercentProblem(Draws& draws) {
    DrawnProblem drawn{{"Amount = N% of Base", ""}, {}};
    drawn.wanted.places = placesFor(draws, drawn.problem);
    static constexpr int boxes[] = {1, 2, 4};
    const int missing = draws.below(3);
    double v[3] = {};
    for (int i = 0; i < 3; ++i) {
        if (i == missing) continue;
        const std::string text = draws.chance(5) ? "0" : positiveText(draws);
        drawn.problem.boxes[boxes[i]] = text;
        v[i] = valueText(text);
    }
    const double divisor = missing == 2 ? v[1] : v[2];
    if (divisor == 0) {
        drawn.wanted.line = "Division by 0 is not allowed.";
    } else if (missing == 0) {
        drawn.wanted.first = v[1] / 100 * v[2];
    } else {
        drawn.wanted.last = v[0] * 100 / divisor;
    }
    return drawn;
}

DrawnProblem drawPercentToDecimal(Draws& draws) {
    const std::string text = decimalText(draws);
    DrawnProblem drawn{{"Percent To Decimal Notation", text + "%"}, {}};
    drawn.wanted.last = valueText(text) / 100;
    return drawn;
}

DrawnProblem drawDecimalToPercent(Draws& draws) {
    const std::string text = decimalText(draws);
    DrawnProblem drawn{{"Decimal To Percent Notation", text}, {}};
    drawn.wanted.places = placesFor(draws, drawn.problem);
    drawn.wanted.last = valueText(text) * 100;
    drawn.wanted.part = "%";
    return drawn;
}

// The quotient is rounded before it is multiplied by 100.
DrawnProblem drawFractionToPercent(Draws& draws) {
    const std::string a = draws.number(3);
    const std::string b = draws.chance(4) ? "0" : draws.number(3);
    DrawnProblem drawn{{"Fraction To Percent Notation", a + "/" + b}, {}};
    const int places = placesFor(draws, drawn.problem);
    if (b == "0") {
        drawn.wanted.line = "Division by 0 is illegal.";
        return drawn;
    }
    drawn.wanted.last = valueText(a) / valueText(b) * 100;
    drawn.wanted.places = places - 2;
    return drawn;
}

DrawnProblem drawPercentToFraction(Draws& draws) {
    const int percent = draws.between(1, 400);
    DrawnProblem drawn{{"Percent To Fraction Notation", std::to_string(percent) + "%"}, {}};
    const int common = std::gcd(percent, 100);
    drawn.wanted.line = std::to_string(percent / common);
    if (common < 100) drawn.wanted.line = "#" + drawn.wanted.line + "/" + std::to_string(100 / common) + "#";
    return drawn;
}

// product = T1, first factor = T2, second factor = T4, one of them left empty.
DrawnProblem drawThreeQuantities(Draws& draws, const char* topic) {
    DrawnProblem drawn{{topic, ""}, {}};
    const int places = placesFor(draws, drawn.problem);
    static constexpr int boxes[] = {1, 2, 4};
    const int missing = draws.below(3);
    double v[3] = {};
    for (int i = 0; i < 3; ++i) {
        if (i == missing) continue;
        const std::string text = draws.chance(5) ? "0" : positiveText(draws);
        drawn.problem.boxes[boxes[i]] = text;
        v[i] = valueText(text);
    }
    if (missing == 0) {
        drawn.wanted.last = v[1] * v[2];
        return drawn;
    }
    const double divisor = missing == 1 ? v[2] : v[1];
    if (divisor == 0) {
        drawn.wanted.line = "Division by 0 is illegal.";
    } else {
        drawn.wanted.first = v[0] / divisor;
        drawn.wanted.places = places;
    }
    return drawn;
}

}  // namespace

std::vector<TopicGenerator> percentGenerators() {
    return {drawPercentProblem,
            drawPercentToDecimal,
            drawDecimalToPercent,
            drawFractionToPercent,
            drawPercentToFraction,
            [](Draws& draws) { return drawThreeQuantities(draws, "Work = Rate * Time"); },
            [](Draws& draws) { return drawThreeQuantities(draws, "Distance = Speed * Time"); }};
}

}  // namespace ordwise::test
