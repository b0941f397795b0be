// The topics that take a point, two points or two values. Their parentheses only frame the points,
// and a number may have MaxDigits digits.
#include "SyntaxCheck.hpp"
#include "Workspace.hpp"

namespace ordwise {

namespace {

bool isDigit(std::string_view ch) {
    return ch.size() == 1 && ch[0] >= '0' && ch[0] <= '9';
}

bool numberMayGrow(const TypedKey& key) {
    return static_cast<int>(key.cell.size()) < ws.MaxDigits;
}

Verdict refuseComma() {
    return Verdict::refuse("Only one comma is necessary to seperate points in " + inTopicSeeAssistant());
}

Verdict refuseOpening() {
    return Verdict::refuse("You can't type a ( except to start off the point. [(4,6)] in " + inTopicSeeAssistant());
}

Verdict refuseOther(const TypedKey& key) {
    return Verdict::refuse("The character you typed (" + key.ch + ") is not allowed after a " + key.p + " in " +
                           inTopicSeeAssistant());
}

Verdict openPoint() {
    noteParenthesisOpened();
    return Verdict::accept();
}

Verdict closePoint(const TypedKey& key) {
    if (!key.followsNumber() || countTyped(",") == 0) return refuseOther(key);
    noteParenthesisClosed();
    return Verdict::accept();
}

bool mayBeNegative(const TypedKey& key) {
    return key.first() || key.p == "(" || key.p == ",";
}

Verdict comma(const TypedKey& key, int most) {
    return key.followsNumber() && countTyped(",") < most ? Verdict::accept() : refuseComma();
}

}  // namespace

Verdict checkTwoValues(const TypedKey& key) {
    if (key.ch == ",") return comma(key, 1);
    const bool accepted = (isDigit(key.ch) && numberMayGrow(key)) || (key.ch == "-" && (key.first() || key.p == ","));
    return accepted ? Verdict::accept()
                    : Verdict::refuse(key.ch + " is not a valid character in '" + ws.TopicName + "'.");
}

// e.g. (4,8)
Verdict checkOnePoint(const TypedKey& key) {
    if (key.ch == "(") return key.first() ? openPoint() : refuseOpening();
    if (key.ch == ")") return closePoint(key);
    if (key.ch == ",") return comma(key, 1);
    const bool accepted =
        (key.ch == "-" && mayBeNegative(key)) || (isDigit(key.ch) && key.p != ")" && numberMayGrow(key));
    return accepted ? Verdict::accept() : refuseOther(key);
}

// e.g. (1,2)-(5,6): a "-" behind the first ")" leads to the second point.
Verdict checkTwoPoints(const TypedKey& key) {
    const bool betweenPoints = key.p == ")" && countTyped(")") == 1;
    if (key.ch == "(") return key.first() || (key.p == "-" && key.p2 == ")") ? openPoint() : refuseOpening();
    if (key.ch == ",") return comma(key, 3);
    if (key.ch == "-" && betweenPoints) return Verdict::accept();
    return checkOnePoint(key);
}

}  // namespace ordwise
