// The formulas stand here once more, as rows of their own: an answer that the solver rounded can only
// be compared with the one that it was rounded from.
#include "ExactAnswers.hpp"

#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <optional>

namespace ordwise {
namespace {

using exact::Rational;
using Values = std::vector<Rational>;

// What the problem gives: the boxes, the numbers that were typed, and which way pi is written.
struct Given {
    std::vector<std::optional<Rational>> boxes;  // from 1 on
    Values typed;
    Rational pi = 0;

    [[nodiscard]] Rational box(std::size_t number) const { return boxes.at(number).value_or(Rational(0)); }
    [[nodiscard]] bool isEmpty(std::size_t number) const { return !boxes.at(number); }
    [[nodiscard]] Rational number(std::size_t i) const { return i < typed.size() ? typed[i] : Rational(0); }
};

std::optional<Rational> signedNumber(const std::string& text) {
    const bool minus = text.starts_with("-");
    const auto size = exact::rationalOf(minus ? text.substr(1) : text);
    if (!size) return std::nullopt;
    return minus ? Rational(-*size) : *size;
}

// The numbers in a text; a "-" behind a digit is no sign. e.g. "8+1/2" -> 8, 1, 2
Values numbersIn(const std::string& text) {
    Values numbers;
    std::string word;
    const auto finish = [&] {
        if (const auto number = signedNumber(word)) numbers.push_back(*number);
        word.clear();
    };
    for (const char c : text) {
        const bool digit = (c >= '0' && c <= '9') || c == '.';
        if (!digit) finish();
        if (digit || c == '-') word += c;
    }
    finish();
    return numbers;
}

// a = b * c, one of which is asked for.
Rational missingFactor(const Given& g, std::size_t product, std::size_t left, std::size_t right) {
    if (g.isEmpty(product)) return g.box(left) * g.box(right);
    return g.box(product) / g.box(g.isEmpty(left) ? right : left);
}

Rational missingPercent(const Given& g) {
    if (g.isEmpty(1)) return g.box(2) * g.box(4) / 100;
    return 100 * g.box(1) / g.box(g.isEmpty(2) ? 4 : 2);
}

// b1/b2 = b3/b4
Rational missingInProportion(const Given& g) {
    if (g.isEmpty(1)) return g.box(2) * g.box(3) / g.box(4);
    if (g.isEmpty(2)) return g.box(1) * g.box(4) / g.box(3);
    if (g.isEmpty(3)) return g.box(1) * g.box(4) / g.box(2);
    return g.box(2) * g.box(3) / g.box(1);
}

// The sides of the triangles are 3, 2, 1 and 4, 6, 5: a, b, c. The side asked for is a2, then b2, then c2;
// the one that is known is taken in the order a2, c2, b2.
Rational missingSide(const Given& g) {
    constexpr std::size_t first[] = {3, 2, 1};
    constexpr std::size_t second[] = {4, 6, 5};
    const std::size_t asked = g.isEmpty(4) ? 0 : (g.isEmpty(6) ? 1 : 2);
    const std::size_t known = !g.isEmpty(4) ? 0 : (!g.isEmpty(5) ? 2 : 1);
    return g.box(first[asked]) * g.box(second[known]) / g.box(first[known]);
}

Rational metric(const Given& g) {
    const auto place = [](const ComboControl& combo) { return static_cast<int>(combo.ListIndex); };
    return g.box(4) * exact::power(Rational(10), place(frmPaper.Combo1) - place(frmPaper.Combo2));
}

int wholeBox(const Given& g, std::size_t number) {
    return g.box(number).convert_to<int>();
}

Rational tenTo(int exponent) {
    constexpr int most = 60;
    return exact::power(Rational(10), std::clamp(exponent, -most, most));
}

Rational mean(const Given& g) {
    Rational sum = 0;
    for (const Rational& number : g.typed) sum += number;
    return sum / Rational(static_cast<int>(g.typed.size()));
}

Rational median(const Given& g) {
    Values sorted = g.typed;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

Rational thousandths(int n) {
    return {n, 1000};
}

struct FormulaRow {
    int type;
    Rational (*value)(const Given& g);
    bool circle = false;  // it holds pi
};

using G = const Given&;

// clang-format off
const FormulaRow formulas[] = {
    {  1, [](G g) -> Rational { return g.box(2) * g.box(3) * g.box(1); }},
    {  2, [](G g) -> Rational { return g.pi * g.box(2) * g.box(2) * g.box(1); }, true},
    {  3, [](G g) -> Rational { return g.pi * g.box(2) * g.box(2) * g.box(1) / 3; }, true},
    {  4, [](G g) -> Rational { return g.box(2) * g.box(3) * g.box(1) / 3; }},
    {  5, [](G g) -> Rational { return g.pi * g.box(2) * g.box(2) * g.box(2) * 4 / 3; }, true},
    {  6, [](G g) -> Rational { return g.box(2) * g.box(1); }},
    {  7, [](G g) -> Rational { return g.pi * g.box(2) * g.box(2); }, true},
    {  8, [](G g) -> Rational { return g.box(2) * g.box(1) / 2; }},
    {  9, [](G g) -> Rational { return g.box(2) * g.box(1); }},
    { 10, [](G g) -> Rational { return g.box(3) * (g.box(2) + g.box(1)) / 2; }},
    { 11, missingSide},
    { 13, [](G g) -> Rational { return 2 * (g.box(2) + g.box(1)); }},
    { 14, missingPercent},
    { 15, [](G g) -> Rational { return 2 * g.pi * g.box(2); }, true},
    { 16, [](G g) -> Rational { return g.pi * g.box(2); }, true},
    { 17, [](G g) -> Rational { return 2 * g.box(2); }},
    { 18, [](G g) -> Rational { return g.box(2) / 2; }},
    { 19, [](G g) -> Rational { return g.box(3) + g.box(2) + g.box(1); }},
    { 20, missingInProportion},
    { 21, [](G g) -> Rational { return missingFactor(g, 1, 2, 4); }},
    { 22, [](G g) -> Rational { return missingFactor(g, 1, 2, 4); }},
    { 23, metric},
    { 24, metric},
    { 25, [](G g) -> Rational { return g.box(1) * tenTo(wholeBox(g, 2)); }},
    { 26, [](G g) -> Rational { return g.box(1) * g.box(3) * tenTo(wholeBox(g, 2) + wholeBox(g, 4)); }},
    { 27, [](G g) -> Rational { return g.box(1) / g.box(3) * tenTo(wholeBox(g, 2) - wholeBox(g, 4)); }},
    { 28, [](G g) -> Rational { return g.number(0) * thousandths(35); }},
    { 29, [](G g) -> Rational { return g.number(0) * thousandths(621); }},
    { 30, [](G g) -> Rational { return g.number(0) * thousandths(3300); }},
    { 31, [](G g) -> Rational { return g.number(0) * thousandths(39370); }},
    { 32, [](G g) -> Rational { return g.number(0) * thousandths(28375); }},
    { 33, [](G g) -> Rational { return g.number(0) * 454; }},
    { 34, [](G g) -> Rational { return g.number(0) / thousandths(621); }},
    { 35, [](G g) -> Rational { return g.number(0) / thousandths(3300); }},
    { 36, [](G g) -> Rational { return g.number(0) / thousandths(39370); }},
    { 37, [](G g) -> Rational { return g.number(0) * 2000; }},
    { 38, [](G g) -> Rational { return g.number(0) * 32000; }},
    { 39, [](G g) -> Rational { return g.number(0) / 2000; }},
    { 40, [](G g) -> Rational { return g.number(0) * 16; }},
    { 41, [](G g) -> Rational { return g.number(0) / 32000; }},
    { 42, [](G g) -> Rational { return g.number(0) / 16; }},
    { 43, [](G g) -> Rational { return g.number(0) * 1760; }},
    { 44, [](G g) -> Rational { return g.number(0) * 5280; }},
    { 45, [](G g) -> Rational { return g.number(0) * 63360; }},
    { 46, [](G g) -> Rational { return g.number(0) / 1760; }},
    { 47, [](G g) -> Rational { return g.number(0) * 3; }},
    { 48, [](G g) -> Rational { return g.number(0) * 36; }},
    { 49, [](G g) -> Rational { return g.number(0) / 5280; }},
    { 50, [](G g) -> Rational { return g.number(0) / 3; }},
    { 51, [](G g) -> Rational { return g.number(0) * 12; }},
    { 52, [](G g) -> Rational { return g.number(0) / 63360; }},
    { 53, [](G g) -> Rational { return g.number(0) / 36; }},
    { 54, [](G g) -> Rational { return g.number(0) / 12; }},
    { 61, median},
    { 62, mean},
    { 65, [](G g) -> Rational { return g.number(0); }},
    { 68, [](G g) -> Rational { return g.number(0) / 100; }},
    { 69, [](G g) -> Rational { return g.number(0) / 100; }},
    { 70, [](G g) -> Rational { return g.number(0) * 100; }},
    { 71, [](G g) -> Rational { return g.number(0); }},
    { 72, [](G g) -> Rational { return 100 * g.number(0) / g.number(1); }},
    { 73, [](G g) -> Rational { return g.number(0) / g.number(1); }},
    { 74, [](G g) -> Rational { return g.number(0) + g.number(1) / g.number(2); }},
    { 75, [](G g) -> Rational { return g.number(0) / g.number(1); }},
    { 78, [](G g) -> Rational { return g.number(0) / g.number(1); }},
    { 79, [](G g) -> Rational { return g.number(1) / g.number(0); }},
    { 80, [](G g) -> Rational { return g.number(0) / g.number(1); }},
    {109, [](G g) -> Rational { return g.number(0) * 9 / 5 + 32; }},
    {110, [](G g) -> Rational { return (g.number(0) - 32) * 5 / 9; }},
    {111, [](G g) -> Rational { return g.number(0) / 454; }},
};
// clang-format on

// As schools write it, and as the solver computes with it.
Values waysToWritePi() {
    Values ways{Rational(22, 7)};
    for (const char* digits : {"3.14", "3.1416", "3.14159", "3.141593", "3.1415926", "3.1415927", "3.14159265",
                               "3.141592654", "3.141592653589793"})
        ways.push_back(*exact::rationalOf(digits));
    return ways;
}

Given givenOnDesk() {
    Given given;
    given.boxes.emplace_back();
    constexpr int boxes = 6;
    for (int number = 1; number <= boxes; ++number) given.boxes.push_back(signedNumber(frmPaper.box(number).Text));
    given.typed = numbersIn(ws.ProblemText);
    return given;
}

}  // namespace

std::vector<Rational> exactAnswers() {
    const auto row = std::find_if(std::begin(formulas), std::end(formulas),
                                  [](const FormulaRow& each) { return each.type == ws.ProblemType; });
    if (row == std::end(formulas)) return {};
    Given given = givenOnDesk();
    try {
        if (!row->circle) return {row->value(given)};
        Values values;
        for (const Rational& pi : waysToWritePi()) {
            given.pi = pi;
            values.push_back(row->value(given));
        }
        return values;
    } catch (const std::exception&) {
        return {};  // a division by 0: the solver has said so, and nothing is right
    }
}

}  // namespace ordwise
