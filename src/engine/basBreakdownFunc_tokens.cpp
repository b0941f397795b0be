// Moving the expression between plain text, characters and tokens.
//
// Slots are those of the TokenBuffer. TokenLast stands behind the last token, or a little further
// after a merge; readers go a few slots past it.
#include "basBreakdownFunc.hpp"

#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace ordwise {
namespace {

// A rewritten text may outgrow the old one by this much; the rest of it is dropped.
constexpr int growthLimit = 100;
// How far behind TokenLast old tokens are cleared, and read.
constexpr int clearMargin = 50;
constexpr int readMargin = 5;

std::string joinedTokens(const TokenArray& tokens, int last) {
    std::string text;
    for (int i = 0; i <= std::min(last, tokens.used() - 1); ++i) text += tokens[i];
    return text;
}

// Digits with or without a point, one character or a whole cell. e.g. "7", "18", "2.5"
bool isUnsignedNumber(const std::string& token) {
    return IsNumeric(token) && !IsSign(token.substr(0, 1));
}

// A slot before the text reads as slot 0.
const std::string& tokenFromStart(const TokenArray& tokens, int slot) {
    return tokens[std::max(slot, 0)];
}

}  // namespace

int FindEquals() {
    for (int i = 0; i <= ws.TokenLast; ++i) {
        if (ws.TokenBuffer[i] == "=") return i;
    }
    return ws.TokenLast;
}

int FindVariable(std::string_view letter) {
    for (int i = 0; i <= ws.VarCount; ++i) {
        if (ws.VarNames[i] == letter) return i;
    }
    return 0;
}

void CollectVariables() {
    for (int i = 0; i <= lastLevel; ++i) ws.VarNames[i].clear();
    ws.VarCount = 1;
    for (int i = 0; i < ws.InputLast; ++i) {
        const std::string& c = ws.InputTokens[i];
        if (!IsLetter(c) || FindVariable(c) != 0) continue;
        ws.VarNames[ws.VarCount] = c;
        ws.VarCount += 1;
    }
}

void ExplodeTokens(std::string_view text) {
    const std::string wanted = replaced(std::string(text), " ", "");
    const int limit = ws.TokenLast + growthLimit;
    ws.TokenBuffer.clear(0, ws.TokenLast + clearMargin);
    const int length = static_cast<int>(wanted.size());
    for (int i = 0; i < std::min(length, limit); ++i)
        ws.TokenBuffer.set(i, wanted.substr(static_cast<std::size_t>(i), 1));
    if (length < limit) ws.TokenLast = length + 1;
}

std::string ImplodeTokens() {
    return joinedTokens(ws.TokenBuffer, ws.TokenLast + readMargin);
}

std::string ImplodeInput() {
    return joinedTokens(ws.InputTokens, lastToken);
}

std::string ImplodeCanon() {
    return joinedTokens(ws.CanonTokens, ws.CanonLast);
}

std::string tokensText(int first, int last) {
    std::string text;
    for (int i = first; i <= last; ++i) text += ws.TokenBuffer[i];
    return text;
}

void TrimTokenLast() {
    for (int i = 1; i <= ws.TokenLast; ++i) {
        if (!ws.TokenBuffer[i].empty()) continue;
        ws.TokenLast = i;
        return;
    }
}

// --- MergeNumbers

namespace {

class NumberMerger {
public:
    std::vector<std::string> run() {
        for (int i = 0; i < ws.TokenLast; ++i) take(i);
        return std::move(out_);
    }

private:
    static const std::string& at(int slot) { return tokenFromStart(ws.TokenBuffer, slot); }
    // The token written `back` before the last one.
    std::string written(std::size_t back) const { return out_.size() > back ? out_[out_.size() - 1 - back] : ""; }

    void own(const std::string& token) {
        if (!token.empty()) out_.push_back(token);
        inNumber_ = false;
    }

    void take(int i) {
        const std::string& c = at(i);
        const bool startsNumber = isUnsignedNumber(c) || c == "." || c == "~";
        const bool joinsNumber = startsNumber || c == "E" || c == "/" || (IsSign(c) && at(i - 1) == "E");
        if (!inNumber_ || !joinsNumber) {
            own(c);
            inNumber_ = startsNumber;
        } else if (c == "/" && !barMerges(i)) {
            own(c);
        } else {
            out_.back() += c;
        }
    }

    // A bar joins two whole numbers that stand for themselves: not behind an exponent, not behind
    // another fraction, and only if what follows the denominator's first digit is no letter.
    // e.g. 3/4+1 and [1/2]*3/3 merge; x^2/3, 3/4x and 3/x do not
    bool barMerges(int i) const {
        const bool inExponent = written(1) == "^" || (written(1) == "-" && written(2) == "^");
        if (inExponent || IsFractionToken(out_.back()) || at(i - 1) == ")") return false;
        const std::string& digit = ws.TokenBuffer[i + 1];
        const std::string& behind = ws.TokenBuffer[i + 2];
        static const std::vector<std::string> ends = {"", ".", "(", ")", "|", "=", "[", "]"};
        return IsNumeric(digit) &&
               (IsOperator(behind) || IsNumeric(behind) || std::find(ends.begin(), ends.end(), behind) != ends.end());
    }

    std::vector<std::string> out_;
    bool inNumber_ = false;
};

}  // namespace

void MergeNumbers() {
    const std::vector<std::string> merged = NumberMerger().run();
    ws.TokenBuffer.clear();
    const int count = static_cast<int>(merged.size());
    for (int i = 0; i < count; ++i) ws.TokenBuffer.set(i, merged[static_cast<std::size_t>(i)]);
    ws.TokenLast = count + 3;
}

// --- NormaliseSigns

namespace {

using Tokens = std::vector<std::string>;

const std::string& at(const Tokens& tokens, std::size_t slot) {
    static const std::string none;
    return slot < tokens.size() ? tokens[slot] : none;
}
const std::string& before(const Tokens& tokens, std::size_t slot, std::size_t back) {
    return at(tokens, slot > back ? slot - back : 0);
}

// e.g. the "[" of =[-x]: the sign is already there, inside the mark
bool startsWithSign(const Tokens& tokens, std::size_t slot) {
    return IsSign(at(tokens, slot)) || (at(tokens, slot) == "[" && IsSign(at(tokens, slot + 1)));
}

// The text with a sign at its start and behind "=". e.g. 2x=4 -> +2x=+4
Tokens withOuterSigns() {
    Tokens tokens;
    if (!IsSign(ws.TokenBuffer[0])) tokens.emplace_back("+");
    const int end = std::min(ws.TokenLast + 1, ws.TokenBuffer.used() - 1);
    for (int i = 0; i <= end; ++i) {
        if (!ws.TokenBuffer[i].empty()) tokens.push_back(ws.TokenBuffer[i]);
    }
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i] == "=" && !startsWithSign(tokens, i + 1))
            tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(i) + 1, "+");
    }
    return tokens;
}

// The star of 3*(x) is dropped, since 3(x) says the same to the store. It stays behind an exponent,
// a fraction token, and a fraction with letters, where 2^3(x) and 1/2x(x) would say something else.
bool starIsDropped(const Tokens& tokens, std::size_t slot) {
    const auto p = [&](std::size_t back) -> const std::string& { return before(tokens, slot, back); };
    if (at(tokens, slot) != "*" || at(tokens, slot + 1) != "(" || p(2) == "^" || IsFractionToken(p(1))) return false;
    const bool letterFraction = p(2) == "/" && p(3) != ")" && (IsLetter(p(3)) || IsLetter(p(4)) || IsLetter(p(5)));
    return !letterFraction;
}

// A term at the start of a group gets its sign. e.g. (x -> (+x; a bar opens at every odd one.
Tokens withInnerSigns(const Tokens& tokens) {
    Tokens out(1);
    int bars = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const std::string& t = tokens[i];
        if (starIsDropped(tokens, i)) continue;
        out.push_back(t);
        if (t == "|") ++bars;
        const bool opens = t == "(" || (t == "|" && bars % 2 == 1);
        const std::string& next = at(tokens, i + 1);
        if (opens && !startsWithSign(tokens, i + 1) && !next.empty() && next != ")")
            out.emplace_back(lenientValueOf(next) < 0 ? "-" : "+");
    }
    return out;
}

}  // namespace

void NormaliseSigns() {
    const Tokens tokens = withOuterSigns();
    const Tokens out = withInnerSigns(tokens);
    ws.TokenBuffer.clear();
    for (std::size_t i = 1; i < out.size(); ++i) {
        // Of two operators in a row the second is not written: its slot keeps what stood there
        // before the text moved to slot 1.
        const bool second = IsOperator(out[i - 1]) && IsOperator(out[i]);
        ws.TokenBuffer.set(static_cast<int>(i), second ? at(tokens, i) : out[i]);
    }
    ws.TokenLast = static_cast<int>(out.size());
}

// --- CanonToTokens

namespace {

// e.g. the "/0" of 5/0+1 and 3/0.00; not that of 5/0.5
bool dividesByZero(const std::string& text) {
    for (std::size_t bar = text.find("/0"); bar != std::string::npos; bar = text.find("/0", bar + 1)) {
        if (lenientValueOf(std::string_view(text).substr(bar + 1)) == 0.0) return true;
    }
    return false;
}

// Two neighbouring tokens of a problem that group by group reduction cannot do: a power or product
// of groups, or a letter.
bool breaksPlainSum(const std::string& a, const std::string& b) {
    if (a == ")") return b == "^" || b == "(";
    if (IsNumeric(a) || IsFractionToken(a)) return b == "(";
    return IsLetter(a) || a == "-";
}

}  // namespace

void CanonToTokens() {
    CollectVariables();
    ws.TokenLast = 0;
    ws.PlainSum = true;
    const auto write = [](const std::string& token) {
        ws.TokenBuffer.set(ws.TokenLast, token);
        ws.TokenLast += 1;
    };
    if (ws.CanonTokens[4] != "-") write("+");
    for (int cell = 4; cell <= ws.CanonLast + 4; cell += 4) {
        const std::string& token = ws.CanonTokens[cell];
        if (token.empty()) continue;
        write(token == "{" ? "/" : token);
        if (token != "{" && ws.TokenLast > 2 && breaksPlainSum(ws.TokenBuffer[ws.TokenLast - 2], token))
            ws.PlainSum = false;
    }
    ws.TokenBuffer.clear(ws.TokenLast, lastToken);
    if (dividesByZero(ImplodeTokens())) raise(FaultNumber::DivisionByZero);
}

// --- single tokens

std::string ExpandExponential(const std::string& token) {
    const std::size_t e = token.find('E');
    if (e == std::string::npos) return token;
    const double mantissa = lenientValueOf(token.substr(0, e));
    // The character behind the "E" is skipped unread, so 2E-3 is worked out as 2000.
    const std::int32_t exponent = e + 2 <= token.size() ? longOf(lenientValueOf(token.substr(e + 2))) : 0;
    return textOf(inRange(mantissa * std::pow(10.0, exponent)));
}

std::string FractionToDecimal(const std::string& token, bool rounded) {
    const std::size_t bar = token.find('/');
    if (bar == std::string::npos) return token;
    const double below = lenientValueOf(token.substr(bar + 1));
    if (below == 0.0) return token;
    const double value = lenientValueOf(token.substr(0, bar)) / below;
    return textOf(rounded ? Round(value, ws.RoundPlaces) : value);
}

Int16 MaskValue(std::string_view digits) {
    Int16 value;
    for (const char digit : digits) value = value * 2 + (digit == '1' ? 1 : 0);
    return value;
}

}  // namespace ordwise
