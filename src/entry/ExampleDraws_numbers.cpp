// Examples of the number topics: a form, such as a/b or a list, filled with numbers small enough to be
// worked by hand. What a textbook would leave out is drawn anew: 7/7, the greatest common factor of
// two numbers that have none, a prime where a number is to be taken apart.
#include "ExampleDraws.hpp"
#include "Fault.hpp"
#include "NumberText.hpp"
#include "RandomDraws.hpp"
#include "TextTools.hpp"
#include "WorksheetLayout.hpp"

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>

namespace ordwise {
namespace {

int value(const std::string& digits) {
    return longOf(digits);
}

// Drawn anew until it fits; the draw must be able to.
template <class Draw, class Fits>
auto drawUntil(Draw draw, Fits fits) {
    auto drawn = draw();
    while (!fits(drawn)) drawn = draw();
    return drawn;
}

std::string signedDigits(int count) {
    return (drawChance(1, 2) ? "-" : "") + drawDigits(count);
}

int digitsAt(const ExampleWish& wish) {
    return wish.complex ? 2 : 1;
}

bool isPrime(int n) {
    for (int d = 2; d * d <= n; ++d) {
        if (n % d == 0) return false;
    }
    return n > 1;
}

// ---- lists

using List = std::vector<std::string>;

int timesIn(const List& list, const std::string& number) {
    return static_cast<int>(std::count(list.begin(), list.end(), number));
}

// Some number occurs more often than another.
bool hasMode(const List& list) {
    return std::any_of(list.begin(), list.end(),
                       [&](const std::string& number) { return timesIn(list, number) != timesIn(list, list.front()); });
}

bool isWholeMean(const List& list) {
    const int sum = std::accumulate(list.begin(), list.end(), 0,
                                    [](int total, const std::string& number) { return total + value(number); });
    return sum % static_cast<int>(list.size()) == 0;
}

List drawList(const ExampleWish& wish) {
    List list(static_cast<std::size_t>((wish.complex ? 6 : 5) + drawBelow(2)));
    for (std::string& number : list) number = drawDigits(digitsAt(wish));
    return list;
}

std::string list(const ExampleWish& wish) {
    const auto varied = [](const List& drawn) {
        return timesIn(drawn, drawn.front()) < static_cast<int>(drawn.size());
    };
    return joined(drawUntil([&] { return drawList(wish); }, varied), ",");
}

std::string listForMean(const ExampleWish& wish) {
    const auto fits = [&](const List& drawn) { return !wish.favoured || isWholeMean(drawn); };
    return joined(drawUntil([&] { return drawList(wish); }, fits), ",");
}

// Two of the numbers are made the same first: of two digits the same seldom come by themselves.
List listWithRepeats(const ExampleWish& wish) {
    List drawn = drawList(wish);
    const int count = static_cast<int>(drawn.size());
    drawn[static_cast<std::size_t>(drawBelow(count))] = drawn[static_cast<std::size_t>(drawBelow(count))];
    return drawn;
}

std::string listForMode(const ExampleWish& wish) {
    const auto draw = [&] { return wish.favoured ? listWithRepeats(wish) : drawList(wish); };
    return joined(drawUntil(draw, [&](const List& drawn) { return hasMode(drawn) == wish.favoured; }), ",");
}

// ---- whole numbers

std::string number(const ExampleWish& wish) {
    return drawDigits(wish.complex ? 3 : 2);
}

std::string composite(const ExampleWish& wish) {
    return drawUntil([&] { return number(wish); }, [](const std::string& n) { return !isPrime(value(n)); });
}

// There are few primes of two digits, so they are the smaller part.
std::string primeOrComposite(const ExampleWish& wish) {
    return drawUntil([&] { return number(wish); },
                     [&](const std::string& n) { return isPrime(value(n)) != wish.favoured; });
}

bool areDifferent(const List& numbers) {
    return std::all_of(numbers.begin(), numbers.end(), [&](const std::string& n) { return timesIn(numbers, n) == 1; });
}

// Two numbers, at the complex level three, with a common factor.
std::string numbersWithFactor(const ExampleWish& wish) {
    const auto draw = [&] {
        const int factor = wish.complex ? value(drawDigits(2)) : RandInt2to9();
        List numbers(wish.complex ? 3 : 2);
        for (std::string& n : numbers) n = textOf(factor * RandInt());
        return numbers;
    };
    return joined(drawUntil(draw, areDifferent), ",");
}

std::string numbersForMultiple(const ExampleWish& wish) {
    const auto draw = [&] {
        List numbers(wish.complex ? 3 : 2);
        for (std::string& n : numbers) n = wish.complex ? drawDigits(2) : textOf(RandInt2to9() + drawBelow(2) * 9);
        return numbers;
    };
    // What three numbers have in common keeps their multiple at a size that can be written down.
    const auto fits = [](const List& numbers) {
        std::int64_t multiple = 1;
        for (const std::string& n : numbers) multiple = std::lcm(multiple, static_cast<std::int64_t>(value(n)));
        return areDifferent(numbers) && multiple < 10000;
    };
    return joined(drawUntil(draw, fits), ",");
}

std::string expandedNotation(const ExampleWish& wish) {
    return drawDigits(wish.complex ? 6 : 3);
}

std::string angle(const ExampleWish&) {
    if (drawChance(1, 2)) return drawDigits(2);
    return "1" + textOf(drawBelow(8)) + drawDigits(1);
}

// A product of numbers that come apart into small primes. e.g. "12*9", "35*9*4^3"
std::string productForPrimes(const ExampleWish& wish) {
    const auto smallPrimesOnly = [](const std::string& n) {
        int rest = value(n);
        for (const int prime : {2, 3, 5, 7}) {
            while (rest % prime == 0) rest /= prime;
        }
        return rest == 1 && !isPrime(value(n));
    };
    const std::string first = drawUntil([] { return drawDigits(2); }, smallPrimesOnly);
    if (!wish.complex) return first + "*" + textOf(RandInt2to9());
    const std::string second = drawUntil([] { return drawDigits(2); }, smallPrimesOnly);
    return first + "*" + second + "*" + textOf(RandInt2to9()) + "^" + textOf(drawBelow(2) + 2);
}

// ---- decimals and percents

// A quantity to be converted. e.g. "47", "8.5"
std::string quantity(const ExampleWish& wish) {
    const int wholeDigits = wish.complex ? 2 : 1;
    return drawChance(1, 2) ? drawDigits(wholeDigits + 1) : drawDigits(wholeDigits) + "." + drawDigits(1);
}

// Of a small unit there must be many before they come to something in a large one. e.g. feet in miles
std::string largeQuantity(const ExampleWish& wish) {
    return drawDigits(4) + (wish.complex ? "." + drawDigits(1) : "");
}

std::string percent(const ExampleWish& wish) {
    if (!wish.complex) return drawDigits(2) + "%";
    return (drawChance(1, 2) ? drawDigits(3) : drawDigits(2) + "." + drawDigits(1)) + "%";
}

std::string decimal(const ExampleWish& wish) {
    return (wish.complex ? drawDigits(1) : "0") + "." + drawDigits(2);
}

// Large or small enough for a power of ten to be of use. e.g. "748", "0.03"
std::string numberForPowerOfTen(const ExampleWish& wish) {
    if (drawChance(1, 2)) return drawDigits(wish.complex ? 4 : 3);
    if (wish.complex) return drawDigits(3) + "." + drawDigits(2);
    return drawChance(1, 5) ? "0.0" + drawDigits(1) : "0." + drawDigits(2);
}

std::string twoValues(const ExampleWish& wish) {
    return signedDigits(digitsAt(wish)) + "," + signedDigits(digitsAt(wish));
}

// ---- fractions

struct Fraction {
    std::string top;
    std::string bottom;
};

std::string fractionText(const Fraction& fraction) {
    return fraction.top + "/" + fraction.bottom;
}

bool isWorthAFraction(const Fraction& fraction) {
    return value(fraction.bottom) > 1 && fraction.top != fraction.bottom;
}

Fraction drawFraction(int topDigits, int bottomDigits) {
    return drawUntil([&] { return Fraction{drawDigits(topDigits), drawDigits(bottomDigits)}; }, isWorthAFraction);
}

std::string fraction(const ExampleWish& wish) {
    return fractionText(drawFraction(digitsAt(wish), digitsAt(wish)));
}

std::string fractionToSimplify(const ExampleWish& wish) {
    const int digits = digitsAt(wish);
    // There are few such fractions of single digits; those that are 1 are among them.
    const auto draw = [&] { return Fraction{drawDigits(digits), drawDigits(digits)}; };
    const auto fits = [](const Fraction& drawn) {
        return value(drawn.bottom) > 1 && std::gcd(value(drawn.top), value(drawn.bottom)) > 1;
    };
    return fractionText(drawUntil(draw, fits));
}

// The denominator has half as many digits as the numerator and one. e.g. "17/5", "347/12"
std::string improperFraction(const ExampleWish& wish) {
    return fractionText(wish.complex ? drawFraction(3, 2) : drawFraction(2, 1));
}

// A mixed number has a denominator of one digit. e.g. "2+1/3"
std::string mixedNumber(const ExampleWish& wish) {
    const Fraction part = drawUntil([] { return drawFraction(1, 1); },
                                    [](const Fraction& drawn) { return value(drawn.top) < value(drawn.bottom); });
    return drawDigits(digitsAt(wish)) + "+" + fractionText(part);
}

std::string fractionSum(const ExampleWish& wish) {
    constexpr const char* operators[] = {"+", "-", "*", "/"};
    const std::string first = fractionText(drawFraction(1, 1));
    const std::string second = fractionText(drawFraction(1, 1));
    if (!wish.complex) return first + operators[drawBelow(4)] + second;
    const std::string third = fractionText(drawFraction(1, 1));
    return first + operators[drawBelow(3)] + second + operators[drawBelow(2)] + third;
}

std::string ratio(const ExampleWish& wish) {
    const int digits = digitsAt(wish);
    const Fraction drawn = drawUntil(
        [&] {
            return Fraction{drawDigits(digits), drawDigits(digits)};
        },
        [](const Fraction& pair) { return pair.top != pair.bottom; });
    return drawn.top + ":" + drawn.bottom;
}

// ---- points

std::string point(const ExampleWish& wish) {
    return "(" + twoValues(wish) + ")";
}

std::string twoPoints(const ExampleWish& wish) {
    const std::string first = point(wish);
    const auto other = [&](const std::string& second) { return second != first; };
    return first + "-" + drawUntil([&] { return point(wish); }, other);
}

struct NumberRow {
    std::vector<int> types;
    std::string (*draw)(const ExampleWish& wish);
};

// clang-format off
const NumberRow rows[] = {
    {{59, 61}, list},
    {{60}, listForMode},
    {{62}, listForMean},
    {{65}, numberForPowerOfTen},
    {{68, 69}, percent},
    {{70, 71}, decimal},
    {{72, 73, 79}, fraction},
    {{74}, mixedNumber},
    {{75}, improperFraction},
    {{76}, fractionSum},
    {{78}, ratio},
    {{80}, fractionToSimplify},
    {{83}, productForPrimes},
    {{84, 86}, composite},
    {{85}, primeOrComposite},
    {{87}, numbersWithFactor},
    {{88}, numbersForMultiple},
    {{89}, number},
    {{90}, twoValues},
    {{99}, expandedNotation},
    {{104}, angle},
    {{106}, twoPoints},
    {{107, 108}, point},
    {{28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 40, 42, 43, 44, 45, 47, 48, 50, 51, 53, 54, 109, 110}, quantity},
    {{39, 41, 46, 49, 52, 111}, largeQuantity},
};
// clang-format on

// ---- rounding

// What can be rounded so: whole numbers to thousands, hundreds and tens, decimals to what is smaller.
// Two decimals are the most that can be typed, so hundredths and thousandths only get their zeros.
std::string numberToRound(int choice, bool complex) {
    const int more = complex ? 1 : 0;
    switch (choice) {
        case 0: return drawDigits(4 + more);
        case 1: return drawDigits(3 + more);
        case 2: return drawDigits(2 + more);
        case 3: return drawDigits(1 + more) + "." + drawDigits(1 + more);
        case 4: return drawDigits(1 + more) + "." + drawDigits(2);
        default: return drawDigits(1 + more) + "." + drawDigits(1);
    }
}

Example drawRounding(const ExampleWish& wish) {
    constexpr int firstThatOnlyPads = 5;
    const int choices = static_cast<int>(roundingChoices().size());
    const int choice = drawChance(1, 8) ? drawBelow(choices) : drawBelow(firstThatOnlyPads);
    Example example;
    example.combos[2] = choice;
    example.keys = numberToRound(choice, wish.complex);
    example.suffix = " " + roundingChoices()[static_cast<std::size_t>(choice)];
    return example;
}

}  // namespace

std::optional<Example> drawNumbers(const ExampleWish& wish) {
    if (wish.type == roundingTopic) return drawRounding(wish);
    for (const NumberRow& row : rows) {
        if (std::find(row.types.begin(), row.types.end(), wish.type) == row.types.end()) continue;
        Example example;
        example.keys = row.draw(wish);
        return example;
    }
    return std::nullopt;
}

std::string drawDigits(int count) {
    std::string digits;
    while (static_cast<int>(digits.size()) < count) digits += textOf(RandInt());
    return digits;
}

bool drawChance(int part, int whole) {
    return drawBelow(whole) < part;
}

}  // namespace ordwise
