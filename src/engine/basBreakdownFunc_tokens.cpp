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
#include <span>
#include <utility>

namespace ordwise {
namespace {

// A rewritten text may outgrow the old one by this much; the rest of it is dropped.
constexpr int growthLimit = 100;
// How far behind TokenLast old tokens are cleared, and read.
constexpr int clearMargin = 50;
constexpr int readMargin = 5;

// What counts as the text: the tokens up to a few slots past TokenLast.
std::span<const std::string> readTokens() {
    return ws.TokenBuffer.slots(0, std::min(ws.TokenLast + readMargin, lastToken));
}

// Digits with or without a point, one character or a whole cell. e.g. "7", "18", "2.5"
bool isUnsignedNumber(const std::string& token) {
    if (token.size() == 1) return token[0] >= '0' && token[0] <= '9';
    return !token.empty() && token[0] != '+' && token[0] != '-' && IsNumeric(token);
}

// A slot before the text reads as slot 0.
const std::string& tokenFromStart(const TokenArray& tokens, int slot) {
    return tokens[std::max(slot, 0)];
}

}  // namespace

int FindEquals() {
    for (int i = 0; i <= ws.TokenLast; ++i) {
        if (isMark(ws.TokenBuffer[i], '=')) return i;
    }
    return ws.TokenLast;
}

int FindVariable(std::string_view letter) {
    for (int i = 0; i <= ws.VarCount; ++i) {
        const std::string& name = ws.VarNames[i];
        if (letter.size() == 1 ? isMark(name, letter[0]) : name == letter) return i;
    }
    return 0;
}

void CollectVariables() {
    // What lies beyond the last name is empty.
    for (int i = 0; i <= std::min<int>(ws.VarCount, lastLevel); ++i) ws.VarNames[i].clear();
    ws.VarCount = 1;
    for (int i = 0; i < ws.InputLast; ++i) {
        const std::string& c = ws.InputTokens[i];
        if (!IsLetter(c) || FindVariable(c) != 0) continue;
        ws.VarNames[ws.VarCount] = c;
        ws.VarCount += 1;
    }
}

void ExplodeTokens(std::string_view text) {
    const int limit = ws.TokenLast + growthLimit;
    ws.TokenBuffer.clear(0, ws.TokenLast + clearMargin);
    int length = 0;
    for (const char c : text) {
        if (c == ' ') continue;
        if (length < limit) ws.TokenBuffer.slot(length).assign(1, c);
        ++length;
    }
    if (length < limit) ws.TokenLast = length + 1;
}

std::string ImplodeTokens() {
    return joined(readTokens());
}

bool tokensHold(char c) {
    for (const std::string& token : readTokens()) {
        if (token.size() == 1 ? token[0] == c : token.find(c) != std::string::npos) return true;
    }
    return false;
}

bool tokensSpell(std::string_view text) {
    for (const std::string& token : readTokens()) {
        if (!text.starts_with(token)) return false;
        text.remove_prefix(token.size());
    }
    return text.empty();
}

std::string ImplodeInput() {
    return joined(ws.InputTokens.slots(0, lastToken));
}

std::string ImplodeCanon() {
    return joined(ws.CanonTokens.slots(0, std::min<int>(ws.CanonLast, lastToken)));
}

std::string tokensText(int first, int last) {
    return joined(ws.TokenBuffer.slots(first, last));
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

// Writes the merged tokens into the spare buffer; `count` of them so far.
class NumberMerger {
public:
    int run() {
        ws.SpareTokens.clear();
        for (int i = 0; i < ws.TokenLast; ++i) take(i);
        return count_;
    }

private:
    static const std::string& at(int slot) { return tokenFromStart(ws.TokenBuffer, slot); }
    // The token written `back` before the last one, the empty one behind it when there are not so many.
    const std::string& written(int back) const { return ws.SpareTokens[count_ > back ? count_ - 1 - back : count_]; }

    void own(const std::string& token) {
        if (!token.empty()) ws.SpareTokens.slot(count_++) = token;
        inNumber_ = false;
    }

    void take(int i) {
        const std::string& c = at(i);
        const bool startsNumber = isUnsignedNumber(c) || isMark(c, '.') || isMark(c, '~');
        const bool joinsNumber =
            startsNumber || isMark(c, 'E') || isMark(c, '/') || (IsSign(c) && isMark(at(i - 1), 'E'));
        if (!inNumber_ || !joinsNumber) {
            own(c);
            inNumber_ = startsNumber;
        } else if (isMark(c, '/') && !barMerges(i)) {
            own(c);
        } else {
            ws.SpareTokens.slot(count_ - 1) += c;
        }
    }

    // A bar joins two whole numbers that stand for themselves: not behind an exponent, not behind
    // another fraction, and only if what follows the denominator's first digit is no letter.
    // e.g. 3/4+1 and [1/2]*3/3 merge; x^2/3, 3/4x and 3/x do not
    bool barMerges(int i) const {
        const bool inExponent = isMark(written(1), '^') || (isMark(written(1), '-') && isMark(written(2), '^'));
        if (inExponent || IsFractionToken(written(0)) || isMark(at(i - 1), ')')) return false;
        return IsNumeric(ws.TokenBuffer[i + 1]) && endsDigit(ws.TokenBuffer[i + 2]);
    }

    static bool endsDigit(const std::string& token) {
        if (token.empty() || IsOperator(token) || IsNumeric(token)) return true;
        return token.size() == 1 && contains(".()|=[]", token);
    }

    int count_ = 0;
    bool inNumber_ = false;
};

}  // namespace

void MergeNumbers() {
    ws.TokenLast = NumberMerger().run() + 3;
    std::swap(ws.TokenBuffer, ws.SpareTokens);
}

// --- NormaliseSigns

namespace {

// e.g. the "[" of =[-x]: the sign is already there, inside the mark
bool startsWithSign(const TokenArray& tokens, int slot) {
    return IsSign(tokens[slot]) || (isMark(tokens[slot], '[') && IsSign(tokens[slot + 1]));
}

void insertPlus(TokenArray& tokens, int slot) {
    std::string moved = "+";
    for (int i = slot; !moved.empty(); ++i) std::swap(tokens.slot(i), moved);
}

// The buffer begins with a sign, has no gap and ends where TokenLast says, as after a merge.
bool isInOrder() {
    if (!IsSign(ws.TokenBuffer[0]) || ws.TokenBuffer.used() > ws.TokenLast + 2) return false;
    const auto tokens = ws.TokenBuffer.slots(0, lastToken);
    return std::none_of(tokens.begin(), tokens.end(), [](const std::string& token) { return token.empty(); });
}

void copyWithFirstSign(TokenArray& tokens) {
    tokens.clear();
    int count = 0;
    if (!IsSign(ws.TokenBuffer[0])) tokens.slot(count++) = "+";
    const int end = std::min(ws.TokenLast + 1, ws.TokenBuffer.used() - 1);
    for (int i = 0; i <= end; ++i) {
        if (!ws.TokenBuffer[i].empty()) tokens.slot(count++) = ws.TokenBuffer[i];
    }
}

// Takes the tokens out of the buffer, with a sign at their start and behind "=". e.g. 2x=4 -> +2x=+4
void takeWithOuterSigns(TokenArray& tokens) {
    if (isInOrder()) {
        std::swap(tokens, ws.TokenBuffer);
    } else {
        copyWithFirstSign(tokens);
    }
    for (int i = 0; i < tokens.used(); ++i) {
        if (isMark(tokens[i], '=') && !startsWithSign(tokens, i + 1)) insertPlus(tokens, i + 1);
    }
}

// The star of 3*(x) is dropped, since 3(x) says the same to the store. It stays behind an exponent,
// a fraction token, and a fraction with letters, where 2^3(x) and 1/2x(x) would say something else.
bool starIsDropped(const TokenArray& tokens, int slot) {
    const auto p = [&](int back) -> const std::string& { return tokenFromStart(tokens, slot - back); };
    if (!isMark(tokens[slot + 1], '(')) return false;
    if (isMark(p(2), '^') || IsFractionToken(p(1))) return false;
    const bool letterFraction =
        isMark(p(2), '/') && !isMark(p(3), ')') && (IsLetter(p(3)) || IsLetter(p(4)) || IsLetter(p(5)));
    return !letterFraction;
}

// Writes the tokens into the buffer from slot 1 on, with a sign for each term at the start of a
// group. e.g. (x -> (+x; a bar opens at every odd one.
class InnerSigns {
public:
    explicit InnerSigns(const TokenArray& tokens) : tokens_(tokens) {}

    void run() {
        ws.TokenBuffer.clear();
        for (int i = 0; i < tokens_.used(); ++i) take(i);
        ws.TokenLast = next_;
    }

private:
    void take(int i) {
        const std::string& t = tokens_[i];
        if (isMark(t, '*') && starIsDropped(tokens_, i)) return;
        write(t);
        if (isMark(t, '|')) ++bars_;
        const bool opens = isMark(t, '(') || (isMark(t, '|') && bars_ % 2 == 1);
        if (!opens || startsWithSign(tokens_, i + 1)) return;
        const std::string& next = tokens_[i + 1];
        if (!next.empty() && !isMark(next, ')')) write(lenientValueOf(next) < 0 ? minus : plus);
    }

    // Of two operators in a row the second is not written: its slot keeps what stood there before
    // the text moved to slot 1.
    void write(const std::string& token) {
        const bool isOperator = IsOperator(token);
        ws.TokenBuffer.slot(next_) = behindOperator_ && isOperator ? tokens_[next_] : token;
        behindOperator_ = isOperator;
        ++next_;
    }

    inline static const std::string plus = "+";
    inline static const std::string minus = "-";

    const TokenArray& tokens_;
    int next_ = 1;
    int bars_ = 0;
    bool behindOperator_ = false;
};

}  // namespace

void NormaliseSigns() {
    takeWithOuterSigns(ws.SpareTokens);
    InnerSigns(ws.SpareTokens).run();
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
    if (!isMark(ws.CanonTokens[4], '-')) write("+");
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
