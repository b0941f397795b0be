// Fraction arithmetic: multiply and divide fractions, add those of one denominator, and bring the
// others to the least common denominator, one explained step a move.
//
// The ground is the tokens of the group, where a fraction is one token "a/b"; a whole number counts
// as a/1. A group's text has its opening and closing tokens in front of and behind it.
#include "BoundedArray.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace ordwise {
namespace {

constexpr int fractionArithmeticTopic = 76;
constexpr int combineRounds = 20;
constexpr int lastListed = 20;

const std::string zeroNote = "0 divided by any number equals 0.";
const std::string reduceNote = "Reduce fractions.";
const std::string simplifyNote = "Simplify the fraction.";

// --- the group's tokens and terms

const ExprGroup& record(int group) {
    return groupOf(ws.MaxDepth, group);
}
int termCount(int group) {
    return ws.TermLast[ws.MaxDepth][group];
}
const ExprTerm& termAt(int group, int index) {
    return termOf(ws.MaxDepth, group, index);
}

int fractionCount(int group) {
    int count = 0;
    for (int i = record(group).openIndex + 1; i < record(group).closeIndex; ++i)
        count += contains(ws.TokenBuffer[i], "/") ? 1 : 0;
    return count;
}

// The slot of the first "*" or "/" between two factors, 0 if the group is a sum.
int firstProduct(int group) {
    for (int i = record(group).openIndex + 1; i < record(group).closeIndex; ++i) {
        if (ws.TokenBuffer[i] == "*" || ws.TokenBuffer[i] == "/") return i;
    }
    return 0;
}

// What stands around a group's terms, kept for the steps that put a parenthesis inside it.
struct Frame {
    std::string front;
    std::string back;

    explicit Frame(int group) : front(textBefore(record(group))), back(textFrom(record(group))) {}

    // The group's terms replaced, as a step. No terms at all are a 0.
    void commit(const std::string& terms, const std::string& note) const {
        ws.CurrentNote = note;
        ExplodeTokens(front + (terms.empty() ? "+0" : terms) + back);
        CommitStep();
    }
};

void commitTerms(int group, const std::string& terms, const std::string& note) {
    Frame(group).commit(terms, note);
}

// Numerator and denominator of a token. e.g. "3/4" -> 3, 4; "5" -> 5, 1
std::pair<double, double> partsOf(const std::string& token) {
    const std::size_t bar = token.find('/');
    const double below = bar == std::string::npos ? 1.0 : lenientValueOf(token.substr(bar + 1));
    return {lenientValueOf(token.substr(0, bar)), below};
}

std::string fraction(double above, double below) {
    return textOf(inRange(above)) + "/" + textOf(inRange(below));
}

// The number of a term as it stands, without its sign. e.g. "3/4", "5"
std::string numberOf(const ExprTerm& term) {
    if (!term.fractionText.empty()) return term.fractionText;
    const std::string above = textOf(std::fabs(term.numerator));
    return term.denominator == 1.0F ? above : above + "/" + textOf(term.denominator);
}

std::string reducedText(const ExprTerm& term) {
    const auto [above, below] = partsOf(numberOf(term));
    return CommonFactorText(above, below);
}

std::string signedText(double value) {
    return (value < 0 ? "-" : "+") + textOf(std::fabs(value));
}

// --- fractions of one denominator

// e.g. 3/4 and -1/4: "Since #3/4# and #1/4# have common denominators, combine to form #2/4#."
std::string combinedNote(const ExprTerm& a, const ExprTerm& b, int sum) {
    const float denominator = a.denominator;
    if (denominator == 1.0F)
        return "Combine " + textOf(a.numerator) + " and " + textOf(b.numerator) + " to form the new term (" +
               textOf(sum) + ").";
    const std::string result = sum == 0 ? "0" : "#" + textOf(sum) + "/" + textOf(denominator) + "#";
    return "Since #" + numberOf(a) + "# and #" + numberOf(b) + "# have common denominators, combine to form " + result +
           ".";
}

double sumOf(const ExprTerm& a, const ExprTerm& b) {
    return static_cast<double>(a.numerator) + static_cast<double>(b.numerator);
}

// The sum of two fractions is a 16-bit number; a larger one is left to the common denominator, whose
// total is wider. e.g. not 95761/100 and 26671/100
bool fitsCounter(double sum) {
    return sum >= std::numeric_limits<std::int16_t>::min() && sum <= std::numeric_limits<std::int16_t>::max();
}

// The first two terms of one denominator that are no factors and whose sum fits; 0, 0 if there are none.
std::pair<int, int> alikePair(int group) {
    for (int i = 1; i <= termCount(group); ++i) {
        for (int j = i + 1; j <= termCount(group); ++j) {
            const ExprTerm& a = termAt(group, i);
            const ExprTerm& b = termAt(group, j);
            const bool alike = a.denominator == b.denominator && a.lead != "*" && b.lead != "*";
            if (alike && fitsCounter(sumOf(a, b))) return {i, j};
        }
    }
    return {0, 0};
}

// The sum of the pair goes to the front. False if there is no pair. e.g. 1/2+3/4-1/4 -> 2/4+1/2
bool combineOnePair(int group) {
    const auto [i, j] = alikePair(group);
    if (i == 0) return false;
    const ExprTerm& a = termAt(group, i);
    const ExprTerm& b = termAt(group, j);
    const int sum = longOf(sumOf(a, b));
    std::string terms;
    if (sum != 0) terms = signedText(sum) + (a.denominator == 1.0F ? "" : "/" + textOf(a.denominator));
    for (int t = 1; t <= termCount(group); ++t) {
        if (t != i && t != j) terms += termAt(group, t).lead + numberOf(termAt(group, t));
    }
    commitTerms(group, terms, combinedNote(a, b, sum));
    return true;
}

bool isReducible(const ExprTerm& term) {
    return reducedText(term) != numberOf(term);
}

// Every term in lowest terms, in one step; a 0 among other terms goes. e.g. 2/4+6/3 -> 1/2+2
void reduceTerms(int group) {
    std::string terms;
    bool reduced = false;
    bool dropped = false;
    for (int t = 1; t <= termCount(group); ++t) {
        const ExprTerm& term = termAt(group, t);
        if (reducedText(term) == "0") {
            dropped = dropped || isReducible(term) || termCount(group) > 1;
        } else {
            reduced = reduced || isReducible(term);
            terms += term.lead + reducedText(term);
        }
    }
    if (reduced || dropped) commitTerms(group, terms, reduced ? reduceNote : zeroNote);
}

// --- the least common denominator

// Sign, numerator and denominator of each fraction of a sum. e.g. 1/2-3 -> + 1 2, - 3 1
struct FractionList {
    BoundedArray<std::string, lastListed> opList;
    BoundedArray<std::string, lastListed> numList;
    BoundedArray<std::string, lastListed> denList;
    int count = 0;

    explicit FractionList(int group) {
        for (int t = 1; t <= termCount(group); ++t) {
            const ExprTerm& term = termAt(group, t);
            const auto [above, below] = partsOf(numberOf(term));
            opList[count] = term.lead;
            numList[count] = textOf(above);
            denList[count] = textOf(below);
            ++count;
        }
    }

    [[nodiscard]] std::string denominators() const {
        std::string text;
        for (int k = 0; k < count; ++k) text += (k == 0 ? "" : ",") + denList[k];
        return text;
    }
    // The sign of the first fraction is not written when it is a plus.
    [[nodiscard]] std::string sign(int k) const { return k == 0 && opList[k] == "+" ? "" : opList[k]; }
};

class CommonDenominatorMethod {
public:
    explicit CommonDenominatorMethod(int group)
        : frame_(group), list_(group), common_(LeastCommonMultipleText(list_.denominators())) {}

    void run() {
        ws.StepClass = 3;
        if (!alreadyCommon()) {
            expand();
            multiplyOut();
        }
        placeOverCommon();
        addNumerators();
        simplify();
    }

private:
    [[nodiscard]] std::string multiplier(int k) const {
        return textOf(longOf(divided(valueOf(common_), valueOf(list_.denList[k]))));
    }
    [[nodiscard]] std::string numerator(int k) const {
        return textOf(longOf(valueOf(list_.numList[k]) * valueOf(multiplier(k))));
    }

    // Fractions that were too large to be combined in pairs have their common denominator.
    [[nodiscard]] bool alreadyCommon() const {
        for (int k = 0; k < list_.count; ++k) {
            if (list_.denList[k] != common_) return false;
        }
        return true;
    }

    // e.g. 1/2+1/3 -> [1/2]*3/3+[1/3]*2/2
    void expand() const {
        std::string terms;
        for (int k = 0; k < list_.count; ++k) {
            const std::string m = multiplier(k);
            terms += list_.sign(k) + "[" + list_.numList[k] + "/" + list_.denList[k] + "]*" + m + "/" + m;
        }
        frame_.commit(terms,
                      "Find the least common denominator of all the fractions (" + list_.denominators() +
                          "), then multiply all of the fractions by a number over itself (which will be equivalent to "
                          "multiplying the fraction by 1 and will not affect the value of the fraction) that will "
                          "produce the common denominator (" +
                          common_ + ") in all the fractions.");
    }

    // e.g. 3/6+2/6, with the last fraction as the example
    void multiplyOut() const {
        std::string terms;
        for (int k = 0; k < list_.count; ++k) terms += list_.opList[k] + numerator(k) + "/" + common_;
        const int k = list_.count - 1;
        frame_.commit(terms,
                      "Multiply to form the fractions that all have the same denominator. Remember that we haven't "
                      "changed the value of the fractions, we've changed their form (ex. #" +
                          list_.numList[k] + "/" + list_.denList[k] + "#=#" + numerator(k) + "/" + common_ + "#).");
    }

    // e.g. (3+2)/6
    void placeOverCommon() const {
        std::string terms;
        for (int k = 0; k < list_.count; ++k) terms += list_.sign(k) + numerator(k);
        frame_.commit("(" + terms + ")/" + common_,
                      "Combine the numerators of each fraction and place over the common denominator.");
    }

    // e.g. 5/6
    void addNumerators() {
        double total = 0;
        for (int k = 0; k < list_.count; ++k) total += (list_.opList[k] == "-" ? -1 : 1) * valueOf(numerator(k));
        total_ = longOf(total);
        ws.StepClass = 1;
        frame_.commit(signedText(total_) + "/" + common_, "Combine all the terms in the numerator using arithmetic.");
    }

    // e.g. 4/6 -> 2/3, 0/6 -> 0
    void simplify() const {
        const std::string reduced = CommonFactorText(std::fabs(total_), valueOf(common_));
        if (reduced == textOf(std::fabs(total_)) + "/" + common_) return;
        frame_.commit((total_ < 0 ? "-" : "+") + reduced, total_ == 0 ? zeroNote : simplifyNote);
    }

    Frame frame_;
    FractionList list_;
    std::string common_;
    double total_ = 0;
};

// --- products

// The three tokens around a product sign become one fraction or the product with the reciprocal.
// e.g. 1/2*3/4 -> 3/8; 1/2 / 3/4 -> 1/2*4/3
void multiplyOrFlip(int group, int place) {
    const auto [leftAbove, leftBelow] = partsOf(ws.TokenBuffer[place - 1]);
    const auto [rightAbove, rightBelow] = partsOf(ws.TokenBuffer[place + 1]);
    const bool product = ws.TokenBuffer[place] == "*";
    const std::string result = product ? fraction(leftAbove * rightAbove, leftBelow * rightBelow)
                                       : fraction(leftAbove, leftBelow) + "*" + fraction(rightBelow, rightAbove);
    const std::string terms = tokensText(record(group).openIndex + 1, place - 2) + result +
                              tokensText(place + 2, record(group).closeIndex - 1);
    commitTerms(group, terms,
                product ? "Multiply the numerators and denominators to form the new fraction."
                        : "To divide two fractions, flip the numerator and denominator of one of the fractions, then "
                          "multiply the fractions.");
}

// A sum of fractions and whole numbers, as far as it goes without another denominator.
void prepareSum(int group) {
    CombineLikeDenominators(group);
    if (fractionCount(group) < termCount(group) - 1 && ws.ProblemType == fractionArithmeticTopic)
        ReduceExpression(group);
    reduceTerms(group);
}

// Products and quotients from left to right, until the group is a sum or a single number.
void workProducts(int group) {
    for (int place = firstProduct(group); place != 0; place = firstProduct(group)) multiplyOrFlip(group, place);
    if (termCount(group) == 1) {
        const ExprTerm& term = termAt(group, 1);
        commitTerms(group, term.lead + reducedText(term), simplifyNote);
    }
}

}  // namespace

void FractionArithmetic(int group) {
    if (firstProduct(group) == 0) prepareSum(group);
    if (ws.UseFractions && fractionCount(group) > 0) {
        ws.StepClass = 3;
        workProducts(group);
        // Reducing may make denominators alike that were not. e.g. 2/4+1/2 -> 1/2+1/2
        do {
            CombineLikeDenominators(group);
        } while (fractionCount(group) > 0 && alikePair(group).first != 0);
    }
    if (termCount(group) < 2) return;
    if (ws.UseFractions && fractionCount(group) > 0) {
        CombineByCommonDenominator(group);
    } else {
        ReduceExpression(group);
    }
}

void CombineLikeDenominators(int group) {
    for (int round = 0; round < combineRounds && combineOnePair(group); ++round) {
    }
    bool reducible = false;
    for (int t = 1; t <= termCount(group); ++t) reducible = reducible || isReducible(termAt(group, t));
    if (reducible) reduceTerms(group);
}

void CombineByCommonDenominator(int group) {
    CommonDenominatorMethod(group).run();
}

}  // namespace ordwise
