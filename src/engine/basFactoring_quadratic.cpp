// Quadratics by their roots: two linear factors where the roots are fractions of whole numbers, the
// quadratic formula where they are not.
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFactoring.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

#include <cmath>

namespace ordwise {
namespace {

constexpr int rootPlaces = 5;
// From this setting of the detail on the formula itself is shown.
constexpr int formulaDetail = 3;

bool isWhole(double value) {
    return std::floor(value) == value;
}

// e.g. the root 3/2 -> "(+2x-3)", -1 -> "(+1x+1)"
std::string linearFactor(double above, double below, const std::string& variable) {
    const std::vector<std::string> root = split(CommonFactorText(std::fabs(above), below), '/');
    const std::string front = root.size() > 1 ? root[1] : "1";
    return "(+" + front + variable + (above > 0 ? "-" : "+") + root[0] + ")";
}

// e.g. 1.41421 -> "(+x-1.41421)"
std::string rootFactor(double root, const std::string& variable) {
    return "(+" + variable + (root > 0 ? "-" : "+") + textOf(std::fabs(root)) + ")";
}

void commitText(const std::string& text) {
    ExplodeTokens(text);
    CommitStep();
}

}  // namespace

Quadratic quadraticOf(int depth, int group) {
    Quadratic quadratic;
    for (int t = 1; t <= ws.TermLast[depth][group]; ++t) {
        const ExprTerm& term = termOf(depth, group, t);
        const double exponent = exponentOf(term.numText, ws.VarNames[1]);
        double& coefficient = exponent == 2 ? quadratic.a : exponent == 1 ? quadratic.b : quadratic.c;
        coefficient += static_cast<double>(term.numerator) / static_cast<double>(term.denominator);
    }
    return quadratic;
}

std::string linearFactors(const Quadratic& quadratic, const std::string& variable) {
    const auto [a, b, c] = quadratic;
    const double root = std::sqrt(quadratic.discriminant());
    if (a <= 0 || !isWhole(a) || !isWhole(b) || !isWhole(c) || !isWhole(root)) return "";
    return linearFactor(-b + root, 2 * a, variable) + linearFactor(-b - root, 2 * a, variable);
}

std::vector<double> QuadraticFormula(const Quadratic& quadratic, const std::string& variable) {
    const auto [a, b, c] = quadratic;
    if (quadratic.discriminant() < 0) {
        writeImaginary(variable);
        return {};
    }
    if (ws.StepDetail >= formulaDetail) {
        writeStep(variable + "=#-b\\~b^2^-4ac~/2a# for a" + variable + "^2^+b" + variable + "+c=0",
                  "  -  quadratic equation");
    }
    const double root = std::sqrt(quadratic.discriminant());
    const double first = Round(divided(-b + root, 2 * a), rootPlaces);
    const double second = Round(divided(-b - root, 2 * a), rootPlaces);
    ws.CurrentNote = "  -  solve";
    commitText(rootFactor(first, variable) + rootFactor(second, variable) + "=0");
    commitText(variable + "=" + textOf(first) + "," + textOf(second));
    return {first, second};
}

void writeImaginary(const std::string& variable) {
    const std::string sentence = variable + " has imaginary solutions...cannot factor.";
    writeStep(sentence, sentence);
}

}  // namespace ordwise
