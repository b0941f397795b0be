// The tests' own reader of markup: a recursive descent over the characters of a line.
#include "MarkupValue.hpp"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <utility>

namespace ordwise::test {

namespace {

constexpr std::size_t longestPiece = 50;
constexpr std::size_t longestLine = 3000;
constexpr std::string_view colourMarks = "[]";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return c >= 'a' && c <= 'z';
}

std::string withoutColour(std::string_view line) {
    std::string plain;
    for (const char c : line) {
        if (colourMarks.find(c) == std::string_view::npos) plain += c;
    }
    return plain;
}

// The place of the bar: the last "/" outside parentheses.
std::size_t barOf(std::string_view fraction) {
    std::size_t bar = std::string_view::npos;
    int depth = 0;
    for (std::size_t i = 0; i < fraction.size(); ++i) {
        if (fraction[i] == '(') ++depth;
        if (fraction[i] == ')') --depth;
        if (fraction[i] == '/' && depth == 0) bar = i;
    }
    return bar;
}

// --- well-formedness ---------------------------------------------------------------------------

// Walks a line and stops at the first thing that is wrong.
class MarkChecker {
public:
    explicit MarkChecker(std::string_view line) : line_(line) {}

    [[nodiscard]] std::string complaint() {
        if (line_.size() > longestLine) return "the line is longer than 3000 characters";
        for (std::size_t i = 0; i < line_.size() && complaint_.empty(); ++i) i = construct(i);
        return complaint_;
    }

private:
    // Checks the construct that begins at `i`, if one does, and returns the place of its last mark.
    std::size_t construct(std::size_t i) {
        switch (line_[i]) {
            case '#': return enclosed(i, "a fraction");
            case '~': return enclosed(i, "a radical");
            case '^': return raised(i);
            default: return i;
        }
    }

    std::size_t raised(std::size_t open) {
        const std::size_t close = line_.find('^', open + 1);
        if (close == std::string_view::npos) return failed("a raised text is left open", open);
        const std::string_view text = line_.substr(open + 1, close - open - 1);
        if (text.empty()) return failed("a raised text is empty", open);
        if (text.find_first_of("#~[]") != std::string_view::npos) return failed("a raised text holds a mark", open);
        return close;
    }

    std::size_t enclosed(std::size_t open, const std::string& what) {
        const char mark = line_[open];
        open_ += mark;
        std::size_t i = open + 1;
        while (i < line_.size() && line_[i] != mark && complaint_.empty()) {
            if (open_.find(line_[i]) != std::string::npos) return failed(what + " is left open", open);
            i = construct(i) + 1;
        }
        if (!complaint_.empty()) return i;
        if (i >= line_.size()) return failed(what + " is left open", open);
        open_.pop_back();
        const std::string_view inside = line_.substr(open + 1, i - open - 1);
        if (mark == '#') return fraction(inside, i);
        if (withoutColour(inside).empty()) return failed("a radical is empty", i);
        if (inside.size() > longestPiece) return failed("a radicand is longer than 50 characters", i);
        return i;
    }

    std::size_t fraction(std::string_view inside, std::size_t close) {
        const std::size_t bar = barOf(inside);
        if (bar == std::string_view::npos) return failed("a fraction has no bar", close);
        for (const auto half : {inside.substr(0, bar), inside.substr(bar + 1)}) {
            if (withoutColour(half).empty()) return failed("half a fraction is empty", close);
            if (half.size() > longestPiece) return failed("half a fraction is longer than 50 characters", close);
        }
        return close;
    }

    std::size_t failed(const std::string& why, std::size_t i) {
        complaint_ = why;
        return i;
    }

    std::string_view line_;
    std::string open_;  // the marks of the constructs around the place looked at
    std::string complaint_;
};

// --- value -------------------------------------------------------------------------------------

struct Unreadable {};

// expression := ["+"|"-"] term { ("+"|"-") term }
// term       := factor { ["*"|"{"|"/"] factor }
// factor     := ("+"|"-") factor | base [ "^" integer "^" ]
// base       := number | letter | "(" expression ")" | "|" expression "|" | "~" expression "~"
//             | "#" expression "/" expression "#"
class Reader {
public:
    Reader(std::string_view line, const Bindings& bindings) : line_(line), bindings_(bindings) {}

    ExactValue whole() {
        const ExactValue value = expression();
        if (at_ != line_.size()) throw Unreadable();
        return value;
    }

private:
    [[nodiscard]] char next() const { return at_ < line_.size() ? line_[at_] : '\0'; }

    void expect(char c) {
        if (next() != c) throw Unreadable();
        ++at_;
    }

    ExactValue expression() {
        ExactValue total = next() == '+' || next() == '-' ? ExactValue() : term();
        while (next() == '+' || next() == '-') {
            const bool minus = line_[at_++] == '-';
            const ExactValue value = term();
            total = minus ? total - value : total + value;
        }
        return total;
    }

    ExactValue term() {
        ExactValue product = factor();
        while (true) {
            if (next() == '*') {
                ++at_;
                product = product * signedFactor();
            } else if (next() == '{' || next() == '/') {
                ++at_;
                product = product / signedFactor();
            } else if (factorBegins()) {
                product = product * factor();
            } else {
                return product;
            }
        }
    }

    [[nodiscard]] bool factorBegins() const {
        const char c = next();
        if (c == '|') return bars_ == 0;
        if (c == '~') return !inRadical_;
        if (c == '#') return true;
        return isDigit(c) || isLetter(c) || c == '.' || c == '(';
    }

    ExactValue signedFactor() {
        if (next() == '-') {
            ++at_;
            return -factor();
        }
        return factor();
    }

    ExactValue factor() {
        ExactValue value = base();
        while (next() == '^') {
            const std::size_t close = line_.find('^', at_ + 1);
            if (close == std::string_view::npos) throw Unreadable();
            value = power(value, integer(line_.substr(at_ + 1, close - at_ - 1)));
            at_ = close + 1;
        }
        return value;
    }

    static int integer(std::string_view text) {
        const bool minus = !text.empty() && text.front() == '-';
        const std::string_view digits = text.substr(minus ? 1 : 0);
        if (digits.empty() || digits.size() > 3 || !std::all_of(digits.begin(), digits.end(), isDigit)) {
            throw Unreadable();
        }
        const int value = std::stoi(std::string(digits));
        return minus ? -value : value;
    }

    ExactValue base() {
        const char c = next();
        if (isDigit(c) || c == '.') return number();
        if (isLetter(c)) return letter();
        if (c == '(') return group();
        if (c == '|' && bars_ == 0) return bars();
        if (c == '~' && !inRadical_) return radical();
        if (c == '#') return fraction();
        throw Unreadable();
    }

    ExactValue number() {
        const std::size_t begin = at_;
        while (isDigit(next()) || next() == '.') ++at_;
        if (next() == 'E') {
            ++at_;
            if (next() == '+' || next() == '-') ++at_;
            while (isDigit(next())) ++at_;
        }
        const auto value = ExactValue::ofDecimal(line_.substr(begin, at_ - begin));
        if (!value) throw Unreadable();
        return *value;
    }

    ExactValue letter() {
        const auto bound = bindings_.find(line_[at_++]);
        if (bound == bindings_.end()) throw Unreadable();
        return bound->second;
    }

    ExactValue group() {
        ++at_;
        const int outside = std::exchange(bars_, 0);
        const ExactValue value = expression();
        bars_ = outside;
        expect(')');
        return value;
    }

    ExactValue bars() {
        ++at_;
        ++bars_;
        const ExactValue value = expression();
        --bars_;
        expect('|');
        return absolute(value);
    }

    ExactValue radical() {
        ++at_;
        inRadical_ = true;
        const ExactValue value = expression();
        inRadical_ = false;
        expect('~');
        return squareRoot(value);
    }

    ExactValue fraction() {
        const std::size_t close = line_.find('#', at_ + 1);
        if (close == std::string_view::npos) throw Unreadable();
        const std::string_view inside = line_.substr(at_ + 1, close - at_ - 1);
        const std::size_t bar = barOf(inside);
        if (bar == std::string_view::npos) throw Unreadable();
        at_ = close + 1;
        const ExactValue above = Reader(inside.substr(0, bar), bindings_).whole();
        return above / Reader(inside.substr(bar + 1), bindings_).whole();
    }

    std::string_view line_;
    const Bindings& bindings_;
    std::size_t at_ = 0;
    int bars_ = 0;
    bool inRadical_ = false;
};

// Several values for each letter, none of them 0, 1 or equal to another letter's.
Bindings pointOf(const std::string& letters, int round) {
    static constexpr std::array<std::int64_t, 6> numerators = {3, -2, 5, 7, -9, 11};
    static constexpr std::array<std::int64_t, 6> denominators = {1, 1, 2, 3, 4, 7};
    Bindings point;
    const auto place = static_cast<std::size_t>(round) % numerators.size();
    std::int64_t shift = 0;
    for (const char letter : letters) {
        point[letter] = ExactValue(numerators[place] + 2 * shift, denominators[place]);
        ++shift;
    }
    return point;
}

struct Equation {
    std::string left;
    std::string right;
    bool denied = false;  // "$", the sign that says the sides differ
};

std::optional<Equation> equationOf(std::string_view line) {
    const std::string plain = withoutColour(line);
    const std::size_t sign = plain.find_first_of("=$");
    if (sign == std::string::npos || plain.find_first_of("=$", sign + 1) != std::string::npos) return std::nullopt;
    return Equation{plain.substr(0, sign), plain.substr(sign + 1), plain[sign] == '$'};
}

std::optional<ExactValue> differenceAt(const Equation& equation, const Bindings& point) {
    const auto left = valueOfMarkup(equation.left, point);
    const auto right = valueOfMarkup(equation.right, point);
    if (!left || !right) return std::nullopt;
    const ExactValue difference = *left - *right;
    if (!difference.isDefined()) return std::nullopt;
    return difference;
}

bool isZero(const ExactValue& value) {
    return same(value, ExactValue());
}

// Whether the coefficients found at the origin and the unit points hold at others too.
bool isLinear(const Equation& equation, const SolutionSet& found, const std::string& letters) {
    for (int round = 0; round < 3; ++round) {
        const Bindings point = pointOf(letters, round);
        ExactValue wanted = found.constant;
        for (const auto& [letter, coefficient] : found.coefficients) wanted = wanted + coefficient * point.at(letter);
        const auto got = differenceAt(equation, point);
        if (!got || !same(*got, wanted)) return false;
    }
    return true;
}

void normalise(SolutionSet& set) {
    std::erase_if(set.coefficients, [](const auto& entry) { return isZero(entry.second); });
    if (set.coefficients.empty()) {
        set.kind = isZero(set.constant) ? SolutionSet::Kind::Everything : SolutionSet::Kind::Nothing;
        return;
    }
    set.kind = SolutionSet::Kind::Line;
    const ExactValue first = set.coefficients.begin()->second;
    for (auto& entry : set.coefficients) entry.second = entry.second / first;
    set.constant = set.constant / first;
}

}  // namespace

bool wellFormed(std::string_view line, std::string* why) {
    const std::string complaint = MarkChecker(line).complaint();
    if (why != nullptr) *why = complaint;
    return complaint.empty();
}

std::optional<ExactValue> valueOfMarkup(std::string_view line, const Bindings& bindings) {
    const std::string plain = withoutColour(line);
    try {
        return Reader(plain, bindings).whole();
    } catch (const Unreadable&) {
        return std::nullopt;
    }
}

std::string lettersOf(std::string_view line) {
    std::set<char> letters;
    std::copy_if(line.begin(), line.end(), std::inserter(letters, letters.end()), isLetter);
    return {letters.begin(), letters.end()};
}

bool sameExpression(std::string_view a, std::string_view b, long double tolerance) {
    const std::string letters = lettersOf(std::string(a) + std::string(b));
    int compared = 0;
    for (int round = 0; round < (letters.empty() ? 1 : 6); ++round) {
        const Bindings point = pointOf(letters, round);
        const auto left = valueOfMarkup(a, point);
        const auto right = valueOfMarkup(b, point);
        if (!left || !right) return false;
        if (!left->isDefined() && !right->isDefined()) continue;
        if (!same(*left, *right, tolerance)) return false;
        ++compared;
    }
    return compared >= (letters.empty() ? 1 : 2);
}

std::optional<SolutionSet> solutionSetOf(std::string_view line) {
    const auto equation = equationOf(line);
    if (!equation) return std::nullopt;
    const std::string letters = lettersOf(line);
    Bindings origin;
    for (const char letter : letters) origin[letter] = ExactValue();
    SolutionSet set;
    const auto constant = differenceAt(*equation, origin);
    if (!constant) return std::nullopt;
    set.constant = *constant;
    for (const char letter : letters) {
        Bindings unit = origin;
        unit[letter] = ExactValue(1);
        const auto there = differenceAt(*equation, unit);
        if (!there) return std::nullopt;
        set.coefficients[letter] = *there - *constant;
    }
    if (!isLinear(*equation, set, letters)) return std::nullopt;
    normalise(set);
    if (!equation->denied) return set;
    // "2$2" would be a lie, and a line with letters cannot say that it never holds.
    if (set.kind != SolutionSet::Kind::Nothing) return std::nullopt;
    return set;
}

bool same(const SolutionSet& a, const SolutionSet& b, long double tolerance) {
    if (a.kind != b.kind) return false;
    if (a.kind != SolutionSet::Kind::Line) return true;
    if (a.coefficients.size() != b.coefficients.size()) return false;
    for (const auto& [letter, coefficient] : a.coefficients) {
        const auto other = b.coefficients.find(letter);
        if (other == b.coefficients.end() || !same(coefficient, other->second, tolerance)) return false;
    }
    return same(a.constant, b.constant, tolerance);
}

bool sameEquation(std::string_view a, std::string_view b, long double tolerance) {
    const auto left = solutionSetOf(a);
    const auto right = solutionSetOf(b);
    return left && right && same(*left, *right, tolerance);
}

}  // namespace ordwise::test
