// Polynomials in up to three letters, and fractions of them.
#pragma once

#include "RootSum.hpp"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace ordwise::exact {

inline constexpr std::size_t mostLetters = 3;

// The letters that a computation is about, each once, in alphabetical order. Undecidable for more
// than three.
class Letters {
public:
    Letters() = default;
    explicit Letters(std::string letters);

    [[nodiscard]] std::size_t placeOf(char letter) const;  // expects it to be among them
    [[nodiscard]] std::size_t size() const { return letters_.size(); }
    [[nodiscard]] char operator[](std::size_t i) const { return letters_[i]; }
    [[nodiscard]] const std::string& text() const { return letters_; }

private:
    std::string letters_;
};

// Exponents by the place of the letter.
using Exponents = std::array<int, mostLetters>;

class Polynomial {
public:
    Polynomial() = default;  // 0
    Polynomial(const RootSum& constant);
    Polynomial(const Rational& constant) : Polynomial(RootSum(constant)) {}
    Polynomial(int constant) : Polynomial(RootSum(constant)) {}

    [[nodiscard]] static Polynomial letter(std::size_t place);

    [[nodiscard]] bool isZero() const { return terms_.empty(); }
    [[nodiscard]] const std::map<Exponents, RootSum>& terms() const { return terms_; }
    [[nodiscard]] std::map<Exponents, RootSum>& terms() { return terms_; }
    // The number that it is, where no letter stands in it.
    [[nodiscard]] std::optional<RootSum> asConstant() const;
    [[nodiscard]] int degree() const;  // of all letters together; 0 for 0
    [[nodiscard]] bool holds(std::size_t place) const;
    [[nodiscard]] RootSum at(const std::vector<Rational>& point) const;
    // The letter at a place replaced by a number.
    [[nodiscard]] Polynomial with(std::size_t place, const Rational& value) const;

    Polynomial& operator+=(const Polynomial& b);
    friend Polynomial operator+(Polynomial a, const Polynomial& b) { return a += b; }
    friend Polynomial operator-(Polynomial a);
    friend Polynomial operator-(const Polynomial& a, const Polynomial& b) { return a + (-b); }
    bool operator==(const Polynomial& b) const { return terms_ == b.terms_; }

    [[nodiscard]] static Polynomial product(const Polynomial& a, const Polynomial& b, Effort& effort);

private:
    std::map<Exponents, RootSum> terms_;  // no coefficient 0
};

// Whether one is the other times a number other than 0.
[[nodiscard]] bool areProportional(const Polynomial& a, const Polynomial& b);

// A fraction of polynomials. It is not reduced: equality looks at a cross product.
struct Quotient {
    Polynomial above;
    Polynomial below = 1;

    [[nodiscard]] std::optional<RootSum> asConstant() const;
    // The value at a point; nothing where the denominator is 0 there.
    [[nodiscard]] std::optional<RootSum> at(const std::vector<Rational>& point) const;
};

[[nodiscard]] Quotient sum(const Quotient& a, const Quotient& b, Effort& effort);
[[nodiscard]] Quotient negated(const Quotient& a);
[[nodiscard]] Quotient product(const Quotient& a, const Quotient& b, Effort& effort);
// Undefined where `a` is 0.
[[nodiscard]] Quotient inverse(const Quotient& a);
[[nodiscard]] Quotient power(const Quotient& a, int exponent, Effort& effort);
[[nodiscard]] bool equal(const Quotient& a, const Quotient& b, Effort& effort);

}  // namespace ordwise::exact
