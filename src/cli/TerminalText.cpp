#include "TerminalText.hpp"

#include "NumberText.hpp"
#include "basFPrint.hpp"

namespace ordwise {
namespace {

bool isLetter(char c) {
    return c >= 'a' && c <= 'z';
}

bool isLetterOrDigit(char c) {
    return (c >= '0' && c <= '9') || isLetter(c);
}

// A name: "x", "a2", "height", but not "xy", which is a product.
bool isName(std::string_view text) {
    if (text.empty() || !isLetter(text.front())) return false;
    return text.size() != 2 || !isLetter(text[1]);
}

// One pair of parentheses around everything.
bool isEnclosed(std::string_view text) {
    return text.size() > 1 && text.front() == '(' && text.find(')') == text.size() - 1;
}

// Something that can stand beside a "/" or behind a "√" as it is: a number, a name, a power of a
// name, or what is enclosed. "2x" is none: 1/2x would be half of x.
bool isSimple(std::string_view text) {
    if (IsNumeric(text)) return text.front() != '-';
    if (isEnclosed(text)) return true;
    return isName(text) && text.find_first_of("+-*/ ()<>=") == std::string_view::npos;
}

std::string wrapped(const std::string& text) {
    return isSimple(text) ? text : "(" + text + ")";
}

std::string exponent(std::string_view content) {
    if (content == "o") return "°";
    const bool plain = IsNumeric(content) || content.size() == 1;
    return "^" + (plain ? std::string(content) : "(" + std::string(content) + ")");
}

// Numerators may be products: 2x/3 is the same read either way. A sum or a power is wrapped.
std::string numerator(const std::string& text) {
    const bool product = !text.empty() && text.find_first_of("+-^ ", 1) == std::string::npos;
    return product || isEnclosed(text) ? text : "(" + text + ")";
}

std::string fraction(std::string_view content) {
    const std::size_t bar = fractionBar(content);
    if (bar == std::string_view::npos) return terminalText(content);
    return numerator(terminalText(content.substr(0, bar))) + "/" + wrapped(terminalText(content.substr(bar + 1)));
}

std::string construct(char mark, std::string_view content) {
    if (mark == '^') return exponent(content);
    if (mark == '~') return "√" + wrapped(terminalText(content));
    return fraction(content);
}

std::string glyph(char c) {
    switch (c) {
        case '`': return "π";
        case '\\': return "±";
        case '{': return "÷";
        case '$': return "≠";
        case '[':
        case ']': return "";
        default: return std::string(1, c);
    }
}

}  // namespace

std::string terminalText(std::string_view markup) {
    std::string out;
    for (std::size_t i = 0; i < markup.size(); ++i) {
        const char c = markup[i];
        const bool opens = c == '#' || c == '^' || c == '~';
        const std::size_t end = opens ? markup.find(c, i + 1) : std::string_view::npos;
        if (end == std::string_view::npos) {
            out += glyph(c);
            continue;
        }
        // A number before a fraction is a mixed number; a letter behind one would slip under its bar.
        if (c == '#' && !out.empty() && (isLetterOrDigit(out.back()) || out.back() == ')')) out += ' ';
        std::string piece = construct(c, markup.substr(i + 1, end - i - 1));
        if (c == '#' && end + 1 < markup.size() && isLetterOrDigit(markup[end + 1])) piece = "(" + piece + ")";
        out += piece;
        i = end;
    }
    return out;
}

}  // namespace ordwise
