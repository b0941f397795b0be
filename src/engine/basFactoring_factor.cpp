// The common factor of a polynomial, and the choice between it and the roots of a quadratic.
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFactoring.hpp"
#include "basFormattingEq.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ordwise {
namespace {

// What all terms of a group share: a whole number, with the sign of the first term, and a power of
// the first variable. e.g. -2x^2-4x -> -2, 1
struct CommonFactor {
    int number = 1;
    double power = 0;

    [[nodiscard]] bool isWorthTaking() const { return std::abs(number) > 1 || power > 0; }
};

CommonFactor commonFactorOf(int depth, int group) {
    std::string list;
    double power = exponentOf(termOf(depth, group, 1).numText, ws.VarNames[1]);
    for (int t = 1; t <= ws.TermLast[depth][group]; ++t) {
        const ExprTerm& term = termOf(depth, group, t);
        if (term.denominator != 1 || std::floor(term.numerator) != term.numerator) return {};
        list += (list.empty() ? "" : " ") + textOf(std::fabs(term.numerator));
        power = std::min(power, exponentOf(term.numText, ws.VarNames[1]));
    }
    const Int16 number = longOf(GcfOfList(list));
    return {termOf(depth, group, 1).numerator < 0 ? -number : static_cast<int>(number), std::max(power, 0.0)};
}

// The letters of a term with the first variable's exponent lowered. e.g. "x^3y", 1 -> "x^2y"
std::string lowered(const std::string& letters, double power) {
    const std::string& variable = ws.VarNames[1];
    const double left = exponentOf(letters, variable) - power;
    std::string rest = letters;
    const std::size_t at = rest.find(variable);
    if (variable.empty() || at == std::string::npos) return letters;
    std::size_t end = at + 1;
    while (end < rest.size() && !IsLetter(rest.substr(end, 1))) ++end;
    return rest.replace(at, end - at, left == 0 ? "" : variable + "^" + textOf(left));
}

// e.g. 2x^2+4x -> "+2x^1(+1x^1+2)"
std::string takenOut(int depth, int group, const CommonFactor& common) {
    std::string front;
    if (std::abs(common.number) > 1 || common.power == 0) front = textOf(std::abs(common.number));
    if (common.power > 0) front += ws.VarNames[1] + "^" + textOf(common.power);
    front = (common.number < 0 ? "-" : "+") + front;
    std::string inside;
    for (int t = 1; t <= ws.TermLast[depth][group]; ++t) {
        Monomial term = monomialOf(termOf(depth, group, t));
        term.numerator /= static_cast<float>(common.number);
        term.numText = lowered(term.numText, common.power);
        inside += signedText(term);
    }
    // Beside other factors of the line the common factor needs a parenthesis of its own.
    return (depth > 0 ? "(" + front + ")" : front) + "(" + inside + ")";
}

// The text with the factors in the place of the group's terms.
void putFactors(int depth, int group, const std::string& factors) {
    const ExprGroup& record = groupOf(depth, group);
    const int behind = depth > 0 ? record.closeIndex + 1 : static_cast<int>(record.closeIndex);
    const std::string front = depth > 0 ? tokensText(0, record.openIndex - 1) : textBefore(record);
    ExplodeTokens(front + factors + tokensText(behind, ws.TokenLast));
}

bool isQuadratic(int depth, int group) {
    double degree = 0;
    for (int t = 1; t <= ws.TermLast[depth][group]; ++t) {
        degree = std::max(degree, exponentOf(termOf(depth, group, t).numText, ws.VarNames[1]));
    }
    return degree == 2;
}

void takeCommonFactor(int depth, int group) {
    if (ws.TermLast[depth][group] < 2) return;
    const CommonFactor common = commonFactorOf(depth, group);
    if (!common.isWorthTaking()) return;
    ws.CurrentNote = "  -  Factor out the GCF";
    putFactors(depth, group, takenOut(depth, group, common));
}

bool splitQuadratic(int depth, int group) {
    const std::string variable = ws.VarNames[1];
    const Quadratic quadratic = quadraticOf(depth, group);
    if (quadratic.discriminant() < 0) {
        writeImaginary(variable);
        return true;
    }
    const std::string factors = linearFactors(quadratic, variable);
    if (factors.empty()) {
        QuadraticFormula(quadratic, variable);
        return true;
    }
    ws.CurrentNote = "  -  factor ";
    putFactors(depth, group, factors);
    return false;
}

}  // namespace

double exponentOf(const std::string& letters, const std::string& letter) {
    const std::size_t at = letter.empty() ? std::string::npos : letters.find(letter);
    if (at == std::string::npos) return 0;
    const bool written = at + 1 < letters.size() && letters[at + 1] == '^';
    return written ? lenientValueOf(letters.substr(at + 2)) : 1;
}

bool Factor(int depth, int group, bool verbose) {
    ws.StepClass = 1;
    if (!verbose && isQuadratic(depth, group)) return splitQuadratic(depth, group);
    takeCommonFactor(depth, group);
    return false;
}

std::string GcfOfList(const std::string& list) {
    std::int64_t divisor = 0;
    for (const std::string& piece : split(list, ' '))
        divisor = std::gcd(divisor, static_cast<std::int64_t>(longOf(piece)));
    return textOf(divisor);
}

}  // namespace ordwise
