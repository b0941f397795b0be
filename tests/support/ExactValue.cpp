// Sums of rational multiples of square roots.
#include "ExactValue.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace ordwise::test {

namespace {

__extension__ using Wide = __int128;

constexpr std::int64_t largestRootSearch = 1'000'000;  // i*i up to 1E12 is searched for squares

Wide widePositive(Wide x) {
    return x < 0 ? -x : x;
}

Wide wideGcd(Wide a, Wide b) {
    while (b != 0) a = std::exchange(b, a % b);
    return widePositive(a);
}

bool fits(Wide x) {
    return x >= std::numeric_limits<std::int64_t>::min() / 2 && x <= std::numeric_limits<std::int64_t>::max() / 2;
}

// Nothing when the reduced fraction does not fit into 64 bits.
std::optional<Rational> reduced(Wide numerator, Wide denominator) {
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    const Wide common = wideGcd(numerator, denominator);
    if (common > 1) {
        numerator /= common;
        denominator /= common;
    }
    if (!fits(numerator) || !fits(denominator)) return std::nullopt;
    return Rational{static_cast<std::int64_t>(numerator), static_cast<std::int64_t>(denominator)};
}

std::optional<Rational> sum(const Rational& a, const Rational& b) {
    const Wide an = a.numerator;
    const Wide bn = b.numerator;
    return reduced(an * b.denominator + bn * a.denominator, Wide{a.denominator} * b.denominator);
}

std::optional<Rational> product(const Rational& a, const Rational& b) {
    return reduced(Wide{a.numerator} * b.numerator, Wide{a.denominator} * b.denominator);
}

long double ratio(const Rational& r) {
    return static_cast<long double>(r.numerator) / static_cast<long double>(r.denominator);
}

// sqrt(n) as outside * sqrt(inside), e.g. 12 -> {2, 3}. Nothing when n is too large to search.
std::optional<std::pair<std::int64_t, std::int64_t>> squareFree(std::int64_t n) {
    std::int64_t outside = 1;
    for (std::int64_t i = 2; i * i <= n; ++i) {
        if (i > largestRootSearch) return std::nullopt;
        while (n % (i * i) == 0) {
            n /= i * i;
            outside *= i;
        }
    }
    return std::pair{outside, n};
}

}  // namespace

ExactValue::ExactValue(std::int64_t numerator, std::int64_t denominator) {
    if (denominator == 0) {
        defined_ = false;
        return;
    }
    const Rational r = *reduced(numerator, denominator);
    if (r.numerator != 0) parts_[1] = r;
    approximate_ = ratio(r);
}

ExactValue ExactValue::undefined() {
    return {1, 0};
}

ExactValue ExactValue::approximately(long double x) {
    ExactValue value;
    value.exact_ = false;
    value.defined_ = std::isfinite(x);
    value.approximate_ = x;
    return value;
}

ExactValue ExactValue::ofParts(std::optional<Parts> parts, long double approximate) {
    if (!parts) return approximately(approximate);
    ExactValue value;
    value.parts_ = std::move(*parts);
    std::erase_if(value.parts_, [](const auto& part) { return part.second.numerator == 0; });
    for (const auto& [radicand, coefficient] : value.parts_) {
        value.approximate_ += ratio(coefficient) * std::sqrt(static_cast<long double>(radicand));
    }
    return value;
}

std::optional<ExactValue> ExactValue::ofDecimal(std::string_view text) {
    ExactValue value;
    int exponent = 0;
    std::size_t i = 0;
    bool digits = false;
    bool point = false;
    for (; i < text.size() && text[i] != 'E'; ++i) {
        if (text[i] == '.' && !point) {
            point = true;
        } else if (text[i] >= '0' && text[i] <= '9') {
            digits = true;
            value = value * ExactValue(10) + ExactValue(text[i] - '0');
            if (point) --exponent;
        } else {
            return std::nullopt;
        }
    }
    if (!digits) return std::nullopt;
    if (i < text.size()) {
        const std::string tail(text.substr(i + 1));
        std::size_t read = 0;
        try {
            exponent += std::stoi(tail, &read);
        } catch (const std::exception&) {
            return std::nullopt;
        }
        if (read != tail.size()) return std::nullopt;
    }
    return value * power(ExactValue(10), exponent);
}

std::optional<Rational> ExactValue::asRational() const {
    if (!isExact()) return std::nullopt;
    if (parts_.empty()) return Rational{};
    if (parts_.size() == 1 && parts_.begin()->first == 1) return parts_.begin()->second;
    return std::nullopt;
}

std::string ExactValue::toString() const {
    if (!defined_) return "undefined";
    if (!exact_) return "about " + std::to_string(approximate_);
    if (parts_.empty()) return "0";
    std::string all;
    for (const auto& [radicand, coefficient] : parts_) {
        if (!all.empty() && coefficient.numerator > 0) all += "+";
        all += std::to_string(coefficient.numerator);
        if (coefficient.denominator != 1) all += "/" + std::to_string(coefficient.denominator);
        if (radicand != 1) all += "~" + std::to_string(radicand) + "~";
    }
    return all;
}

ExactValue operator+(const ExactValue& a, const ExactValue& b) {
    if (!a.defined_ || !b.defined_) return ExactValue::undefined();
    const long double about = a.approximate_ + b.approximate_;
    if (!a.exact_ || !b.exact_) return ExactValue::approximately(about);
    std::optional<ExactValue::Parts> parts = a.parts_;
    for (const auto& [radicand, coefficient] : b.parts_) {
        const auto total = sum((*parts)[radicand], coefficient);
        if (!total) return ExactValue::approximately(about);
        (*parts)[radicand] = *total;
    }
    return ExactValue::ofParts(std::move(parts), about);
}

ExactValue operator-(const ExactValue& a) {
    ExactValue value = a;
    for (auto& part : value.parts_) part.second.numerator = -part.second.numerator;
    value.approximate_ = -a.approximate_;
    return value;
}

ExactValue operator*(const ExactValue& a, const ExactValue& b) {
    if (!a.defined_ || !b.defined_) return ExactValue::undefined();
    const long double about = a.approximate_ * b.approximate_;
    if (!a.exact_ || !b.exact_) return ExactValue::approximately(about);
    ExactValue::Parts parts;
    for (const auto& [leftRadicand, left] : a.parts_) {
        for (const auto& [rightRadicand, right] : b.parts_) {
            const Wide radicand = Wide{leftRadicand} * rightRadicand;
            if (!fits(radicand)) return ExactValue::approximately(about);
            const auto root = squareFree(static_cast<std::int64_t>(radicand));
            auto term = product(left, right);
            if (root && term) term = product(*term, {root->first, 1});
            if (!root || !term) return ExactValue::approximately(about);
            const auto total = sum(parts[root->second], *term);
            if (!total) return ExactValue::approximately(about);
            parts[root->second] = *total;
        }
    }
    return ExactValue::ofParts(std::move(parts), about);
}

ExactValue operator/(const ExactValue& a, const ExactValue& b) {
    if (!a.defined_ || !b.defined_) return ExactValue::undefined();
    if (b.approximate_ == 0) return ExactValue::undefined();
    if (!b.exact_ || b.parts_.size() != 1) return ExactValue::approximately(a.approximate_ / b.approximate_);
    // 1/(c*sqrt(r)) = sqrt(r)/(c*r)
    const auto& [radicand, coefficient] = *b.parts_.begin();
    const auto inverse = reduced(coefficient.denominator, Wide{coefficient.numerator} * radicand);
    if (!inverse) return ExactValue::approximately(a.approximate_ / b.approximate_);
    return a * ExactValue::ofParts(ExactValue::Parts{{radicand, *inverse}}, 0);
}

ExactValue absolute(const ExactValue& a) {
    return a.approximate_ < 0 ? -a : a;
}

ExactValue squareRoot(const ExactValue& a) {
    if (!a.defined_ || a.approximate_ < 0) return ExactValue::undefined();
    const long double about = std::sqrt(a.approximate_);
    const auto r = a.asRational();
    if (!r) return ExactValue::approximately(about);
    if (r->numerator == 0) return {};
    // sqrt(p/q) = sqrt(p*q)/q
    const Wide under = Wide{r->numerator} * r->denominator;
    if (!fits(under)) return ExactValue::approximately(about);
    const auto root = squareFree(static_cast<std::int64_t>(under));
    if (!root) return ExactValue::approximately(about);
    const auto coefficient = reduced(root->first, r->denominator);
    if (!coefficient) return ExactValue::approximately(about);
    return ExactValue::ofParts(ExactValue::Parts{{root->second, *coefficient}}, about);
}

ExactValue power(const ExactValue& base, int exponent) {
    ExactValue result(1);
    for (int i = 0; i < std::abs(exponent); ++i) result = result * base;
    return exponent < 0 ? ExactValue(1) / result : result;
}

bool same(const ExactValue& a, const ExactValue& b, long double tolerance) {
    if (!a.defined_ || !b.defined_) return false;
    if (tolerance == 0 && a.exact_ && b.exact_) return a.parts_ == b.parts_;
    const long double size = std::max({1.0L, std::fabs(a.approximate_), std::fabs(b.approximate_)});
    return std::fabs(a.approximate_ - b.approximate_) <= std::max(tolerance, 1e-12L) * size;
}

}  // namespace ordwise::test
