// GroupInput: digits and points to numbers, plain fractions to one cell.
#include "CanonicalRewrite.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

#include <utility>
#include <vector>

namespace ordwise {

namespace {

bool isDigit(const std::string& s) {
    return s.size() == 1 && s[0] >= '0' && s[0] <= '9';
}

class Grouping {
public:
    void add(const std::string& before, const std::string& c, const std::string& after) {
        if (c.empty()) return;
        if (c == "." || isDigit(c)) {
            if (numberOpen_) {
                cells_.back() += c;
            } else {
                open(c);
            }
            numberOpen_ = true;
        } else if (c == "/") {
            if (joinsNumber(before, after)) {
                cells_.back() += c;
            } else {
                open(c);
                numberOpen_ = false;
            }
        } else {
            open(c);
            numberOpen_ = false;
            exponentSeen_ = c == "^" || c == "?";
        }
    }

    [[nodiscard]] std::vector<std::string> cells() && { return std::move(cells_); }

private:
    void open(const std::string& c) { cells_.push_back(c); }

    // "3/4" is one cell; a bar with a letter, a parenthesis or an exponent beside it stands alone,
    // and so does one whose second number has not been typed yet.
    [[nodiscard]] bool joinsNumber(const std::string& before, const std::string& after) const {
        const std::size_t count = cells_.size();
        const bool negativeExponent = count >= 3 && cells_[count - 3] == "^";
        return numberOpen_ && !exponentSeen_ && !negativeExponent && before != ")" && isDigit(after) &&
               !IsFractionToken(cells_.back());
    }

    std::vector<std::string> cells_;
    bool numberOpen_ = false;    // the current cell is a number that may grow
    bool exponentSeen_ = false;  // it is an exponent's
};

}  // namespace

void GroupInput() {
    static const std::string none;
    Grouping grouping;
    for (int i = 0; i <= ws.InputLast && i <= lastToken; ++i) {
        grouping.add(i > 0 ? ws.InputTokens[i - 1] : none, ws.InputTokens[i],
                     i < lastToken ? ws.InputTokens[i + 1] : none);
    }

    ws.CanonTokens.clear();
    ws.CanonSource.forget();
    int slot = 0;
    for (std::string& cell : std::move(grouping).cells()) ws.CanonTokens.set(++slot, std::move(cell));
    ws.CanonLast = slot;
}

}  // namespace ordwise
