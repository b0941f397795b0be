// Digits and the decimal point. A number has at most MaxDigits - 1 digits before its point and two
// behind it; a numeric fraction has two such numbers.
#include "NumberText.hpp"
#include "SyntaxCheck.hpp"
#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

namespace ordwise {

namespace {

// A line of the student's own may hold what comes out of the numbers of the problem.
constexpr int longestWorked = 9;

std::size_t longestDecimals() {
    return ws.LineWorked ? longestWorked : 2;
}

int longestNumber() {
    return ws.LineWorked ? longestWorked : ws.MaxDigits - 1;
}

// The number that the next digit would join, "" for the first digit of a new one. e.g. "1.2/34"
// in the last cell -> "34"
std::string_view numberBeforeKey(const TypedKey& key) {
    if (!key.followsNumber() && key.p != ".") return "";
    const std::string_view cell = key.cell;
    const std::size_t bar = cell.rfind('/');
    return bar == std::string_view::npos ? cell : cell.substr(bar + 1);
}

std::string tooManyDigits(int limit) {
    return "Please keep all numbers to " + signedTextOf(limit) + " digits or less.";
}

// Empty while the number may grow by a digit. Behind a bar the sentence names one digit more than
// may be typed.
std::string lengthComplaint(const TypedKey& key) {
    const std::string_view number = numberBeforeKey(key);
    const std::size_t point = number.find('.');
    if (point != std::string_view::npos) {
        const std::size_t decimals = number.size() - point - 1;
        if (decimals < longestDecimals()) return "";
        return "Please keep all decimal portions to " + textOf(static_cast<int>(longestDecimals())) +
               " digits or less.";
    }
    const int longest = longestNumber();
    if (static_cast<int>(number.size()) < longest) return "";
    return tooManyDigits(IsFractionToken(key.cell) && !ws.LineWorked ? longest + 1 : longest);
}

}  // namespace

Verdict checkDigit(const TypedKey& key) {
    if (key.p == "%") return Verdict::refuse();
    std::string complaint = lengthComplaint(key);
    if (!complaint.empty()) return Verdict::refuse(std::move(complaint));

    const bool secondDigit = key.followsNumber() && (key.p2 == "^" || key.p2 == "-");
    const bool exponentIsFull = ws.ExponentOpen && key.followsNumber() && !(ws.LineWorked && secondDigit);
    const bool behindClosingBar = key.p == "|" && !ws.BarOpen;
    if (exponentIsFull)
        return Verdict::refuse(ws.LineWorked ? "Exponents can't be greater than two digits."
                                             : "Exponents can't be greater than one digit.");
    if (IsLetter(key.p)) {
        return Verdict::refuse("You can't type more than " + signedTextOf(ws.MaxDigits - 1) + " numbers in a row.");
    }
    if (key.p == ")" || behindClosingBar) return Verdict::refuse("You can't type a number after a '" + key.p + "'.");
    return Verdict::accept();
}

Verdict checkPoint(const TypedKey& key) {
    const bool hasPoint = contains(numberBeforeKey(key), ".");
    if (!hasPoint && (key.first() || key.followsNumber() || IsSign(key.p))) return Verdict::accept();
    return Verdict::refuse("A number can only have one decimal point.");
}

}  // namespace ordwise
