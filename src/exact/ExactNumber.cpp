#include "ExactNumber.hpp"

#include "NumberText.hpp"

#include <algorithm>

namespace ordwise::exact {
namespace {

constexpr unsigned mostBits = 3000;
constexpr int mostDecimalExponent = 60;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

Integer tenTo(int exponent) {
    return mp::pow(Integer(10), static_cast<unsigned>(exponent));
}

// A whole number with at most three digits and a sign. e.g. "+07" -> 7
std::optional<int> smallWhole(std::string_view text) {
    const bool minus = !text.empty() && text.front() == '-';
    if (!text.empty() && (minus || text.front() == '+')) text.remove_prefix(1);
    if (text.empty() || text.size() > 3 || !std::all_of(text.begin(), text.end(), isDigit)) return std::nullopt;
    int value = 0;
    for (const char c : text) value = 10 * value + (c - '0');
    return minus ? -value : value;
}

unsigned bitsOf(const Integer& n) {
    return n == 0 ? 0 : mp::msb(mp::abs(n)) + 1;
}

// The largest whole number whose square is not above n.
Integer floorRoot(const Integer& n) {
    return mp::sqrt(n);
}

// The nearest whole number, a half to the even one; the denominator is above 0.
Integer nearest(const Integer& numerator, const Integer& denominator) {
    const Integer size = mp::abs(numerator);
    Integer whole = size / denominator;
    const Integer twice = 2 * (size % denominator);
    if (twice > denominator || (twice == denominator && whole % 2 == 1)) whole += 1;
    return numerator < 0 ? Integer(-whole) : whole;
}

}  // namespace

void Effort::spend(long units) {
    left_ -= units;
    if (left_ < 0) throw Undecidable("it is too long to be worked out here");
}

std::optional<Rational> rationalOf(std::string_view decimal) {
    const std::size_t e = decimal.find('E');
    const std::string_view digits = decimal.substr(0, e);
    int exponent = 0;
    if (e != std::string_view::npos) {
        const auto read = smallWhole(decimal.substr(e + 1));
        if (!read || std::abs(*read) > mostDecimalExponent) return std::nullopt;
        exponent = *read;
    }
    Integer value = 0;
    bool any = false;
    bool point = false;
    for (const char c : digits) {
        if (c == '.' && !point) {
            point = true;
        } else if (isDigit(c)) {
            any = true;
            value = value * 10 + (c - '0');
            if (point) --exponent;
        } else {
            return std::nullopt;
        }
    }
    if (!any) return std::nullopt;
    return exponent < 0 ? Rational(value, tenTo(-exponent)) : Rational(value * tenTo(exponent));
}

std::string written(const Rational& r) {
    const Integer denominator = mp::denominator(r);
    const std::string above = mp::numerator(r).str();
    return denominator == 1 ? above : above + "/" + denominator.str();
}

std::optional<std::string> writtenDecimal(const Rational& r, int mostPlaces) {
    for (int places = 0; places <= mostPlaces; ++places) {
        const Rational scaled = r * Rational(tenTo(places));
        if (mp::denominator(scaled) != 1) continue;
        std::string digits = Integer(mp::abs(mp::numerator(scaled))).str();
        const auto width = static_cast<std::size_t>(places) + 1;
        if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
        if (places > 0) digits.insert(digits.size() - static_cast<std::size_t>(places), ".");
        return r < 0 ? "-" + digits : digits;
    }
    return std::nullopt;
}

Rational rounded(const Rational& r, int places) {
    const Integer scale = tenTo(std::clamp(places, 0, 15));
    return {nearest(mp::numerator(r) * scale, mp::denominator(r)), scale};
}

Rational asSingle(const Rational& r, int places) {
    // Past what a single holds there is nothing that it prints.
    const unsigned size = bitsOf(mp::numerator(r));
    if (size > bitsOf(mp::denominator(r)) + 120) return r;
    const auto single = r.convert_to<float>();
    std::string text = textOf(Round(single, std::clamp(places, 0, 15)));
    const bool minus = !text.empty() && text.front() == '-';
    if (minus) text.erase(0, 1);
    const auto value = rationalOf(text);
    if (!value) return r;
    return minus ? Rational(-*value) : *value;
}

void keepSmall(const Rational& r) {
    if (bitsOf(mp::numerator(r)) > mostBits || bitsOf(mp::denominator(r)) > mostBits)
        throw Undecidable("its numbers are too large to be worked out here");
}

Rational power(const Rational& base, int exponent) {
    if (base == 0 && exponent < 0) throw Undefined();
    const auto size = static_cast<unsigned>(std::abs(exponent));
    const unsigned bits = std::max(bitsOf(mp::numerator(base)), bitsOf(mp::denominator(base)));
    if (bits > 1 && bits * size > mostBits) throw Undecidable("its numbers are too large to be worked out here");
    const Integer above = mp::pow(Integer(mp::numerator(base)), size);
    const Integer below = mp::pow(Integer(mp::denominator(base)), size);
    return exponent < 0 ? Rational(below, above) : Rational(above, below);
}

// Every prime up to the cube root is divided out; what is left is a prime, the square of a prime or
// a product of two, and only the square matters.
RootParts squareFree(Integer n) {
    constexpr unsigned mostBitsSearched = 50;
    RootParts parts{1, 1};
    const Integer root = floorRoot(n);
    if (root * root == n) return {root, 1};
    for (Integer p = 2; p * p * p <= n; p += p == 2 ? 1 : 2) {
        if (bitsOf(n) > mostBitsSearched && p > 1000)
            throw Undecidable("a number under a root is too large to be worked out here");
        while (n % (p * p) == 0) {
            n /= p * p;
            parts.outside *= p;
        }
        if (n % p == 0) {
            n /= p;
            parts.inside *= p;
        }
    }
    const Integer left = floorRoot(n);
    if (left * left == n) {
        parts.outside *= left;
    } else {
        parts.inside *= n;
    }
    return parts;
}

}  // namespace ordwise::exact
