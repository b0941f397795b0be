// Rational numbers of any size, and what can end a computation with them.
//
// The folder judges what the engine writes and what a student writes, so it shares nothing with the
// engine: numbers, trees and rules here are its own, and it includes only base/.
#pragma once

#include <boost/multiprecision/cpp_int.hpp>

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ordwise::exact {

namespace mp = boost::multiprecision;
using Integer = mp::number<mp::cpp_int_backend<>, mp::et_off>;
using Rational = mp::number<mp::rational_adaptor<mp::cpp_int_backend<>>, mp::et_off>;

// The value does not exist: a division by zero, the root of a negative number.
class Undefined : public std::runtime_error {
public:
    Undefined() : std::runtime_error("the value does not exist") {}
};

// The question is beyond what is decided here, or would take too long. The text is the end of a
// sentence that begins with "because". e.g. "there is a root of a root in it"
class Undecidable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Work is counted, and what would take noticeably long is not begun.
class Effort {
public:
    // Throws Undecidable when what has been spent is more than a line may cost.
    void spend(long units);

private:
    long left_ = 12000;
};

// The number that decimal text spells, exactly. Nothing when the text is no such number.
// e.g. ".5" -> 1/2, "9.998E+07" -> 99980000
[[nodiscard]] std::optional<Rational> rationalOf(std::string_view decimal);
// As a student types it. e.g. 7, -7/2
[[nodiscard]] std::string written(const Rational& r);
// As a decimal where it has an end within so many digits. e.g. 31/2 -> "15.5"
[[nodiscard]] std::optional<std::string> writtenDecimal(const Rational& r, int mostPlaces);

// To so many decimals, an exact half to the even digit. e.g. (1/3, 2) -> 33/100
[[nodiscard]] Rational rounded(const Rational& r, int places);
// The number that prints when it is kept as a single and rounded to so many decimals.
[[nodiscard]] Rational asSingle(const Rational& r, int places);

// Throws Undecidable for a number with more digits than any line needs.
void keepSmall(const Rational& r);

[[nodiscard]] Rational power(const Rational& base, int exponent);  // Undefined for 0 to a negative power

// sqrt(n) as {outside, inside} without a square factor inside; n at least 1. e.g. 12 -> {2, 3}
// Throws Undecidable where the factors of n are too large to find.
struct RootParts {
    Integer outside;
    Integer inside;
};
[[nodiscard]] RootParts squareFree(Integer n);

}  // namespace ordwise::exact
