// The pass from cells to markup.
//
// It walks the cells once and writes each behind the last, keeping at most one exponent, one root
// and one fraction open. A bar "/" learns only at itself where its numerator began; therefore the
// walk remembers for each level of parentheses the slot at which the current term began, and puts
// the opening "#" into the gap behind it.
#include "CanonicalRewrite.hpp"
#include "NumberText.hpp"
#include "SolveReadiness.hpp"
#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace ordwise {

namespace {

// Cells from slot 1 on to every fourth slot of CanonIn; their number.
int spreadCells() {
    ws.CanonIn.clear();
    int cells = 0;
    const int end = std::min<int>(ws.CanonLast + 1, ws.CanonTokens.used() - 1);
    for (int i = 0; i <= end; ++i) {
        if (ws.CanonTokens[i].empty()) continue;
        ++cells;
        ws.CanonIn.slot(4 * cells) = ws.CanonTokens[i];
    }
    return cells;
}

// In Fraction Arithmetic a bar between two fractions is their division. Not so in a text of the
// engine with parentheses, where a bar divides what is in them.
bool dividesFractions() {
    if (ws.ProblemType != 76) return false;
    for (int i = 0; ws.LineWorked && i < ws.InputLast; ++i) {
        if (ws.InputTokens[i] == ")") return false;
    }
    for (int i = 0; i < ws.TokenBuffer.used(); ++i) {
        if (contains(ws.TokenBuffer[i], ")")) return false;
    }
    return true;
}

class Walk {
public:
    explicit Walk(int cells) : cells_(cells) {}

    RewriteFacts run();

private:
    void cell();
    void exponentMark();
    void fractionCell();
    void signOrEquals();
    void rootSign();
    void openParenthesis();
    void closeParenthesis();
    void bar();
    void barBetweenFractions();
    void star();
    void highlight();
    void absoluteBar();
    void plain();

    void write(std::string_view text);
    void copy() { write(*c_); }
    void mark(int gap, std::string_view text) { ws.CanonOut.slot(w() - 4 + gap) = text; }
    void beginTerm(int slot) { ws.CanonGroupStart[place(level_)] = slot; }

    void closeExponent();
    void closeRoot();
    void closeFraction();
    void closeProduct();
    void closeAll();

    [[nodiscard]] static int w() { return ws.CanonWrite; }
    [[nodiscard]] bool fractionEnds() const { return ws.CanonFractionOpen && level_ == fracLevel_; }
    [[nodiscard]] bool rootEnds() const { return rootOpen_ && level_ == rootLevel_; }
    // Points may close more parentheses than they open, and a parenthesis typed into a denominator
    // is never taken off the level; neither may end outside of the table.
    [[nodiscard]] static int place(int level) { return std::clamp(level, 0, lastLevel); }

    int cells_;                       // their number
    int i_ = 4;                       // the cell being read, in CanonIn
    const std::string* c_ = nullptr;  // it
    const std::string* p_ = nullptr;  // the one before
    const std::string* n_ = nullptr;  // the one after
    int level_ = 0;                   // of parentheses
    bool expOpen_ = false;
    bool rootOpen_ = false;
    int rootLevel_ = 0;
    int fracLevel_ = 0;
    bool fractionInsideRoot_ = false;                     // otherwise a root that is open stands inside the fraction
    std::array<bool, lastLevel + 1> openedInFraction_{};  // by level
    bool fractionDivision_ = dividesFractions();
    int commas_ = 0;
};

void Walk::write(std::string_view text) {
    if (text.empty()) return;
    ws.CanonOut.slot(w()) = text;
    ws.CanonWrite = w() + 4;
}

void Walk::closeExponent() {
    if (!expOpen_) return;
    mark(1, "^");
    expOpen_ = false;
}

// The inner one of root and fraction takes the second gap slot, the outer one the third.
void Walk::closeRoot() {
    if (!rootOpen_) return;
    mark(ws.CanonFractionOpen && !fractionInsideRoot_ ? 2 : 3, "~");
    rootOpen_ = false;
}

void Walk::closeFraction() {
    if (!ws.CanonFractionOpen) return;
    mark(fractionInsideRoot_ ? 2 : 3, "#");
    ws.CanonFractionOpen = false;
    ws.CanonFractionStart = 0;
}

// What a "*" or a bar ends: everything but the fraction around its parenthesis.
void Walk::closeProduct() {
    closeExponent();
    closeRoot();
    if (fractionEnds()) closeFraction();
}

void Walk::exponentMark() {
    write("^");
    expOpen_ = true;
}

// A numeric fraction, e.g. "3/4". Letters behind it stand in its denominator.
void Walk::fractionCell() {
    if (ws.CanonFractionOpen) {
        copy();
        return;
    }
    mark(2, "#");
    copy();
    if (IsLetter(*n_)) {
        bool raised = false;
        for (; !n_->empty() && !IsOperator(*n_); n_ = &ws.CanonIn[i_ + 4]) {
            raised = raised || isMark(*n_, '^');
            write(*n_);
            i_ += 4;
        }
        if (raised) mark(1, "^");
    }
    mark(2, "#");
}

// Straight behind the mark a sign belongs to the exponent. e.g. x^-2 -> x^-2^
void Walk::signOrEquals() {
    if (expOpen_ && isMark(*p_, '^')) {
        copy();
        return;
    }
    closeExponent();
    if (rootEnds()) closeRoot();
    if (fractionEnds()) closeFraction();
    beginTerm(w());
    copy();
}

void Walk::rootSign() {
    closeExponent();
    rootOpen_ = true;
    rootLevel_ = level_;
    beginTerm(w());
    copy();
}

void Walk::openParenthesis() {
    const bool directlyUnderBar = isMark(ws.CanonOut[w() - 4], '/');
    closeExponent();
    if (!isMark(*p_, '~')) closeRoot();
    if (!directlyUnderBar && fractionEnds()) closeFraction();
    level_ += 1;
    beginTerm(w());
    openedInFraction_[static_cast<std::size_t>(place(level_))] = ws.CanonFractionOpen;
    copy();
}

// A parenthesis that was opened under a bar ends the fraction behind itself, and keeps its level;
// one with a whole fraction in it ends the fraction before itself.
void Walk::closeParenthesis() {
    closeExponent();
    if (rootEnds()) closeRoot();
    bool& openedInFraction = openedInFraction_[static_cast<std::size_t>(place(level_))];
    if (openedInFraction && ws.CanonFractionOpen) {
        copy();
        closeFraction();
        openedInFraction = false;
        if (isMark(*n_, '(')) {  // two factors, one of them under the bar, keep their product
            beginTerm(w());
            write("*");
        }
        return;
    }
    closeFraction();
    copy();
    level_ -= 1;
}

void Walk::bar() {
    if (fractionDivision_) {
        barBetweenFractions();
        return;
    }
    closeExponent();
    copy();
    const int termStart = ws.CanonGroupStart[place(ws.CanonFractionOpen ? fracLevel_ : level_)];
    if (!ws.CanonFractionOpen) {
        fracLevel_ = level_;
        fractionInsideRoot_ = rootOpen_;
        ws.CanonFractionOpen = true;
        ws.CanonOut.set(termStart + 2, "#");
    }
    // A numeric fraction in the new numerator stops being one of its own.
    for (int slot = termStart + 4; slot <= w(); ++slot) {
        if (isMark(ws.CanonOut[slot], '#')) ws.CanonOut.set(slot, "");
    }
}

// The numerator is the one number before the bar.
void Walk::barBetweenFractions() {
    if (IsFractionToken(*p_)) {
        closeFraction();
        write("{");
        return;
    }
    copy();
    ws.CanonOut.set(w() - 10, "#");
    fracLevel_ = level_;
    fractionInsideRoot_ = false;
    ws.CanonFractionOpen = true;
}

void Walk::star() {
    closeProduct();
    beginTerm(w());
    copy();
}

void Walk::highlight() {
    closeExponent();
    if (!isMark(*c_, '[') || !isMark(*p_, '/')) closeFraction();
    copy();
}

// A fraction may begin directly behind a bar.
void Walk::absoluteBar() {
    closeProduct();
    beginTerm(w() + 1);
    copy();
}

// A letter, a 1, a separator. A 1 may still be an exponent; a 1 before a root is not written.
void Walk::plain() {
    if (isMark(*c_, ',')) ++commas_;
    if (expOpen_ && isMark(*c_, '1')) {
        copy();
        closeExponent();
        return;
    }
    closeExponent();
    if (isMark(*c_, '1') && isMark(*n_, '~')) return;
    copy();
}

void Walk::cell() {
    const std::string& c = *c_;
    if (c.size() > 1) {
        if (IsFractionToken(c)) return fractionCell();
        return IsNumeric(c) ? copy() : plain();
    }
    switch (c[0]) {
        case '^':
        case '?': return exponentMark();
        case '+':
        case '-':
        case '=': return signOrEquals();
        case '~': return rootSign();
        case '(': return openParenthesis();
        case ')': return closeParenthesis();
        case '/': return bar();
        case '*': return star();
        case '[':
        case ']': return highlight();
        case '|': return absoluteBar();
        case '#': return copy();
        default: return c != "1" && IsNumeric(c) ? copy() : plain();  // a number stays in an open exponent or root
    }
}

// An exponent without a digit shows a question mark for what is still to be typed.
void Walk::closeAll() {
    const bool exponentMissing = expOpen_ && isMark(ws.CanonOut[w() - 4], '^');
    closeExponent();
    if (exponentMissing) mark(1, "?^");
    closeRoot();
    closeFraction();
}

RewriteFacts Walk::run() {
    ws.CanonSource.forget();
    ws.CanonOut.clear();
    ws.CanonWrite = 4;
    ws.CanonGroupStart[0] = 0;
    ws.CanonFractionOpen = false;

    for (; i_ <= 4 * cells_; i_ += 4) {
        c_ = &ws.CanonIn[i_];
        p_ = &ws.CanonIn[i_ - 4];
        n_ = &ws.CanonIn[i_ + 4];
        cell();
    }
    closeAll();

    ws.CanonTokens.clear();
    std::swap(ws.CanonTokens, ws.CanonOut);
    ws.CanonLast = w();
    return {cells_, level_, commas_};
}

}  // namespace

RewriteFacts rewriteCells() {
    return rewriteSpaced(spreadCells());
}

RewriteFacts rewriteSpaced(int cells) {
    return Walk(cells).run();
}

void RewritePass() {
    setSolveEnabled(solveIsReady(rewriteCells()));
}

}  // namespace ordwise
