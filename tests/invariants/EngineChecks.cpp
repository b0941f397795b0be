// What must be true of every solution of the engine.
#include "EngineChecks.hpp"

#include "MarkupValue.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <numeric>
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

// The numbers of a text, without signs. e.g. "-#2x^3^/.5#" -> 2, 3, 0.5
struct FoundNumber {
    long double value;
    std::size_t begin;
    std::size_t end;
};
std::vector<FoundNumber> numbersOf(const std::string& text) {
    std::vector<FoundNumber> found;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool begins = isDigit(text[at]) || (text[at] == '.' && at + 1 < text.size() && isDigit(text[at + 1]));
        if (!begins) continue;
        char* end = nullptr;
        const long double value = std::strtold(text.c_str() + at, &end);
        const auto behind = static_cast<std::size_t>(end - text.c_str());
        found.push_back({value, at, behind});
        at = behind - 1;
    }
    return found;
}

// Whether the fractions that the solution had come to need more than 32 bits over their common
// denominator, which is documented to overflow.
bool reachesLargeNumbers(const Solution& solution) {
    constexpr long double limit = 2147483648.0L;
    const std::string& line = solution.last();
    if (line.find('E') != std::string::npos) return true;
    const auto numbers = numbersOf(line);
    const auto isBelow = [&](const FoundNumber& number) { return number.begin > 0 && line[number.begin - 1] == '/'; };
    long double common = 1;
    for (const auto& number : numbers) {
        if (number.value >= limit) return true;
        const bool below = isBelow(number) && number.value >= 1;
        if (below) common *= number.value / std::gcd(std::llround(common), std::llround(number.value));
        if (common >= limit) return true;
    }
    long double total = 0;
    for (const auto& number : numbers) total += isBelow(number) ? 0 : number.value * common;
    return total >= limit;
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
    append(found, noteComplaints(solution));
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
    {"Negative Exponents", ofSum<orderedComplaints>},
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

namespace {

// What a note says of its own accord: numbers from here to the end of the sentence are in no line.
//   the common factor and how it is divided out     Reduce #4/6# by dividing ... by 2. ( #4/6# = #2*2/2*3# )
//   the square under a root                         In this problem (12=4*3) there is a perfect square ...
//   the common denominator                          ... that will produce the common denominator (6) ...
//   the example of a power                          ... should be expanded out by multiplying. Ex( 3^2^ = 9 )
//   how many places are kept                        Round to 4 decimal places.
constexpr std::string_view introduced[] = {"dividing the numerator and denominator by ", "In this problem (",
                                           "produce the common denominator (", "Ex( 3^2^ = 9", "Round to "};

// A note names a number as a single holds it, a line may have more digits.
bool shows(const std::string& line, long double value) {
    const long double allowed = value >= 1e7L ? value * singlePrecision : 0;
    const auto numbers = numbersOf(line);
    return std::any_of(numbers.begin(), numbers.end(),
                       [&](const FoundNumber& one) { return std::fabs(one.value - value) <= allowed; });
}

}  // namespace

Complaints noteComplaints(const Solution& solution) {
    for (std::size_t i = 1; i < solution.steps.size(); ++i) {
        const Step& step = solution.steps[i];
        std::string note = step.note;
        for (const auto start : introduced) note = note.substr(0, note.find(start));
        for (const auto& number : numbersOf(note)) {
            // A coefficient, an exponent and a denominator of 1 are not written, nor is a term that cancelled.
            const bool unwritten = number.value == 0 || number.value == 1;
            if (unwritten || shows(step.line, number.value) || shows(solution.steps[i - 1].line, number.value))
                continue;
            return {{"a note names a number that no line shows",
                     beside(solution.steps[i - 1].line, step.line) + "   " + step.note}};
        }
    }
    return {};
}

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

namespace {

// The exponent by which a term is placed; what has no letter above the bar, or a negative exponent,
// goes behind. e.g. 2 of "+#3x^2^/4#", 0 of "-#5/x#"
long degreeOf(const std::string& term) {
    const std::string above = term.substr(0, term.find('/'));
    const std::size_t letter = above.find_first_of("abcdefghijklmnopqrstuvwxyz");
    if (letter == std::string::npos) return 0;
    const bool raised = letter + 1 < above.size() && above[letter + 1] == '^';
    return raised ? std::max(0L, std::atol(above.c_str() + letter + 2)) : 1;
}

}  // namespace

Complaints orderedComplaints(const Solution& solution) {
    const auto terms = termsOf(solution.last());
    const bool ordered = std::is_sorted(terms.begin(), terms.end(),
                                        [](const auto& a, const auto& b) { return degreeOf(a) > degreeOf(b); });
    if (ordered) return {};
    return {{"the terms of the last line do not stand in decreasing order", solution.last()}};
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
    return orderedComplaints(solution);
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
    append(found, noteComplaints(solution));
    if (!isRestated(solution)) append(found, simplest(solution));
    return found;
}

Complaints decimalsComplaints(const Problem& problem, const Solution& solution) {
    const bool stopped = solution.messages == std::vector<std::string>{"Division by 0!"} ||
                         solution.messages == std::vector<std::string>{"Overflow!"};
    Complaints found = stopped ? Complaints() : commonComplaints(problem, solution);
    append(found, noteComplaints(solution));
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
