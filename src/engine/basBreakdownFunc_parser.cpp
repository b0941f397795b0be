// One pass from left to right over the tokens of a side, with a handful of running values.
//
// Depth is a counter and the store is addressed by depth and group, so no tree is needed. What fits
// no case counts as a number, and a number that cannot be read is 0. In the comments R is the
// current term: side, depth and group of the parse, and the last term of that group.
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"

#include <algorithm>
#include <cmath>

namespace ordwise {
namespace {

float singleOf(const std::string& token) {
    return static_cast<float>(lenientValueOf(token));
}

class Parse {
public:
    // Depth 0 spans the whole side. The "=" closes the left side and opens the right one.
    Parse() {
        const int equals = FindEquals();
        ExprGroup& side = openRecord(0, 0);
        side.openIndex = ws.CurrentSide == 0 ? 0 : equals;
        side.closeIndex = ws.CurrentSide == 0 ? equals : static_cast<int>(ws.TokenLast);
        first_ = ws.CurrentSide == 0 ? 0 : equals + 1;
        last_ = ws.CurrentSide == 0 ? equals : ws.TokenLast + 1;
    }

    void run() {
        for (i_ = first_; i_ <= last_; ++i_) {
            const std::string& token = ws.TokenBuffer[i_];
            if (!token.empty()) read(token);
        }
    }

private:
    static const std::string& tokenAt(int slot) { return ws.TokenBuffer[std::max(slot, 0)]; }
    static Int16& termCount(int depth, int group) { return ws.TermLast[depth][group]; }
    static ExprGroup& group() { return ws.GroupTable[ws.CurrentDepth].slot(ws.CurrentGroup); }
    static ExprTerm& term() {
        const int depth = ws.CurrentDepth;
        const int index = termCount(depth, ws.CurrentGroup);
        return ws.TermTable[ws.CurrentSide].slot(depth).slot(ws.CurrentGroup).slot(index);
    }
    // A record is fresh when its slot is made; only one that was there before is emptied.
    template <class Row>
    static auto& freshRecord(Row& row, int index) {
        if (index < row.used()) row.clear(index, index);
        return row.slot(index);
    }
    static ExprTerm& freshTerm() {
        const int depth = ws.CurrentDepth;
        TermRow& row = ws.TermTable[ws.CurrentSide].slot(depth).slot(ws.CurrentGroup);
        return freshRecord(row, termCount(depth, ws.CurrentGroup));
    }
    static ExprGroup& openRecord(int depth, int index) {
        ExprGroup& record = freshRecord(ws.GroupTable[depth], index);
        record.closeIndex = record.powerIndex = ws.TokenLast;
        return record;
    }

    void read(const std::string& token) {
        if (IsLetter(token)) return letter(token);
        switch (token.size() == 1 ? token[0] : '0') {
            case '+':
            case '-':
            case '*': return openTerm(token);
            case '/': return bar();
            case '|': return absoluteBar();
            case '(': return openParenthesis();
            case ')': return closeGroup();
            case '^': return exponent();
            case '[':
            case ']':
            case '=': return;
            default: contains(token, "~") ? radical(token) : number(token);
        }
    }

    void absoluteBar() {
        barOpen_ ? closeGroup() : openBars();
        barOpen_ = !barOpen_;
    }

    // e.g. the y of -xy: varName 2 is y, numText grows to "xy"; the x of 3/x: denText "x"
    void letter(const std::string& token) {
        ExprTerm& R = term();
        if (R.numerator == 1.0F) R.numerator *= sign_;
        R.varExp[slot_] = 1.0F;
        if (slot_ > 1) R.varExp[slot_ - 1] = pendingExp_;
        R.varName[slot_] = token[0];
        R.nextVar += 1;
        R.termText += token;
        letters_ += token;
        if (!IsFractionToken(tokenAt(i_ - 1)) && !R.inDenominator) {
            R.numText = letters_;
        } else {
            R.denText = letters_;
            R.inDenominator = true;
        }
        slot_ = R.nextVar;
    }

    // e.g. the "-" of 2-x. The slot may hold the factor of a group that was taken out of the count.
    void openTerm(const std::string& token) {
        number_ = 1.0F;
        sign_ = token == "-" ? -1.0F : 1.0F;
        pendingExp_ = 1.0F;
        slot_ = 1;
        letters_.clear();
        termCount(ws.CurrentDepth, ws.CurrentGroup) += 1;
        freshTerm().lead = token;
        if (isMark(token, '*')) ws.GroupProduct[ws.CurrentDepth][ws.CurrentGroup] = true;
    }

    // e.g. x/2: what follows belongs under the bar of this term. (x+1)/2: the bar of the group.
    void bar() {
        ExprTerm& R = term();
        R.termText += "/";
        if (group().power <= 1.0F && !isMark(tokenAt(i_ - 1), ')')) {
            R.numText = letters_;
            R.hasFractionBar = true;
        } else {
            ws.GroupTable[ws.CurrentDepth + 1].slot(ws.CurrentGroup).hasFractionBar = true;
        }
        if (!isMark(tokenAt(i_ + 1), '(')) {
            R.inDenominator = true;
        } else {
            group().inDenominator = true;
        }
        sign_ = 1.0F;
        slot_ = 1;
        letters_.clear();
    }

    // A new group of the next depth: the last one there if it is still without terms. Leaves the
    // group that it stands in.
    int enterGroup() {
        const int outer = ws.CurrentGroup;
        ws.CurrentDepth += 1;
        GroupLevel& level = ws.GroupTable[ws.CurrentDepth];
        if (termCount(ws.CurrentDepth, level.lastGroup) > 0) level.lastGroup += 1;
        ws.CurrentGroup = level.lastGroup;
        ws.MaxDepth = std::max<int>(ws.MaxDepth, ws.CurrentDepth);
        openRecord(ws.CurrentDepth, ws.CurrentGroup).openIndex = i_;
        return outer;
    }

    void openBars() {
        const float coefficient = std::fabs(number_);
        const int outer = enterGroup();
        group().isAbsolute = true;
        group().prefixStart = factorStart();
        group().prefixCoef = coefficient;
        if (!IsOperator(tokenAt(i_ - 1))) termCount(ws.CurrentDepth - 1, outer) -= 1;
        startInside();
    }

    // e.g. the "(" of -3x/2(x+1): the term -3x/2 is the factor in front and leaves the outer group.
    void openParenthesis() {
        const std::string& previous = tokenAt(i_ - 1);
        const bool behindGroup = isMark(previous, ')');
        const ExprTerm factor = behindGroup ? ExprTerm() : term();
        const int outer = enterGroup();
        ExprGroup& opened = group();
        opened.prefixStart = factorStart();
        if (behindGroup) {
            // (a)(b): no factor between the two
            ws.GroupTable[ws.CurrentDepth].slot(std::max(ws.CurrentGroup - 1, 0)).nextGroup = ws.CurrentGroup;
        } else {
            const float size = number_ == 0.0F ? 1.0F : std::fabs(number_);
            opened.prefixCoef = isMark(tokenAt(opened.prefixStart), '-') ? -size : size;
            opened.prefixText = factor.numText;
            opened.prefixNumerator = factor.numerator;
            opened.prefixDenText = factor.denText;
            opened.prefixDenominator = factor.denominator;
            opened.prefixExp = pendingExp_;
            const bool factorLeaves =
                !isMark(previous, '[') && !IsOperator(previous) && !holdsGroup(opened.prefixStart, i_);
            if (factorLeaves) termCount(ws.CurrentDepth - 1, outer) -= 1;
        }
        startInside();
    }

    void startInside() {
        number_ = 1.0F;
        sign_ = 1.0F;
        pendingExp_ = 1.0F;
        letters_.clear();
    }

    // The slot of the sign or "*" that opens the factor in front of the group just opened. A group
    // that is part of the factor is stepped over. e.g. 2 for the "(" of +5-x^-2(y)
    int factorStart() const {
        int level = 0;
        for (int slot = i_ - 1; slot > 0; --slot) {
            const std::string& token = tokenAt(slot);
            if (isMark(token, ')')) ++level;
            if (isMark(token, '(') && --level < 0) return slot;
            const bool opensTerm = isMark(token, '*') || (IsSign(token) && !isMark(tokenAt(slot - 1), '^'));
            if (level == 0 && opensTerm) return slot;
        }
        return 0;
    }

    // The term left with a group before. e.g. between the "-" and the second "(" of -5(2)^3(6)
    static bool holdsGroup(int from, int to) {
        for (int slot = from; slot < to; ++slot) {
            if (isMark(tokenAt(slot), ')')) return true;
        }
        return false;
    }

    void closeGroup() {
        group().closeIndex = i_;
        ws.CurrentDepth -= 1;
        number_ = 1.0F;
        ws.CurrentGroup = ws.GroupTable[ws.CurrentDepth].lastGroup;
    }

    // e.g. x^2 and 2^3: of the term; (x+1)^2: of the group that has just closed
    void exponent() {
        const int base = i_ - 1;
        const bool negative = isMark(tokenAt(i_ + 1), '-');
        if (negative) ++i_;
        if (negative || IsNumeric(tokenAt(i_ + 1))) pendingExp_ = (negative ? -1.0F : 1.0F) * singleOf(tokenAt(i_ + 1));
        ++i_;
        if (isMark(tokenAt(base), ')') || (isMark(tokenAt(base), '|') && !negative)) {
            GroupLevel& level = ws.GroupTable[ws.CurrentDepth + 1];
            ExprGroup& closed = level.slot(level.lastGroup);
            closed.power = pendingExp_;
            closed.powerIndex = i_ + 1;
            return;
        }
        ExprTerm& R = term();
        R.varExp[slot_] = pendingExp_;
        const std::string written = "^" + textOf(pendingExp_);
        R.termText += written;
        (R.inDenominator ? R.denText : R.numText) += written;
        letters_ += written;
    }

    // e.g. 3~5: numerator 3, numText "~5"
    void radical(const std::string& token) {
        ExprTerm& R = term();
        const std::size_t root = token.find('~');
        number_ = root == 0 ? 1.0F : singleOf(token.substr(0, root));
        R.numerator = std::fabs(number_) * std::fabs(R.numerator) * sign_;
        R.varExp[slot_] = pendingExp_;
        R.numText = token.substr(root);
        letters_ += token.substr(root);
        ws.RadicalSeen = 1;
    }

    void number(const std::string& token) {
        ExprTerm& R = term();
        if (R.inDenominator) {
            R.denominator = singleOf(FractionToDecimal(token, false));
            number_ = quotient(number_, R.denominator);
            if (!IsLetter(tokenAt(i_ + 1))) R.inDenominator = R.hasFractionBar = false;
            if (IsFractionToken(token)) R.fractionText = token;
        } else if (IsFractionToken(token)) {
            const std::size_t line = token.find('/');
            R.numerator = singleOf(token.substr(0, line)) * sign_;
            R.denominator = singleOf(token.substr(line + 1));
            R.fractionText = token;
            R.varExp[slot_] = pendingExp_;
            number_ = quotient(std::fabs(R.numerator), R.denominator);
        } else {
            number_ = singleOf(ExpandExponential(token));
            R.numerator = std::fabs(number_) * sign_;
            R.numText = letters_;
            R.varExp[slot_] = pendingExp_;
        }
        if (R.denominator != 1.0F) R.quotient = quotient(R.numerator, R.denominator);
    }

    static float quotient(float above, float below) {
        return static_cast<float>(divided(static_cast<double>(above), static_cast<double>(below)));
    }

    int first_ = 0;
    int last_ = 0;
    int i_ = 0;                // the token being read
    int slot_ = 1;             // of varName and varExp in R
    float sign_ = 1.0F;        // of the current term
    float number_ = 0.0F;      // read last for this term; 0 before any
    float pendingExp_ = 0.0F;  // the exponent read last
    std::string letters_;      // letter part since the term's start or its bar
    bool barOpen_ = false;     // only one pair of bars can be open
};

// One side for the graph. e.g. 2x-1 -> "+2/1x-1/1"; exponents get a sign
std::string signedFractions() {
    std::string text;
    for (int t = 1; t <= ws.TermLast[0][0]; ++t) {
        const ExprTerm& term = termOf(0, 0, t);
        const std::string value = textOf(std::fabs(term.numerator)) + "/" + textOf(std::fabs(term.denominator));
        text += replaced((term.numerator < 0 ? "-" : "+") + value + term.numText, "^", "^+");
    }
    return text;
}

}  // namespace

void ParseExpression() {
    CollectVariables();
    NormaliseSigns();
    TrimTokenLast();
    if (ws.StoreSource.is(ws.TokenBuffer, ws.TokenLast, ws.CurrentSide)) return;
    ResetStore(false);
    Parse().run();
    if (!isPastTheTables()) ws.StoreSource.remember(ws.TokenBuffer, ws.TokenLast, ws.CurrentSide);
}

std::string EquationText() {
    ws.CurrentSide = 0;
    CommitStep({.silent = true});
    std::string text = signedFractions();
    ws.CurrentSide = 1;
    CommitStep({.silent = true});
    return text + "=" + signedFractions();
}

}  // namespace ordwise
