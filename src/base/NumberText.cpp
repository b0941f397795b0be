#include "NumberText.hpp"

#include "Fault.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace ordwise {
namespace {

constexpr int doubleDigits = 15;
constexpr int singleDigits = 7;
constexpr int leastPlainExponentOfDouble = -15;

// A number as digits and a decimal exponent: 0.0325 is negative false, digits "325", exponent -2
// (the first digit stands for that power of ten). Zero has no digits.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

Decimal decimalOf(double value, int significant) {
    if (value == 0.0) return {};
    char buffer[40];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific, significant - 1);
    const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
    const std::size_t e = text.find('e');
    Decimal result;
    result.negative = value < 0;
    for (const char c : text.substr(0, e)) {
        if (c != '.') result.digits += c;
    }
    const std::string_view exponent = text.substr(e + 2);  // behind its sign
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), result.exponent);
    if (text[e + 1] == '-') result.exponent = -result.exponent;
    while (result.digits.back() == '0') result.digits.pop_back();
    return result;
}

// Most numbers of school mathematics are whole and short enough for every digit to count.
bool isShortWhole(double value, int significant) {
    const double limit = significant == singleDigits ? 1e7 : 1e15;
    return std::fabs(value) < limit && value == std::trunc(value);
}

std::string exponentForm(const Decimal& number) {
    std::string text = number.digits.substr(0, 1);
    if (number.digits.size() > 1) text += "." + number.digits.substr(1);
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "E%c%02d", number.exponent < 0 ? '-' : '+', std::abs(number.exponent));
    return text + buffer;
}

std::string plainForm(const Decimal& number) {
    const int count = static_cast<int>(number.digits.size());
    if (number.exponent < 0)
        return "0." + std::string(static_cast<std::size_t>(-number.exponent - 1), '0') + number.digits;
    const int whole = number.exponent + 1;
    if (count <= whole) return number.digits + std::string(static_cast<std::size_t>(whole - count), '0');
    return number.digits.substr(0, static_cast<std::size_t>(whole)) + "." +
           number.digits.substr(static_cast<std::size_t>(whole));
}

std::string write(double value, int significant, int leastPlainExponent) {
    if (isShortWhole(value, significant)) return std::to_string(static_cast<std::int64_t>(value));
    const Decimal number = decimalOf(inRange(value), significant);
    const bool plain = number.exponent < significant && number.exponent >= leastPlainExponent;
    return (number.negative ? "-" : "") + (plain ? plainForm(number) : exponentForm(number));
}

// The length of the longest beginning of `text`, from `start` on, that spells a number; 0 if none.
std::size_t numberLength(std::string_view text, std::size_t start) {
    const auto digit = [&](std::size_t i) { return i < text.size() && text[i] >= '0' && text[i] <= '9'; };
    std::size_t i = start;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    const std::size_t first = i;
    while (digit(i)) ++i;
    std::size_t digits = i - first;
    if (i < text.size() && text[i] == '.') {
        ++i;
        const std::size_t decimals = i;
        while (digit(i)) ++i;
        digits += i - decimals;
    }
    if (digits == 0) return 0;
    if (i < text.size() && (text[i] == 'E' || text[i] == 'e')) {
        std::size_t e = i + 1;
        if (e < text.size() && (text[e] == '+' || text[e] == '-')) ++e;
        if (digit(e)) {
            while (digit(e)) ++e;
            i = e;
        }
    }
    return i - start;
}

// For a number beyond the range of a double: whether it is one of the large ones. What decides is the
// power of ten of its first digit that is not zero.
bool isLarge(std::string_view number) {
    constexpr int most = 100000;
    const std::size_t e = std::min(number.find_first_of("eE"), number.size());
    int exponent = 0;
    for (std::size_t i = e; i < number.size(); ++i) {
        if (number[i] >= '0' && number[i] <= '9') exponent = std::min(exponent * 10 + (number[i] - '0'), most);
    }
    if (e + 1 < number.size() && number[e + 1] == '-') exponent = -exponent;
    const auto point = static_cast<int>(std::min(number.find('.'), e));
    const auto first = static_cast<int>(number.find_first_of("123456789"));
    return exponent + point - first > 0;
}

// Digits alone, and so few that a double holds the number exactly.
bool isShortDigits(std::string_view number) {
    return number.size() <= doubleDigits &&
           std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}
double wholeOf(std::string_view digits) {
    std::int64_t value = 0;
    for (const char c : digits) value = value * 10 + (c - '0');
    return static_cast<double>(value);
}

// The double of text that numberLength has measured. Not strtod, which would read the point of the
// user's locale. Fault 6 beyond the range; what is too small is 0.
double read(std::string_view number) {
    if (number.front() == '+') number.remove_prefix(1);
    if (isShortDigits(number)) return wholeOf(number);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc::result_out_of_range) return value;
    if (isLarge(number)) raise(FaultNumber::Overflow);
    return 0.0;
}

double roundDigits(double value, int places, int significant) {
    if (places >= 0 && isShortWhole(value, significant)) return value == 0.0 ? 0.0 : value;
    Decimal number = decimalOf(value, significant);
    // How many of the digits stay; the first digit stands `exponent` places left of the point.
    const int kept = number.exponent + 1 + places;
    if (kept >= significant) return value;
    if (kept < 0) return 0.0;
    number.digits.resize(std::max(number.digits.size(), static_cast<std::size_t>(kept)), '0');
    const std::string rest = number.digits.substr(static_cast<std::size_t>(kept));
    number.digits.resize(static_cast<std::size_t>(kept));
    const bool odd = kept > 0 && (number.digits.back() - '0') % 2 == 1;
    const bool up = rest > "5" || (rest == "5" && odd);
    std::string whole = "0" + number.digits;
    if (up) {
        std::size_t i = whole.size() - 1;
        while (whole[i] == '9') whole[i--] = '0';
        ++whole[i];
    }
    const std::string text = (number.negative ? "-" : "") + whole + "e" + std::to_string(-places);
    const double result = read(text);
    return result == 0.0 ? 0.0 : result;
}

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string textOf(double value) {
    return write(value, doubleDigits, leastPlainExponentOfDouble);
}

std::string textOf(float value) {
    constexpr float least = std::numeric_limits<float>::min();
    if (std::fabs(value) < least) return "0";
    return write(static_cast<double>(value), singleDigits, std::numeric_limits<float>::min_exponent10 - 1);
}

std::string textOf(int value) {
    return std::to_string(value);
}

std::string textOf(std::uint64_t value) {
    return std::to_string(value);
}

std::string textOf(std::int64_t value) {
    return std::to_string(value);
}

std::string signedTextOf(int value) {
    return (value < 0 ? "" : " ") + std::to_string(value);
}

bool IsNumeric(std::string_view text) {
    const std::string_view number = withoutBlanks(text);
    return !number.empty() && numberLength(number, 0) == number.size();
}

double valueOf(std::string_view text) {
    if (!IsNumeric(text)) raise(FaultNumber::TypeMismatch);
    return read(withoutBlanks(text));
}

std::int32_t longOf(std::string_view text) {
    return longOf(valueOf(text));
}

std::int32_t longOf(double value) {
    // Away from a half no digit decides.
    const double below = std::floor(value);
    const double part = value - below;
    if (std::fabs(value) < 1e6 && std::fabs(part - 0.5) > 1e-3)
        return static_cast<std::int32_t>(below) + (part > 0.5 ? 1 : 0);
    const double whole = Round(value, 0);
    if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) raise(FaultNumber::Overflow);
    return static_cast<std::int32_t>(whole);
}

double lenientValueOf(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return 0.0;
    const std::size_t length = numberLength(text, first);
    if (length == 0) return 0.0;
    return read(text.substr(first, length));
}

double Round(double value, int places) {
    return roundDigits(inRange(value), places, doubleDigits);
}

float Round(float value, int places) {
    return static_cast<float>(roundDigits(inRange(static_cast<double>(value)), places, singleDigits));
}

}  // namespace ordwise
