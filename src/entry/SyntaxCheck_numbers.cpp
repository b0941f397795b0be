// Digits and the decimal point. A number has at most MaxDigits - 1 digits before its point and two
// behind it; a numeric fraction has two such numbers.
#include "NumberText.hpp"
#include "SyntaxCheck.hpp"
#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

namespace ordwise {

namespace {

constexpr std::size_t longestDecimals = 2;

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
        return decimals < longestDecimals ? "" : "Please keep all decimal portions to 2 digits or less.";
    }
    if (static_cast<int>(number.size()) + 1 < ws.MaxDigits) return "";
    const int longest = ws.MaxDigits - 1;
    return tooManyDigits(IsFractionToken(key.cell) ? longest + 1 : longest);
}

}  // namespace

Verdict checkDigit(const TypedKey& key) {
    if (key.p == "%") return Verdict::refuse();
    std::string complaint = lengthComplaint(key);
    if (!complaint.empty()) return Verdict::refuse(std::move(complaint));

    const bool exponentIsFull = ws.ExponentOpen && key.followsNumber();
    const bool behindClosingBar = key.p == "|" && !ws.BarOpen;
    if (exponentIsFull) return Verdict::refuse("Exponents can't be greater than one digit.");
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
