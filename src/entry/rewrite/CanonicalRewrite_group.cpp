// GroupInput: digits and points to numbers, plain fractions to one cell.
#include "CanonicalRewrite.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

namespace ordwise {

namespace {

bool isDigit(const std::string& s) {
    return s.size() == 1 && s[0] >= '0' && s[0] <= '9';
}

// Writes the cells into CanonTokens, from slot 1.
class Grouping {
public:
    Grouping() { ws.CanonTokens.clear(); }

    void add(const std::string& before, const std::string& c, const std::string& after) {
        if (c.empty()) return;
        if (isMark(c, '.') || isDigit(c)) {
            numberOpen_ ? extend(c) : open(c);
            numberOpen_ = true;
        } else if (isMark(c, '/') && joinsNumber(before, after)) {
            extend(c);
        } else if (ws.LineWorked && isMark(c, '-') && isMark(before, '/')) {
            open(c);  // the sign of the number below a bar. e.g. -2x/-2
            numberOpen_ = true;
        } else {
            open(c);
            numberOpen_ = false;
            if (!isMark(c, '/')) exponentSeen_ = isMark(c, '^') || isMark(c, '?');
        }
    }

    [[nodiscard]] int count() const { return count_; }

private:
    void open(const std::string& c) { ws.CanonTokens.slot(++count_) = c; }
    void extend(const std::string& c) { ws.CanonTokens.slot(count_) += c; }

    // "3/4" is one cell; a bar with a letter, a parenthesis or an exponent beside it stands alone,
    // and so does one whose second number has not been typed yet.
    [[nodiscard]] bool joinsNumber(const std::string& before, const std::string& after) const {
        const bool negativeExponent = count_ >= 3 && isMark(ws.CanonTokens[count_ - 2], '^');
        return numberOpen_ && !exponentSeen_ && !negativeExponent && !isMark(before, ')') && isDigit(after) &&
               !IsFractionToken(ws.CanonTokens[count_]);
    }

    int count_ = 0;
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

    ws.CanonLast = grouping.count();
    ws.CanonSource.forget();
}

}  // namespace ordwise
