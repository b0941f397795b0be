// CanonicalLine: the engine's tokens as the line that the student reads.
#include "CanonicalRewrite.hpp"
#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace ordwise {

namespace {

// Writes the cells of a line into CanonIn, from slot 4, where the pass reads them.
class LineCells {
public:
    LineCells() { ws.CanonIn.clear(); }

    void add(const std::string& before, const std::string& token, const std::string& after) {
        if (token.empty()) return;
        if (isMark(token, '|')) ++bars_;
        if (isMark(token, '1')) {
            if (isMark(before, '^')) {  // e.g. x^1 is written x
                if (count_ > 0) --count_;
                return;
            }
            if (IsLetter(after) && !isNegativeExponent()) return;  // e.g. 1x is written x
        }
        if (isMark(token, '+') && startsTerms()) return;  // e.g. (+3 is written (3
        if (!splitRoot(token)) write(token);
    }

    // Their number.
    [[nodiscard]] int close() {
        ws.CanonIn.clear(4 * count_ + 1, ws.CanonIn.used() - 1);
        return count_;
    }

private:
    void write(std::string_view cell) { ws.CanonIn.slot(4 * ++count_) = cell; }
    // The cell written `back` before the last one; slot 0 is empty.
    [[nodiscard]] const std::string& written(int back) const { return ws.CanonIn[4 * std::max(count_ - back, 0)]; }

    // The next cell is the first of the line, of a side, of a parenthesis or between bars.
    [[nodiscard]] bool startsTerms() const {
        const std::string& last = written(0);
        return last.empty() || isMark(last, '=') || isMark(last, '(') || (isMark(last, '|') && bars_ % 2 == 1);
    }

    // The next cell stands behind "^-": a 1 there is the exponent and no coefficient.
    [[nodiscard]] bool isNegativeExponent() const { return isMark(written(0), '-') && isMark(written(1), '^'); }

    // A root token is coefficient and radicand in one. e.g. "3~5" -> "3", "~", "5"
    bool splitRoot(std::string_view token) {
        if (token.size() == 1 && token[0] != '~') return false;
        const std::size_t sign = token.find('~');
        if (sign == std::string_view::npos) return false;
        for (const std::string_view part : {token.substr(0, sign), std::string_view("~"), token.substr(sign + 1)}) {
            if (!part.empty()) write(part);
        }
        return true;
    }

    int count_ = 0;
    int bars_ = 0;
};

// The marks in the gaps and the cells; the slots between are empty.
std::string joinedCells() {
    return joined(ws.CanonTokens.slots(0, std::min<int>(ws.CanonLast, lastToken)));
}

}  // namespace

const std::string& CanonicalLine() {
    // The topic decides what a bar between fractions is.
    if (ws.CanonSource.is(ws.TokenBuffer, ws.TokenLast, ws.ProblemType)) return ws.CanonLine;
    static const std::string none;
    LineCells line;
    for (int i = 0; i <= ws.TokenLast + 1; ++i) {
        line.add(i > 0 ? ws.TokenBuffer[i - 1] : none, ws.TokenBuffer[i], i < lastToken ? ws.TokenBuffer[i + 1] : none);
    }
    rewriteSpaced(line.close());
    ws.CanonLine = joinedCells();
    ws.CanonSource.remember(ws.TokenBuffer, ws.TokenLast, ws.ProblemType);
    return ws.CanonLine;
}

std::string RewriteAll() {
    RewritePass();
    return joinedCells();
}

}  // namespace ordwise
