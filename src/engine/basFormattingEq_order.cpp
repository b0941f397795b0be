// Working out products and bringing factors together.
//
// A product is read from the tokens: the left factor reaches back to a sign, a star or an opening
// token, the right one forward to the next of them. A sign behind "^" belongs to the exponent, and
// a sign straight behind the star to its factor. Each product is one visible step.
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace ordwise {
namespace {

const std::string& token(int slot) {
    return ws.TokenBuffer[slot];
}

bool isSignAt(int slot) {
    return IsSign(token(slot)) && token(slot - 1) != "^";
}

// Ends a factor on either side.
bool endsFactor(int slot) {
    const std::string& t = token(slot);
    return isSignAt(slot) || t.empty() || t == "*" || t == "(" || t == ")" || t == "|" || t == "=";
}

// The slots of the two factors around a star.
struct Pair {
    int leftFirst;
    int star;
    int rightLast;
};

// The first star between two slots whose factors are no groups.
std::optional<Pair> firstPair(int first, int last) {
    for (int star = first; star <= last; ++star) {
        if (token(star) != "*") continue;
        int leftFirst = star;
        while (leftFirst > first && !endsFactor(leftFirst - 1)) --leftFirst;
        int rightLast = star + (IsSign(token(star + 1)) ? 1 : 0);
        while (rightLast < last && !endsFactor(rightLast + 1)) ++rightLast;
        if (leftFirst == star || rightLast == star) return std::nullopt;
        return Pair{leftFirst, star, rightLast};
    }
    return std::nullopt;
}

void readNumber(const std::string& t, bool below, Monomial& factor) {
    const std::size_t root = t.find('~');
    if (root != std::string::npos) {
        if (root > 0) factor.numerator *= static_cast<float>(lenientValueOf(t.substr(0, root)));
        factor.numText += t.substr(root);
        return;
    }
    const std::vector<std::string> pieces = split(t, '/');
    const auto value = [](const std::string& piece) {
        return static_cast<float>(lenientValueOf(ExpandExponential(piece)));
    };
    (below ? factor.denominator : factor.numerator) *= value(pieces[0]);
    if (pieces.size() > 1) factor.denominator *= value(pieces[1]);
}

// e.g. tokens -, 3, x, ^, 2, /, 4 -> -3, "x^2", 4
Monomial readFactor(int first, int last) {
    Monomial factor;
    bool below = false;
    for (int slot = first; slot <= last; ++slot) {
        const std::string& t = token(slot);
        if (t == "-" && slot == first) factor.numerator = -1;
        if (t == "/") below = true;
        if (IsSign(t) || t == "/" || t == "[" || t == "]" || t.empty()) continue;
        std::string& letters = below ? factor.denText : factor.numText;
        if (t == "^") {
            const bool negative = token(slot + 1) == "-";
            slot += negative ? 2 : 1;
            // An exponent may have been left out.
            if (slot <= last) letters += (negative ? "^-" : "^") + token(slot);
        } else if (IsLetter(t)) {
            letters += t;
        } else {
            readNumber(t, below, factor);
        }
    }
    return factor;
}

// The text with the product in the place of its factors. A star in front of the left factor stays.
// e.g. 2-3*4 -> "+2-12"
std::string multipliedText(const Pair& pair) {
    const Monomial left = readFactor(pair.leftFirst, pair.star - 1);
    Monomial result = product(left, readFactor(pair.star + 1, pair.rightLast));
    const int before = pair.leftFirst - 1;
    const std::string rest = tokensText(pair.rightLast + 1, ws.TokenLast);
    if (!isSignAt(before)) return tokensText(0, before) + plainText(result) + rest;
    if (token(before) == "-") result.numerator = -result.numerator;
    return tokensText(0, before - 1) + signedText(result) + rest;
}

// The first product between two slots worked out, its factors as "a,b"; "" if there is none.
std::string multiplyBetween(int first, int last) {
    ws.StepClass = 1;
    const std::optional<Pair> pair = firstPair(first, last);
    if (!pair) return "";
    std::string factors =
        tokensText(pair->leftFirst, pair->star - 1) + "," + tokensText(pair->star + 1, pair->rightLast);
    ExplodeTokens(multipliedText(*pair));
    return factors;
}

// e.g. "3,4" -> "Multiply 3 by 4 using the order of operations."
std::string productNote(const std::string& pair) {
    const std::vector<std::string> factors = split(pair, ',');
    if (contains(factors[0], "~") && contains(factors[1], "~")) return rootProductNote;
    return "Multiply " + markupOf(factors[0]) + " by " + markupOf(factors[1]) + " using the order of operations.";
}

// A number with an exponent is written out before it is multiplied. e.g. 2^3*4
bool firstPairHoldsPower(int group) {
    const ExprGroup& record = groupOf(ws.MaxDepth, group);
    const std::optional<Pair> pair = firstPair(record.openIndex + 1, record.closeIndex - 1);
    if (!pair) return false;
    const Monomial left = readFactor(pair->leftFirst, pair->star - 1);
    const Monomial right = readFactor(pair->star + 1, pair->rightLast);
    return numberPowerOf(left.numText).exponent != 1 || numberPowerOf(right.numText).exponent != 1;
}

}  // namespace

std::string ProductPair(int depth, int group) {
    const ExprGroup& record = groupOf(depth, group);
    return multiplyBetween(record.openIndex + 1, record.closeIndex - 1);
}

bool multiplyFirstPair(int first, int last) {
    const std::string pair = multiplyBetween(first, last);
    if (pair.empty()) return false;
    ws.CurrentNote = productNote(pair);
    CommitStep();
    return true;
}

void OrderPolynomial(int group) {
    const int depth = ws.MaxDepth;
    while (ws.MaxDepth == depth && group <= ws.GroupTable[depth].lastGroup && ws.GroupProduct[depth][group]) {
        if (firstPairHoldsPower(group)) {
            ExpandIfPowers(group);
            return;
        }
        const std::string pair = ProductPair(depth, group);
        if (pair.empty()) return;
        ws.CurrentNote = productNote(pair);
        CommitStep();
    }
}

std::string outlineOf(const std::string& line) {
    std::string outline;
    const std::vector<std::string> pieces = split(line, '^');
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        // Every other piece is an exponent; one that was left out is none.
        if (i % 2 == 1) {
            if (pieces[i] != "?") outline += "^" + pieces[i] + "^";
            continue;
        }
        char before = 0;
        for (const char c : pieces[i]) {
            const bool sign = (c == '+' || c == '-') && before != 'E';
            const bool begins = c != '=' && (outline.empty() || outline.back() == '=');
            if (sign || begins) outline += '+';
            if ((c >= 'a' && c <= 'z') || c == '/' || c == '=') outline += c;
            before = c;
        }
    }
    return outline;
}

bool standsInOrder(const std::string& line) {
    const std::string outline = outlineOf(line);
    double last = std::numeric_limits<double>::max();
    for (const std::string& term : split(outline.substr(std::min<std::size_t>(outline.size(), 1)), '+')) {
        const std::string above = term.substr(0, term.find('/'));
        const std::size_t caret = above.find('^');
        const double exponent = caret == std::string::npos ? 1.0 : lenientValueOf(above.substr(caret + 1));
        const double degree = above.empty() || above[0] == '^' ? 0.0 : std::max(0.0, exponent);
        if (degree > last) return false;
        last = degree;
    }
    return true;
}

void WrapFactorBehind(int group) {
    const int c = groupOf(ws.MaxDepth, group).closeIndex;
    const int first = token(c + 1) == "*" ? c + 2 : c + 1;
    int end = first;
    while (!endsFactor(end)) ++end;
    ExplodeTokens(tokensText(0, c) + "(+" + tokensText(first, end - 1) + ")" + tokensText(end, ws.TokenLast));
    ws.CurrentNote = reorderNote;
    CommitStep();
}

}  // namespace ordwise
