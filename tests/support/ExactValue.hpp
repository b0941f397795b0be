// The tests' own numbers: sums of rational multiples of square roots, exact as long as they fit.
//
// No code is shared with the program, so that a mistake there is not repeated here. A value is a sum
// such as 1/2 + 3*sqrt(2), held as radicand -> coefficient with square-free radicands, 1 standing for
// the plain number. What does not fit (a product beyond 64 bits, a quotient by a sum of roots, the
// root of a root) goes on as a long double and is compared with a tolerance; a value that does not
// exist (a division by zero, the root of a negative number) is undefined and equals nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace ordwise::test {

// e.g. {3, 4} for 3/4; always reduced, the denominator above 0
struct Rational {
    std::int64_t numerator = 0;
    std::int64_t denominator = 1;

    bool operator==(const Rational&) const = default;
};

class ExactValue {
public:
    ExactValue() = default;                                            // 0
    ExactValue(std::int64_t numerator, std::int64_t denominator = 1);  // e.g. {3, 4} is 3/4

    [[nodiscard]] static ExactValue undefined();
    [[nodiscard]] static ExactValue approximately(long double x);
    // The number that decimal text spells, exactly, e.g. ".5" -> 1/2, "9.998E+07" -> 99980000.
    // Nothing when the text is no such number.
    [[nodiscard]] static std::optional<ExactValue> ofDecimal(std::string_view text);

    [[nodiscard]] bool isDefined() const { return defined_; }
    [[nodiscard]] bool isExact() const { return defined_ && exact_; }
    [[nodiscard]] long double approximate() const { return approximate_; }
    // The value as one rational number, where it is one exactly.
    [[nodiscard]] std::optional<Rational> asRational() const;
    // How many terms it is written with: one for a plain number (0 too), one for each root.
    [[nodiscard]] std::size_t termCount() const { return parts_.empty() ? 1 : parts_.size(); }
    [[nodiscard]] std::string toString() const;  // for messages, e.g. "7/2", "1/2+3~2~", "undefined"

    friend ExactValue operator+(const ExactValue& a, const ExactValue& b);
    friend ExactValue operator-(const ExactValue& a);
    friend ExactValue operator-(const ExactValue& a, const ExactValue& b) { return a + (-b); }
    friend ExactValue operator*(const ExactValue& a, const ExactValue& b);
    friend ExactValue operator/(const ExactValue& a, const ExactValue& b);
    friend ExactValue absolute(const ExactValue& a);
    friend ExactValue squareRoot(const ExactValue& a);
    friend ExactValue power(const ExactValue& base, int exponent);

    // Both exist and are the same: exactly where both are exact and `tolerance` is 0, else to within
    // `tolerance` (at least 1E-12) of the larger of 1 and the two.
    friend bool same(const ExactValue& a, const ExactValue& b, long double tolerance);

private:
    using Parts = std::map<std::int64_t, Rational>;  // radicand -> coefficient, no coefficient 0

    [[nodiscard]] static ExactValue ofParts(std::optional<Parts> parts, long double approximate);

    Parts parts_;
    long double approximate_ = 0;
    bool exact_ = true;
    bool defined_ = true;
};

[[nodiscard]] bool same(const ExactValue& a, const ExactValue& b, long double tolerance = 0);

}  // namespace ordwise::test
