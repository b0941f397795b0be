// Whether a key keeps the typed problem well formed. Every kind of key has its rule; the rules of
// one kind stand together in a file:
//
//   SyntaxCheck_numbers.cpp     digits and the decimal point
//   SyntaxCheck_letters.cpp     variables
//   SyntaxCheck_operators.cpp   + - * / = ^ ~
//   SyntaxCheck_brackets.cpp    parentheses and absolute value bars
//   SyntaxCheck_separators.cpp  : , %
//   SyntaxCheck_points.cpp      all keys of the topics that take points or two values
//
// A rule looks at the key and at what stands before it, and answers with a Verdict. Only a rule
// that accepts changes the syntax state of the Workspace.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace ordwise {

// A key in its place.
struct TypedKey {
    std::string ch;    // the key
    std::string p;     // the character before it, "" on an empty paper
    std::string p2;    // the one before that
    std::string cell;  // the last cell of the rewrite. e.g. "3/4" when the 4 has just been typed

    [[nodiscard]] bool first() const { return p.empty(); }
    [[nodiscard]] bool followsNumber() const { return p.size() == 1 && p[0] >= '0' && p[0] <= '9'; }
    // An exponent that has no digit yet. e.g. behind "x^" and "x^-"
    [[nodiscard]] bool startsExponent() const { return p == "^" || (p == "-" && p2 == "^"); }
};

struct Verdict {
    bool accepted;
    std::string reason;  // of a refusal; empty: there is nothing better to say than usual

    [[nodiscard]] static Verdict accept() { return {true, ""}; }
    [[nodiscard]] static Verdict acceptIf(bool condition) { return {condition, ""}; }
    [[nodiscard]] static Verdict refuse(std::string reason = "") { return {false, std::move(reason)}; }
};

// True to accept; otherwise ExplainOverrideText says why not. `ch` is one character that the mask
// of the topic has let through, a letter in lower case. Expects the rewrite of the input in
// CanonTokens and its letters in VarNames.
[[nodiscard]] bool SyntaxCheck(std::string_view ch);

// --- the rules

[[nodiscard]] Verdict checkDigit(const TypedKey& key);
[[nodiscard]] Verdict checkPoint(const TypedKey& key);  // the decimal point

[[nodiscard]] Verdict checkLetter(const TypedKey& key);

[[nodiscard]] Verdict checkOperator(const TypedKey& key);  // + - *
[[nodiscard]] Verdict checkDivision(const TypedKey& key);
[[nodiscard]] Verdict checkEquals(const TypedKey& key);
[[nodiscard]] Verdict checkExponent(const TypedKey& key);
[[nodiscard]] Verdict checkRoot(const TypedKey& key);

[[nodiscard]] Verdict checkOpenParenthesis(const TypedKey& key);
[[nodiscard]] Verdict checkCloseParenthesis(const TypedKey& key);
[[nodiscard]] Verdict checkBar(const TypedKey& key);

[[nodiscard]] Verdict checkColon(const TypedKey& key);
[[nodiscard]] Verdict checkComma(const TypedKey& key);
[[nodiscard]] Verdict checkPercent(const TypedKey& key);

[[nodiscard]] Verdict checkTwoValues(const TypedKey& key);  // 90
[[nodiscard]] Verdict checkOnePoint(const TypedKey& key);   // 107, 108
[[nodiscard]] Verdict checkTwoPoints(const TypedKey& key);  // 106

// --- what several rules need

// How often a character stands in the input.
[[nodiscard]] int countTyped(std::string_view ch);
// "'N'.  Click the Assistant Wiz for details." with the topic for N.
[[nodiscard]] std::string inTopicSeeAssistant();
// Bookkeeping of parentheses, on the side of the fraction on which they stand.
void noteParenthesisOpened();
void noteParenthesisClosed();

}  // namespace ordwise
