// Examples of the expression topics. They are typed operand by operand and operator by operator, with
// random digits "2" to "9", until the text has the length of its level and is complete.
//
// A key that the check refuses simply falls away, so that what stays is legal. What is tried is kept
// to the size of school problems: numbers of one or two digits, powers below 1000, products of two.
#include "ExampleDraws.hpp"
#include "Fault.hpp"
#include "GuidedInput.hpp"
#include "NumberText.hpp"
#include "RandomDraws.hpp"
#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <set>
#include <vector>

namespace ordwise {
namespace {

struct Family {
    int type;
    int length;             // of the plain level
    int moreWhenComplex;    // and this much longer at the complex one
    const char* operators;  // those tried, each as often as it stands here
    void (*operand)(bool complex, bool first);
    bool (*isWorthSolving)();
};

// ---- what has been typed

const std::string& lastKey(int back = 0) {
    static const std::string none;
    return ws.InputLast > back ? ws.InputTokens[ws.InputLast - 1 - back] : none;
}

bool isMultiplying(const std::string& key) {
    return key == "*" || key == "/";
}

// The last operator outside an exponent, "" before the first.
std::string lastOperator() {
    for (int i = ws.InputLast - 1; i >= 0; --i) {
        const std::string& key = ws.InputTokens[i];
        if (IsOperator(key) || key == "=") return key;
    }
    return "";
}

// ---- operands

// 2 to 9, 22 to 99
std::string digits(int count) {
    std::string text;
    while (static_cast<int>(text.size()) < count) text += textOf(drawBelow(8) + 2);
    return text;
}

std::string number() {
    return digits(drawChance(1, 3) ? 2 : 1);
}

// A denominator has one digit, and no more than one of them stands in a product.
void typeNumber(bool, bool) {
    typeQuietly(lastKey() == "/" ? digits(1) : number());
}

std::string power() {
    for (;;) {
        const std::string base = number();
        const std::string exponent = digits(1);
        if (std::pow(valueOf(base), valueOf(exponent)) < 1000) return base + "^" + exponent;
    }
}

void typePower(bool complex, bool first) {
    if (lastKey() == "/" || (!first && drawBelow(3) == 0)) return typeNumber(complex, first);
    typeQuietly(power());
}

bool hasSquareFactor(int n) {
    for (int d = 2; d * d <= n; ++d) {
        if (n % (d * d) == 0) return true;
    }
    return false;
}

// A root from which something can be taken, more often than not with a coefficient.
void typeRoot(bool complex, bool first) {
    if (!first && drawBelow(4) == 0) return typeNumber(complex, first);
    std::string radicand = number();
    while (!hasSquareFactor(longOf(radicand))) radicand = number();
    typeQuietly((drawChance(1, 2) ? digits(1) : "") + "~" + radicand);
}

// Bars open where a sign or nothing stands before them; behind them only a sign can stand.
void typeBars(bool complex, bool first) {
    const bool mayOpen = first || lastKey() == "+" || lastKey() == "-";
    if (!mayOpen || (!first && drawBelow(3) != 0)) return typeNumber(complex, first);
    const std::string within = drawChance(1, 2) ? "-" + number() : number() + "-" + number();
    typeQuietly("|" + within + "|");
}

void typeGroup(bool complex, bool first) {
    const bool mayGroup = lastKey() != "/" && (first || drawBelow(3) == 0);
    if (!mayGroup) return typePower(complex, /*first=*/false);
    typeQuietly("(" + number() + (drawChance(1, 2) ? "+" : "-") + number() + ")");
}

// The letter of a problem in one variable is the one that was typed first.
std::string letter() {
    if (ws.VarCount > 1) return ws.VarNames[1];
    for (int i = 0; i < ws.InputLast; ++i) {
        if (IsLetter(ws.InputTokens[i])) return ws.InputTokens[i];
    }
    constexpr const char* letters[] = {"x", "y", "n", "a"};
    return letters[drawBelow(4)];
}

std::string coefficient() {
    return drawChance(3, 4) ? digits(1) : "";
}

std::string smallExponent() {
    return drawChance(1, 3) ? "^" + textOf(drawBelow(2) + 2) : "";
}

// e.g. "7", "3x^2", "4(x-5)"
void typePolynomialTerm(bool complex, bool first) {
    if (lastKey() == "/") return typeNumber(complex, first);
    const std::string x = letter();
    switch (first ? 1 + drawBelow(2) : drawBelow(3)) {
        case 0: typeQuietly(digits(1)); break;
        case 1: typeQuietly(coefficient() + x + smallExponent()); break;
        default:
            typeQuietly(digits(1) + "(" + coefficient() + x + (drawChance(1, 2) ? "+" : "-") + digits(1) + ")");
            break;
    }
}

// Kept small, since every letter becomes a number. e.g. "4xy", "8z^2", and behind a star "6y"
void typeTermOfLetters(bool, bool first) {
    if (!first && drawBelow(4) == 0) {
        typeQuietly(digits(1));
        return;
    }
    if (lastKey() == "*") {
        constexpr const char* names[] = {"x", "y", "z"};
        typeQuietly(digits(1) + names[drawBelow(3)]);
        return;
    }
    std::string letters;
    for (const char* name : {"x", "y", "z"}) {
        if (drawBelow(2) == 0) letters += name;
    }
    if (letters.empty()) letters = "x";
    typeQuietly(digits(1) + letters + (letters.size() == 1 ? smallExponent() : ""));
}

void typeLinearTerm(bool complex, bool first) {
    if (!first && drawBelow(2) == 0) {
        typeQuietly(complex ? number() : digits(1));
        return;
    }
    typeQuietly(coefficient() + letter());
}

void typeTermOfLine(bool complex, bool) {
    switch (drawBelow(3)) {
        case 0: typeQuietly(complex ? number() : digits(1)); break;
        case 1: typeQuietly(coefficient() + "x"); break;
        default: typeQuietly(coefficient() + "y"); break;
    }
}

// ---- what is worth solving

// What all terms of an equation come to on its left side: how often each letter stands there, and under
// "" the number. e.g. 2x+3=x+7 -> x 1, "" -4
std::map<std::string, int> countedTerms() {
    std::map<std::string, int> counts;
    int side = 1;
    int sign = 1;
    std::string number;
    std::string name;
    const auto endTerm = [&] {
        if (!number.empty() || !name.empty()) counts[name] += side * sign * (number.empty() ? 1 : longOf(number));
        number.clear();
        name.clear();
    };
    for (int i = 0; i < ws.InputLast; ++i) {
        const std::string& key = ws.InputTokens[i];
        if (IsLetter(key)) {
            name = key;
        } else if (IsNumeric(key)) {
            number += key;
        } else {
            endTerm();
            sign = key == "-" ? -1 : 1;
            if (key == "=") side = -1;
        }
    }
    endTerm();
    return counts;
}

bool allLeft(const std::map<std::string, int>& counts) {
    return std::all_of(counts.begin(), counts.end(), [](const auto& count) { return count.second != 0; });
}

// The variable does not fall out of the equation, and it is not simply 0.
bool hasSolution() {
    const auto counts = countedTerms();
    return counts.size() == 2 && counts.contains("") && allLeft(counts);
}

// Both letters stay, with or without a number.
bool isSlopingLine() {
    auto counts = countedTerms();
    counts.erase("");
    return counts.size() == 2 && allLeft(counts);
}

// A product or a like term is there to be worked out.
bool hasOperator() {
    return !lastOperator().empty();
}

struct TypedTerm {
    int coefficient = 1;
    int exponent = 0;  // of the letter; 0 in a number
    int denominator = 1;
};

// The terms between the signs of a polynomial without groups and products.
std::vector<TypedTerm> typedTerms() {
    std::vector<TypedTerm> terms(1);
    std::string number;
    char part = 'c';  // of which part the digits are: coefficient, exponent or denominator
    const auto endNumber = [&] {
        if (number.empty()) return;
        TypedTerm& term = terms.back();
        (part == 'c' ? term.coefficient : part == 'e' ? term.exponent : term.denominator) = longOf(number);
        number.clear();
    };
    for (int i = 0; i < ws.InputLast; ++i) {
        const std::string& key = ws.InputTokens[i];
        if (IsNumeric(key)) {
            number += key;
            continue;
        }
        endNumber();
        if (key == "+" || key == "-") {
            terms.emplace_back();
            part = 'c';
        } else if (key == "^" || key == "/") {
            part = key == "^" ? 'e' : 'd';
        } else {
            terms.back().exponent = 1;
        }
    }
    endNumber();
    return terms;
}

// Neither a product or group to be multiplied out, nor like terms, nor a fraction to be reduced. An order
// to be made is not enough. e.g. 6x^3+6x-8, 2a-3a^3+4
bool isSimplest() {
    for (int i = 0; i < ws.InputLast; ++i) {
        if (ws.InputTokens[i] == "(" || ws.InputTokens[i] == "*") return false;
    }
    std::set<int> exponents;
    const std::vector<TypedTerm> terms = typedTerms();
    return std::all_of(terms.begin(), terms.end(), [&](const TypedTerm& term) {
        return exponents.insert(term.exponent).second && std::gcd(term.coefficient, term.denominator) == 1;
    });
}

bool asksToSimplify() {
    return hasOperator() && !isSimplest();
}

// clang-format off
const Family families[] = {
    { 91,  5, 10, "*+-*+-/", typeNumber,         hasOperator},
    { 81,  5, 10, "*+-*+-/", typePower,          hasOperator},
    { 82,  5, 10, "*+-+-",   typeRoot,           hasOperator},
    {120,  5, 10, "+-+-*/",  typeBars,           hasOperator},
    {121,  9,  4, "*+-*+-/", typeGroup,          hasOperator},
    {102,  9,  4, "+-+-*/",  typePolynomialTerm, asksToSimplify},
    {103,  9,  4, "+-+-*",   typeTermOfLetters,  hasOperator},
    {101,  9,  4, "+-",      typeLinearTerm,     hasSolution},
    {105,  9,  4, "+-",      typeTermOfLine,     isSlopingLine},
};
// clang-format on

const Family* familyOf(int type) {
    const auto family = std::find_if(std::begin(families), std::end(families),
                                     [&](const Family& candidate) { return candidate.type == type; });
    return family == std::end(families) ? nullptr : family;
}

bool isEquation(const Family& family) {
    return family.isWorthSolving == hasSolution || family.isWorthSolving == isSlopingLine;
}

// One product in a row is enough; behind a bar only a sign can stand.
std::string drawOperator(const Family& family) {
    const bool signsOnly = isMultiplying(lastOperator()) || lastKey() == "|";
    const int count = static_cast<int>(std::string_view(family.operators).size());
    for (;;) {
        const std::string key(1, family.operators[drawBelow(count)]);
        if (!signsOnly || !isMultiplying(key)) return key;
    }
}

bool isFinished(const Family& family, int length) {
    const bool barStandsLast = lastKey() == "|";
    const bool sidesAreThere = !isEquation(family) || (ws.EqualsTyped && lastOperator() != "=");
    return ws.InputLast >= length && sidesAreThere && !barStandsLast;
}

}  // namespace

bool isExpressionTopic(int type) {
    return familyOf(type) != nullptr;
}

bool typeExpression(const ExampleWish& wish) {
    const Family* family = familyOf(wish.type);
    if (family == nullptr) raise(FaultNumber::Subscript);
    const int length = family->length + (wish.complex ? family->moreWhenComplex : 0);
    family->operand(wish.complex, /*first=*/true);
    while (!isFinished(*family, length)) {
        const bool half = ws.InputLast * 2 >= length;
        typeQuietly(isEquation(*family) && !ws.EqualsTyped && half ? "=" : drawOperator(*family));
        family->operand(wish.complex, /*first=*/false);
    }
    return family->isWorthSolving();
}

bool typeQuietly(std::string_view keys) {
    bool all = true;
    for (const std::string& key : characters(keys)) {
        FormFilter(key, true);
        all = all && ws.CharAccepted;
    }
    return all;
}

}  // namespace ordwise
