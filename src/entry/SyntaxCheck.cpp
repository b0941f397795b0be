// From a key to its rule, and from a refusal to the sentence that the student reads.
#include "SyntaxCheck.hpp"

#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

namespace ordwise {

namespace {

TypedKey keyInPlace(std::string_view ch) {
    TypedKey key;
    key.ch = ch;
    if (ws.InputLast >= 1) key.p = ws.InputTokens[ws.InputLast - 1];
    if (ws.InputLast >= 2) key.p2 = ws.InputTokens[ws.InputLast - 2];
    if (ws.CanonLast >= 4) key.cell = ws.CanonTokens[ws.CanonLast - 4];
    return key;
}

// A mixed number is short: a whole number, a sign and a fraction.
bool mixedNumberIsFull(const TypedKey& key) {
    return (IsFractionToken(key.cell) && ws.CanonLast > 12) || ws.CanonLast >= 21;
}

using Rule = Verdict (*)(const TypedKey&);

struct RuleRow {
    std::string_view keys;
    Rule rule;
};

// clang-format off
constexpr RuleRow rules[] = {
    {"0123456789", checkDigit},
    {"abcdefghijklmnopqrstuvwxyz", checkLetter},
    {"+-*", checkOperator},
    {"/",   checkDivision},
    {"~",   checkRoot},
    {"=$",  checkEquals},
    {")",   checkCloseParenthesis},
    {"(",   checkOpenParenthesis},
    {"^",   checkExponent},
    {".",   checkPoint},
    {":",   checkColon},
    {",",   checkComma},
    {"%",   checkPercent},
    {"|",   checkBar},
};
// clang-format on

Verdict verdictOn(const TypedKey& key) {
    switch (ws.ProblemType) {
        case 90: return checkTwoValues(key);
        case 106: return checkTwoPoints(key);
        case 107:
        case 108: return checkOnePoint(key);
        case 74:
            if (mixedNumberIsFull(key)) return Verdict::refuse();
            break;
        default: break;
    }
    for (const RuleRow& row : rules) {
        if (key.ch.size() == 1 && contains(row.keys, key.ch)) return row.rule(key);
    }
    return Verdict::refuse();
}

// A sentence that speaks of "^" is said anew by what stands on either side of it.
std::string exponentSentence(const TypedKey& key, std::string text) {
    if (!contains(text, "^")) return text;
    if (key.p == "^" && key.ch == "^") return "You can 't type another exponent inside an exponent.";
    if (key.p == "^") return "You can't type a '" + key.ch + "' in an exponent.";
    if (key.ch == "^") return "You can't have an exponent after a '" + key.p + "'.";
    return text;
}

// What the student reads. The characters are quoted wherever they follow a blank: in a count and
// at the start of a word, too.
std::string sentenceFor(const TypedKey& key, std::string text) {
    if (key.first()) {
        return key.ch == "^" ? "You can't start the problem with an exponent."
                             : "You can't start the problem with a '" + key.ch + "'.";
    }
    if (text.empty()) text = "You can't type a " + key.ch + " after a " + key.p + " in '" + ws.TopicName + "'.";
    text = exponentSentence(key, std::move(text));
    text = replaced(std::move(text), " " + key.p, " '" + key.p + "'");
    return replaced(std::move(text), " " + key.ch, " '" + key.ch + "'");
}

}  // namespace

bool SyntaxCheck(std::string_view ch) {
    const TypedKey key = keyInPlace(ch);
    Verdict verdict = verdictOn(key);
    ws.ExplainOverrideText = verdict.accepted ? "" : sentenceFor(key, std::move(verdict.reason));
    return verdict.accepted;
}

int countTyped(std::string_view ch) {
    int count = 0;
    for (int i = 0; i < ws.InputLast; ++i) count += ws.InputTokens[i] == ch ? 1 : 0;
    return count;
}

std::string inTopicSeeAssistant() {
    return "'" + ws.TopicName + "'.  Click the Assistant Wiz for details.";
}

void noteParenthesisOpened() {
    ws.ParenDepth += 1;
    ws.ParenTable[ws.ParenSide][ws.ParenDepth] = true;
}

void noteParenthesisClosed() {
    if (ws.ParenDepth > 0) ws.ParenTable[ws.ParenSide][ws.ParenDepth] = false;
    ws.ParenDepth -= 1;
}

}  // namespace ordwise
