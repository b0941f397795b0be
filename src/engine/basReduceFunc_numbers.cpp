// The doors between numbers and the text of a step, and the texts of factors and multiples.
//
// Where the school method searches number by number, a direct method that finds the same number is
// used: the first denominator, the greatest factor, the least multiple.
#include "Fault.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basReduceFunc.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <optional>

namespace ordwise {
namespace {

// A multiple that rounds to a whole number at this place counts as one: it lets floats of seven
// digits turn back into simple fractions.
constexpr int multiplePlaces = 4;
constexpr double multipleTolerance = 0.00005;
constexpr int longestSearch = 100'000'000;
// Denominators up to this many for each character of the value's text are small.
constexpr int searchPerCharacter = 10;

// A denominator and what the value times it rounds to.
struct WrittenFraction {
    float numerator;
    int denominator;
};

// The form that the caller writes the value in now.
struct CurrentForm {
    float numerator;
    float denominator;
};

// What x rounds to, if that is a whole number and not the 0 that every small x rounds to.
std::optional<double> wholeMultiple(double x) {
    // Most multiples are nowhere near; only the near ones are judged on their digits.
    if (std::fabs(x - std::nearbyint(x)) > 2 * multipleTolerance) return std::nullopt;
    const double rounded = Round(x, multiplePlaces);
    if (rounded != std::nearbyint(rounded) || rounded == 0.0) return std::nullopt;
    return rounded;
}

// The first denominator whose multiple is whole. The value is taken as it prints, so that a decimal
// is itself: 8.11 has 811/100. Multiples below 1 cannot be whole, and from there on one in about
// 20000 is, so the search is short. e.g. 0.75 -> 3/4, 0.01980198 -> 2/101
std::optional<WrittenFraction> findFraction(double value) {
    const double first = std::floor((1 - 2 * multipleTolerance) / std::fabs(value));
    if (!(first <= longestSearch)) return std::nullopt;
    for (int i = std::max(1, static_cast<int>(first)); i <= longestSearch; ++i) {
        if (const auto found = wholeMultiple(value * i)) return WrittenFraction{static_cast<float>(*found), i};
    }
    return std::nullopt;
}

std::string roundedText(float value) {
    return textOf(Round(value, ws.RoundPlaces));
}

std::string writtenText(const WrittenFraction& found, bool forceFraction) {
    const std::string above = textOf(std::fabs(found.numerator));
    if (!forceFraction && found.denominator < 2) return above;
    return above + "/" + textOf(found.denominator);
}

std::string fractionOf(float value, int searchLimit, bool forceFraction, const std::optional<CurrentForm>& current) {
    const std::string shown = textOf(value);
    if (!contains(shown, ".") || contains(shown, "E+")) return roundedText(value) + (forceFraction ? "/1" : "");
    const auto found = findFraction(lenientValueOf(shown));
    if (!found) return roundedText(value);
    // A small denominator that is no simpler than the caller's own form gives that form back.
    const int limit = searchLimit != 0 ? searchLimit : searchPerCharacter * static_cast<int>(shown.size());
    if (current && found->denominator <= limit && std::fabs(found->numerator) > std::fabs(current->numerator) &&
        !contains(textOf(current->numerator), "."))
        return textOf(std::fabs(current->numerator)) + "/" + textOf(current->denominator);
    return writtenText(*found, forceFraction);
}

std::string numberText(float value, int searchLimit, bool forceFraction, const std::optional<CurrentForm>& current) {
    if (ws.RadicalSeen > 0) {
        const std::string root = RadicalText(value);
        if (ws.RadicalMode) return root;
    }
    if (!ws.UseFractions) return roundedText(value);
    return fractionOf(value, searchLimit, forceFraction, current);
}

// The search writes the size of a fraction; a decimal comes with its sign.
std::string withSignOf(float value, std::string text) {
    return value < 0 && text != "0" && text[0] != '-' ? "-" + text : text;
}

}  // namespace

std::string NumberToText(float value, int searchLimit, bool forceFraction, float numerator, float denominator) {
    return numberText(value, searchLimit, forceFraction, CurrentForm{numerator, denominator});
}

std::string FractionText(float value, float numerator, float denominator) {
    return numberText(std::fabs(value), 0, false, CurrentForm{numerator, denominator});
}

std::string FractionText(float value) {
    return numberText(std::fabs(value), 0, false, std::nullopt);
}

std::string DecimalText(float value, float numerator, float denominator) {
    return withSignOf(value, numberText(value, 0, false, CurrentForm{numerator, denominator}));
}

std::string DecimalText(float value) {
    return withSignOf(value, numberText(value, 0, false, std::nullopt));
}

std::string CommonFactorText(double numerator, double denominator) {
    const std::int64_t above = longOf(numerator);
    const std::int64_t below = longOf(denominator);
    if (below == 0) raise(FaultNumber::DivisionByZero);
    const std::int64_t factor = std::gcd(above, below);
    const std::string top = textOf(above / factor);
    return below == factor ? top : top + "/" + textOf(below / factor);
}

std::string PrimeFactorsText(const std::string& number) {
    std::int64_t rest = std::llabs(longOf(number));
    if (rest == 1) return "1";
    std::vector<std::string> primes;
    for (std::int64_t d = 2; d * d <= rest; ++d) {
        for (; rest % d == 0; rest /= d) primes.push_back(textOf(d));
    }
    if (rest > 1) primes.push_back(textOf(rest));
    return joined(primes, "*");
}

std::string LeastCommonMultipleText(const std::string& list) {
    std::vector<std::int64_t> values;
    for (const std::string& piece : split(list, ',')) values.push_back(std::llabs(longOf(lenientValueOf(piece))));
    if (std::find(values.begin(), values.end(), 0) != values.end()) return "0";
    std::int64_t multiple = 1;
    for (const std::int64_t value : values) {
        multiple = std::lcm(multiple, value);
        if (multiple > std::numeric_limits<std::int32_t>::max()) raise(FaultNumber::Overflow);
    }
    return textOf(multiple);
}

}  // namespace ordwise
