// CanonicalLine: the engine's tokens as the line that the student reads.
#include "CanonicalRewrite.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace ordwise {

namespace {

class LineCells {
public:
    void add(const std::string& before, const std::string& token, const std::string& after) {
        if (token == "|") ++bars_;
        if (token.empty()) return;
        if (token == "1" && before == "^") {  // e.g. x^1 is written x
            if (!cells_.empty()) cells_.pop_back();
            return;
        }
        if (token == "1" && IsLetter(after) && !isNegativeExponent()) return;  // e.g. 1x is written x
        if (token == "+" && startsTerms()) return;                             // e.g. (+3 is written (3
        if (!splitRoot(token)) cells_.push_back(token);
    }

    [[nodiscard]] std::vector<std::string> cells() && { return std::move(cells_); }

private:
    // The next cell is the first of the line, of a side, of a parenthesis or between bars.
    [[nodiscard]] bool startsTerms() const {
        if (cells_.empty()) return true;
        const std::string& last = cells_.back();
        return last == "=" || last == "(" || (last == "|" && bars_ % 2 == 1);
    }

    // The next cell stands behind "^-": a 1 there is the exponent and no coefficient.
    [[nodiscard]] bool isNegativeExponent() const {
        const std::size_t count = cells_.size();
        return count >= 2 && cells_[count - 1] == "-" && cells_[count - 2] == "^";
    }

    // A root token is coefficient and radicand in one. e.g. "3~5" -> "3", "~", "5"
    bool splitRoot(std::string_view token) {
        const std::size_t sign = token.find('~');
        if (sign == std::string_view::npos) return false;
        for (const std::string_view part : {token.substr(0, sign), std::string_view("~"), token.substr(sign + 1)}) {
            if (!part.empty()) cells_.emplace_back(part);
        }
        return true;
    }

    std::vector<std::string> cells_;
    int bars_ = 0;
};

std::string joinedCells() {
    std::string line;
    const int end = std::min<int>(ws.CanonLast, ws.CanonTokens.used() - 1);
    for (int i = 0; i <= end; ++i) line += ws.CanonTokens[i];
    return line;
}

}  // namespace

std::string CanonicalLine() {
    static const std::string none;
    LineCells line;
    for (int i = 0; i <= ws.TokenLast + 1; ++i) {
        line.add(i > 0 ? ws.TokenBuffer[i - 1] : none, ws.TokenBuffer[i], i < lastToken ? ws.TokenBuffer[i + 1] : none);
    }

    ws.CanonTokens.clear();
    int slot = 0;
    for (std::string& cell : std::move(line).cells()) ws.CanonTokens.set(++slot, std::move(cell));
    ws.CanonLast = slot;
    rewriteCells();
    return joinedCells();
}

std::string RewriteAll() {
    RewritePass();
    return joinedCells();
}

}  // namespace ordwise
