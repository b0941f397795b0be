// What must be true of every solution of the engine.
#include "EngineChecks.hpp"

#include "MarkupValue.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <set>

namespace ordwise::test {

namespace {

constexpr long double singlePrecision = 2e-5L;
constexpr long double seventhDigit = 5e-7L;

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// True where a line holds a number that a single cannot hold exactly: more than six digits, on both
// sides of the point, or the E form.
bool beyondSingle(std::string_view line) {
    int run = 0;
    for (const char c : line) {
        if (c == '.') continue;
        run = isDigit(c) ? run + 1 : 0;
        if (run > 6 || c == 'E') return true;
    }
    return false;
}

long double toleranceFor(std::string_view a, std::string_view b, long double least) {
    return beyondSingle(a) || beyondSingle(b) ? std::max(least, singlePrecision) : least;
}

std::string beside(const std::string& a, const std::string& b) {
    return a + "   then   " + b;
}

// The text of a reduced fraction as the program draws it.
std::string drawn(const Rational& r) {
    const std::string size = std::to_string(std::abs(r.numerator));
    const std::string sign = r.numerator < 0 ? "-" : "";
    return r.denominator == 1 ? sign + size : sign + "#" + size + "/" + std::to_string(r.denominator) + "#";
}

bool isSimplestNumber(const std::string& line) {
    if (beyondSingle(line)) return valueOfMarkup(line).has_value();
    const auto value = valueOfMarkup(line);
    const auto r = value ? value->asRational() : std::nullopt;
    return r && drawn(*r) == line;
}

// The terms of a sum, each with its sign; signs in raised text and parentheses separate nothing.
std::vector<std::string> termsOf(const std::string& line) {
    std::vector<std::string> terms;
    int depth = 0;
    bool raised = false;
    for (const char c : line) {
        if (c == '^') raised = !raised;
        if (c == '(') ++depth;
        if (c == ')') --depth;
        const bool begins = (c == '+' || c == '-') && depth == 0 && !raised;
        if (begins || terms.empty()) terms.emplace_back();
        terms.back() += c;
    }
    return terms;
}

bool hasSquareFactor(long n) {
    for (long i = 2; i * i <= n; ++i) {
        if (n % (i * i) == 0) return true;
    }
    return n <= 1;
}

// The whole numbers between a pair of "~".
std::vector<long> radicandsOf(const std::string& line) {
    std::vector<long> radicands;
    for (std::size_t at = line.find('~'); at != std::string::npos;) {
        const std::size_t close = line.find('~', at + 1);
        if (close == std::string::npos) break;
        radicands.push_back(std::atol(line.substr(at + 1, close - at - 1).c_str()));
        at = line.find('~', close + 1);
    }
    return radicands;
}

// A term taken apart: e.g. "-#3x^2^/4#" -> coefficient -3/4, letters "x^2^".
struct Monomial {
    std::string letters;
    std::optional<Rational> coefficient;
};

Monomial monomialOf(const std::string& term) {
    Monomial monomial;
    std::size_t i = 0;
    while (i < term.size()) {
        if (std::islower(static_cast<unsigned char>(term[i])) == 0) {
            ++i;
            continue;
        }
        monomial.letters += term[i++];
        if (i < term.size() && term[i] == '^') {
            const std::size_t close = term.find('^', i + 1);
            monomial.letters += term.substr(i, close - i + 1);
            i = close + 1;
        }
    }
    Bindings ones;
    for (const char letter : lettersOf(term)) ones[letter] = ExactValue(1);
    const auto value = valueOfMarkup(term.front() == '+' ? term.substr(1) : term, ones);
    if (value) monomial.coefficient = value->asRational();
    return monomial;
}

// How the program draws a term, for a comparison with what it drew.
std::string drawn(const Monomial& monomial, bool first) {
    const Rational r = *monomial.coefficient;
    const std::string size = std::to_string(std::abs(r.numerator));
    std::string above = (size == "1" && !monomial.letters.empty() ? "" : size) + monomial.letters;
    if (r.denominator != 1) above = "#" + above + "/" + std::to_string(r.denominator) + "#";
    return (r.numerator < 0 ? "-" : (first ? "" : "+")) + above;
}

bool isPrime(long n) {
    if (n < 2) return false;
    for (long i = 2; i * i <= n; ++i) {
        if (n % i == 0) return false;
    }
    return true;
}

std::vector<std::string> splitAt(const std::string& text, char separator) {
    std::vector<std::string> pieces(1);
    for (const char c : text) {
        if (c == separator) {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

void append(Complaints& all, const Complaints& more) {
    all.insert(all.end(), more.begin(), more.end());
}

// Whether the first line asks for something that does not exist.
bool dividesByZero(const Solution& solution) {
    if (solution.steps.empty()) return false;
    const auto value = valueOfMarkup(solution.steps.front().line);
    return value && !value->isDefined();
}

// Whether the solution had come to numbers whose product may pass 32 bits, where fractions are
// documented to overflow.
bool reachesLargeNumbers(const Solution& solution) {
    constexpr long root = 46340;
    if (solution.last().find('E') != std::string::npos) return true;
    std::string digits;
    for (const char c : solution.last() + " ") {
        if (isDigit(c)) {
            digits += c;
            continue;
        }
        if (digits.size() > 9 || std::atol(digits.c_str()) >= root) return true;
        digits.clear();
    }
    return false;
}

// A line by itself is the solution of a number or a fraction that was typed alone.
bool isRestated(const Solution& solution) {
    return solution.steps.size() == 1 && solution.typed.find_first_of("+-*^~|(", 1) == std::string::npos;
}

// The letters with the values that were answered for them.
Bindings answered(const Solution& solution) {
    Bindings bindings;
    for (const auto& [letter, answer] : solution.answers) {
        const bool minus = answer.front() == '-';
        const auto value = ExactValue::ofDecimal(answer.substr(minus ? 1 : 0));
        if (value) bindings[letter] = minus ? -*value : *value;
    }
    return bindings;
}

Complaints nothingMore(const Solution&) {
    return {};
}

template <Check simplest>
Complaints ofSum(const Problem& problem, const Solution& solution) {
    return sumComplaints(problem, solution, simplest);
}

template <Check lines, Check last>
Complaints ofLines(const Problem& problem, const Solution& solution) {
    Complaints found = commonComplaints(problem, solution);
    if (found.empty()) append(found, lines(solution));
    if (found.empty()) append(found, last(solution));
    return found;
}

struct TopicChecks {
    const char* topic;
    Complaints (*complaints)(const Problem&, const Solution&);
};

constexpr TopicChecks topicChecks[] = {
    {"Arithmetic", ofSum<simplestNumberComplaints>},
    {"Fraction Arithmetic", ofSum<simplestNumberComplaints>},
    {"Calculating With Exponents", ofSum<simplestNumberComplaints>},
    {"Complex Arithmetic Expressions", ofSum<simplestNumberComplaints>},
    {"Absolute Values", ofSum<simplestNumberComplaints>},
    {"Calculating Roots", ofSum<simplestRootComplaints>},
    {"Exponential Notation", ofSum<primePowerComplaints>},
    {"Simplifying Polynomials", ofSum<simplestPolynomialComplaints>},
    {"Negative Exponents", ofSum<nothingMore>},
    {"Solving Equations", ofLines<equationComplaints, solvedEquationComplaints>},
    {"Arithmetic Principles", ofLines<equationComplaints, solvedEquationComplaints>},
    {"Graphing A Linear Equation", ofLines<equationComplaints, nothingMore>},
    {"Evaluating Polynomials", ofLines<evaluationComplaints, simplestNumberComplaints>},
};

const TopicChecks* rowOf(const std::string& topic) {
    const auto row = std::find_if(std::begin(topicChecks), std::end(topicChecks),
                                  [&](const TopicChecks& one) { return one.topic == topic; });
    return row == std::end(topicChecks) ? nullptr : &*row;
}

}  // namespace

Complaints valueComplaints(const Solution& solution, long double tolerance) {
    for (std::size_t i = 1; i < solution.steps.size(); ++i) {
        const std::string& before = solution.steps[i - 1].line;
        const std::string& line = solution.steps[i].line;
        // A decimal is a fraction exactly, however many digits it has.
        const bool rewritten = solution.steps[i].note == "Convert the decimal number to a fraction.";
        // A product has the seven digits of a single, and those that end in zeros do not print: the
        // line alone cannot tell that there were more.
        const bool product = solution.steps[i].note.starts_with("Multiply ");
        const long double least = std::max(tolerance, product ? seventhDigit : 0);
        const long double allowed = rewritten ? 0 : toleranceFor(before, line, least);
        if (!sameExpression(before, line, allowed)) {
            return {{"a line is not equal to the line before", beside(before, line)}};
        }
    }
    return {};
}

Complaints equationComplaints(const Solution& solution) {
    for (std::size_t i = 1; i < solution.steps.size(); ++i) {
        const std::string& before = solution.steps[i - 1].line;
        const std::string& line = solution.steps[i].line;
        if (!sameEquation(before, line, toleranceFor(before, line, 0))) {
            return {{"a line has other solutions than the line before", beside(before, line)}};
        }
    }
    return {};
}

Complaints evaluationComplaints(const Solution& solution) {
    for (std::size_t i = 1; i < solution.steps.size(); ++i) {
        const std::string& line = solution.steps[i].line;
        const std::string& before = solution.steps[i - 1].line;
        const auto wanted = valueOfMarkup(before, answered(solution));
        const auto value = valueOfMarkup(line, answered(solution));
        const long double tolerance = wanted && std::fabs(wanted->approximate()) > 9e5L ? singlePrecision : 0;
        if (!wanted || !value || !same(*wanted, *value, tolerance)) {
            return {{"a line is not equal to the line before", beside(before, line)}};
        }
    }
    return {};
}

Complaints simplestNumberComplaints(const Solution& solution) {
    if (isSimplestNumber(solution.last())) return {};
    return {{"the last line is not a number in simplest form", solution.last()}};
}

Complaints decimalComplaints(const Solution& solution) {
    if (solution.last().find_first_of("#*(") == std::string::npos) return {};
    return {{"the last line is no decimal number", solution.last()}};
}

Complaints simplestRootComplaints(const Solution& solution) {
    const std::string& line = solution.last();
    const auto value = valueOfMarkup(line);
    if (!value || line.find('*') != std::string::npos) return {{"the last line is no sum of roots", line}};
    const auto radicands = radicandsOf(line);
    const bool square = std::any_of(radicands.begin(), radicands.end(), hasSquareFactor);
    if (square) return {{"the last line has a square under a root", line}};
    if (beyondSingle(line)) return {};
    if (termsOf(line).size() != value->termCount()) return {{"the last line has like terms", line}};
    return {};
}

Complaints primePowerComplaints(const Solution& solution) {
    const std::string& line = solution.last();
    if (line == "0" || line == "1") return {};
    std::set<std::string> seen;
    for (const auto& factor : splitAt(line, '*')) {
        const std::string prime = factor.substr(0, factor.find('^'));
        if (!isPrime(std::atol(prime.c_str()))) return {{"the last line has a factor that is no prime", line}};
        if (!seen.insert(prime).second) return {{"the last line has a prime twice", line}};
    }
    return {};
}

Complaints simplestPolynomialComplaints(const Solution& solution) {
    const std::string& line = solution.last();
    if (line.find_first_of("()*[]|") != std::string::npos) return {{"the last line is not expanded", line}};
    if (beyondSingle(line)) return {};
    std::set<std::string> seen;
    bool first = true;
    for (const auto& term : termsOf(line)) {
        const Monomial monomial = monomialOf(term);
        if (!monomial.coefficient) return {{"the last line cannot be read", line}};
        if (!seen.insert(monomial.letters).second) return {{"the last line has like terms", line}};
        if (drawn(monomial, first) != term) return {{"a term of the last line is not in simplest form", line}};
        first = false;
    }
    return {};
}

Complaints solvedEquationComplaints(const Solution& solution) {
    const std::string& line = solution.last();
    const std::size_t sign = line.find_first_of("=$");
    if (sign == std::string::npos) return {{"the last line is no equation", line}};
    const std::string left = line.substr(0, sign);
    const std::string right = line.substr(sign + 1);
    if (!isSimplestNumber(right)) return {{"the right side of the last line is not in simplest form", line}};
    if (line[sign] == '=' && left.size() == 1 && std::islower(static_cast<unsigned char>(left.front())) != 0) return {};
    if (!isSimplestNumber(left)) return {{"the last line is no solution", line}};
    if ((line[sign] == '=') != (left == right)) return {{"the last line is not true", line}};
    return {};
}

Complaints sumComplaints(const Problem& problem, const Solution& solution, Check simplest, long double tolerance) {
    if (dividesByZero(solution)) {
        if (solution.messages == std::vector<std::string>{"Division by 0!"}) return {};
        return {{"a division by zero passes", solution.last()}};
    }
    if (solution.messages == std::vector<std::string>{"Overflow!"} && reachesLargeNumbers(solution)) return {};
    Complaints found = commonComplaints(problem, solution);
    if (!solution.messages.empty() || solution.steps.empty()) return found;
    append(found, valueComplaints(solution, tolerance));
    if (!isRestated(solution)) append(found, simplest(solution));
    return found;
}

bool isEngineTopic(const std::string& topic) {
    return rowOf(topic) != nullptr;
}

Complaints engineComplaints(const Problem& problem, const Solution& solution) {
    return rowOf(problem.topic)->complaints(problem, solution);
}

bool isMathematics(const Solution& solution) {
    if (!solution.canSolve || solution.steps.empty()) return false;
    const std::string& line = solution.steps.front().line;
    Bindings twos;
    for (const char letter : lettersOf(line)) twos[letter] = ExactValue(2);
    return valueOfMarkup(line, twos).has_value();
}

}  // namespace ordwise::test
