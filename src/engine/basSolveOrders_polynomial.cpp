// Expanding a polynomial, and the short chains of the topics that are built on it: roots,
// exponential notation and evaluating a polynomial.
//
// ExpandPolynomial works in rounds at the deepest level of the store, at most one structural change
// a round, so that each change is a step of its own:
//
//   inside    each group by itself: free it, write powers out, multiply, gather like terms
//   together  the first group that has bars, an exponent, a neighbour or a factor in front
//   beside    the first factor that stands beside a group with a star, or behind it
//
// A round ends as soon as the level changes, since all groups are counted anew then.
#include "NumberText.hpp"
#include "Platform.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace ordwise {
namespace {

// Rounds at one level; a text that still changes then is left as it stands.
constexpr int roundLimit = 40;

bool isGroup(int depth, int group) {
    return ws.MaxDepth == depth && group <= ws.GroupTable[depth].lastGroup;
}

// --- inside: true when the round is over -------------------------------------------------------

bool freeOneGroup() {
    const std::string before = ImplodeTokens();
    RemoveParentheses();
    if (tokensSpell(before)) return false;
    CommitStep();
    return true;
}

// e.g. (2*3+x) -> (6+x), (x+x) -> (2x)
bool simplifyGroup(int depth, int group) {
    if (freeOneGroup() || ExpandIfPowers(group)) return true;
    if (ws.GroupProduct[depth][group]) OrderPolynomial(group);
    if (!isGroup(depth, group) || ExpandPrefixPower(group)) return true;
    // A reduction may free a group, and the ones behind it move up: they have not been looked at.
    const int groups = ws.GroupTable[depth].lastGroup;
    ReduceExpression(group);
    return ws.MaxDepth != depth || ws.GroupTable[depth].lastGroup != groups;
}

bool workInside(int depth) {
    for (int group = 0; isGroup(depth, group); ++group) {
        if (simplifyGroup(depth, group)) return true;
    }
    return false;
}

// --- together ----------------------------------------------------------------------------------

// e.g. |-3|, (x+1)^2, (x+1)(x+2), 3(x+1)
bool resolveGroup(int depth, int group) {
    const ExprGroup& record = groupOf(depth, group);
    if (record.isAbsolute) return AbsoluteValueStep(group);
    if (record.power != 1) {
        if (!ExpandPower(depth, group)) return false;
        CommitStep();
        return true;
    }
    if (record.nextGroup != -1) {
        if (groupOf(depth, record.nextGroup).power != 1) return false;
        MultiplyGroups(depth, group, record.nextGroup);
        CommitStep();
        return true;
    }
    if (!hasFactorInFront(depth, group)) return false;
    DistributeFactor(depth, group);
    return true;
}

bool workTogether(int depth) {
    for (int group = 0; isGroup(depth, group); ++group) {
        if (resolveGroup(depth, group)) return true;
    }
    return false;
}

// --- beside ------------------------------------------------------------------------------------

// e.g. (x+1)*3 and (x+1)3 -> (x+1)(+3); 3/4*(x+1) -> 3/4(x+1)
bool bringFactor(int depth, int group) {
    const ExprGroup& record = groupOf(depth, group);
    const std::string& before = ws.TokenBuffer[record.openIndex - 1];
    const std::string& after = ws.TokenBuffer[record.closeIndex + 1];
    const std::string& behindStar = ws.TokenBuffer[record.closeIndex + 2];
    const bool factorBehind = !after.empty() && (IsLetter(after) || IsNumeric(after.substr(0, 1)));
    if (record.isAbsolute || record.power != 1) return false;
    if (factorBehind || (after == "*" && behindStar != "(" && behindStar != "|")) {
        WrapFactorBehind(group);
        return true;
    }
    if (before != "*") return false;
    dropStarInFront(depth, group);
    return true;
}

void workBeside(int depth) {
    for (int group = 0; isGroup(depth, group); ++group) {
        if (bringFactor(depth, group)) return;
    }
}

// --- the rounds --------------------------------------------------------------------------------

void simplifySide() {
    ExpandIfPowers(0);
    if (ws.GroupProduct[0][0]) OrderPolynomial(0);
    ReduceExpression(0);
}

void expandRound(int depth) {
    if (depth == 0) {
        simplifySide();
    } else if (!workInside(depth) && !workTogether(depth)) {
        workBeside(depth);
    }
}

// --- prime factors -----------------------------------------------------------------------------

bool isSum() {
    for (int slot = 2; slot < ws.TokenLast; ++slot) {
        if (IsSign(ws.TokenBuffer[slot]) && ws.TokenBuffer[slot - 1] != "^") return true;
    }
    return false;
}

// The primes of all terms in order; a term of 1 has none. e.g. 12*5 -> 2, 2, 3, 5
std::vector<std::string> primesOfTerms() {
    std::vector<std::string> primes;
    for (int t = 1; t <= ws.TermLast[0][0]; ++t) {
        const std::string value = textOf(std::fabs(termOf(0, 0, t).numerator));
        if (value == "1") continue;
        for (std::string& prime : split(value == "0" ? value : PrimeFactorsText(value), '*')) {
            primes.push_back(std::move(prime));
        }
    }
    return primes;
}

// e.g. 5, 3, 3 -> "5^1*3^2"; zeros are not counted
std::string countedText(const std::vector<std::string>& primes) {
    std::vector<std::pair<std::string, int>> counts;
    for (const std::string& prime : primes) {
        if (prime == "0") continue;
        const auto known =
            std::find_if(counts.begin(), counts.end(), [&](const auto& entry) { return entry.first == prime; });
        if (known == counts.end()) {
            counts.emplace_back(prime, 1);
        } else {
            known->second += 1;
        }
    }
    std::vector<std::string> powers;
    powers.reserve(counts.size());
    for (const auto& [prime, count] : counts) powers.push_back(prime + "^" + textOf(count));
    return joined(powers, "*");
}

void commitText(const std::string& text, const std::string& note) {
    ExplodeTokens(text);
    ws.CurrentNote = note;
    CommitStep();
}

// --- evaluation --------------------------------------------------------------------------------

constexpr double valueLimit = 999999999;

// A number so small that a double would be written in the E form is written as a single is.
// e.g. 1E-16 -> "0.0000000000000001"
std::string answerText(double value) {
    const std::string text = textOf(value);
    return contains(text, "E-") ? textOf(static_cast<float>(value)) : text;
}

// Asks until the answer is a number below the limit.
std::string askValue(const std::string& name) {
    while (true) {
        const std::string answer = platform.dialogs->inputBox("Enter a value for " + name, name + " = ?");
        if (!IsNumeric(answer)) {
            platform.dialogs->messageBox("Please enter a number to replace for " + name, name + " = ?",
                                         MessageButtons::Ok);
        } else if (valueOf(answer) < valueLimit) {
            return answerText(valueOf(answer));
        }
    }
}

// The coefficient 1 of a letter is not written in front of its value; the 1 of an exponent stays.
// e.g. +1x^2-1x with x = 3 -> "+[(3)]^2-[(3)]", x^-1y with y = 3 -> "x^-1[(3)]"
std::string substituted(const std::string& text, const std::string& name, const std::string& value) {
    std::string put = replaced(text, name, "[(" + value + ")]");
    for (std::size_t one = put.find("1["); one != std::string::npos; one = put.find("1[", one + 1)) {
        const bool behindSign = one > 0 && IsSign(put.substr(one - 1, 1));
        if (behindSign && (one < 2 || put[one - 2] != '^')) put.erase(one, 1);
    }
    return put;
}

}  // namespace

void ExpandPolynomial() {
    ws.StepClass = 0;
    CommitStep({.silent = true});
    int rounds = 0;
    while (rounds < roundLimit) {
        const std::string before = ImplodeTokens();
        const int depth = ws.MaxDepth;
        expandRound(depth);
        if (ws.MaxDepth == depth && tokensSpell(before)) break;
        rounds = ws.MaxDepth == depth ? rounds + 1 : 0;
    }
    ReduceExpression(0);
}

void OrderLastLine() {
    // The line and not the store is looked at: the text may have been put in order without a step.
    if (ws.MaxDepth != 0 || tokensHold('*') || standsInOrder(ws.LastLine)) return;
    ws.CurrentNote = ws.LeadingTermHintShown[0] ? reorderNote : leadingTermHint;
    ExplodeTokens(OrderedPolynomialText(0));
    CommitStep({.reordered = true});
}

void ReduceFinalRadicals() {
    SimplifyRadicals();
    OrderPolynomial(0);
    SimplifyRadicals();
    const int terms = ws.TermLast[0][0];
    ReduceExpression(0);
    if (ws.TermLast[0][0] < terms) CommitStep();
}

void FindPrimeFactors() {
    isSum() ? ExpandPolynomial() : ExpandPowers(0);
    const std::vector<std::string> primes = primesOfTerms();
    const bool hasZero = std::find(primes.begin(), primes.end(), "0") != primes.end();
    commitText(primes.empty() ? "1" : joined(primes, "*"), "Find all the prime factors.");
    std::string counted = countedText(primes);
    if (hasZero) {
        counted = counted.empty() ? "+0" : "+0*" + counted;
    } else if (counted.empty()) {
        counted = "1";
    }
    commitText(counted,
               "Count the number of times each factor appears in the expression and raise the term to that power.");
}

void EvaluateProblem() {
    // One variable is worth simplifying first; a negative exponent would only become a fraction.
    if (ws.VarCount - 1 < 2 && !contains(ImplodeTokens(), "^-")) ExpandPolynomial();
    CommitStep();
    EvaluatePolynomial();
    ExpandPolynomial();
}

void EvaluatePolynomial() {
    ws.StepClass = 1;
    std::vector<std::string> values;
    for (int k = 1; k < ws.VarCount; ++k) values.push_back(askValue(ws.VarNames[k]));
    const int variables = static_cast<int>(values.size());
    std::string text = replaced(replaced(ImplodeTokens(), "[", ""), "]", "");
    for (int k = 1; k <= variables; ++k) {
        const std::string name = ws.VarNames[k];
        const std::string& value = values[static_cast<std::size_t>(k - 1)];
        text = substituted(text, name, value);
        commitText(text, "Replace all the [" + name + "]'s in the expression with " + value + " .");
    }
    ExplodeTokens(replaced(replaced(text, "[", ""), "]", ""));
}

}  // namespace ordwise
