// How much room the signs of a line have. A sign between two operands stands clear of both; one before a
// number belongs to it, and beside a blank there is room enough.
#include "basFPrint.hpp"

#include <cctype>
#include <string>

namespace ordwise {
namespace {

bool isLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

bool isAlphanumeric(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

bool isOneOf(char c, std::string_view set) {
    return set.find(c) != std::string_view::npos;
}

// The text before and behind a place, without switches of colour.
std::string_view before(std::string_view text, std::size_t at) {
    const std::size_t last = text.substr(0, at).find_last_not_of("[]");
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string_view behind(std::string_view text, std::size_t at) {
    const std::size_t first = text.find_first_not_of("[]", at + 1);
    return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

// "2x" "(a+b)" "|-3|" "#1/2#", but not "(" or "|" or "2x+"
bool endsInOperand(std::string_view text) {
    while (!text.empty() && text.back() == '|') text = before(text, text.size() - 1);
    return !text.empty() && (isAlphanumeric(text.back()) || isOneOf(text.back(), ")#^~`.%?"));
}

// The end of a line as well: something may still come.
bool beginsWithOperand(std::string_view text) {
    return text.empty() || isAlphanumeric(text.front()) || isOneOf(text.front(), "(|#~`.?+-\\");
}

// "3-digit", "Step-By-Step", "x-axis", but not "a-b" and not "3-x"
bool isHyphen(std::string_view text, std::size_t at) {
    constexpr std::size_t word = 3;
    std::size_t first = at;
    while (first > 0 && isLetter(text[first - 1])) --first;
    std::size_t last = at + 1;
    while (last < text.size() && isLetter(text[last])) ++last;
    const bool joins = at > 0 && isAlphanumeric(text[at - 1]) && last > at + 1;
    return joins && (at - first >= word || last - at - 1 >= word);
}

}  // namespace

void MathLineRenderer::glyph(std::string_view text, std::size_t at) {
    const bool hyphen = text[at] == '-' && isProse(surface_->FontFace) && isHyphen(text, at);
    if (hyphen || !isOneOf(text[at], "+-=$*{\\")) {
        surface_->print(text.substr(at, 1));
        return;
    }
    const bool binary = endsInOperand(before(text, at));
    sign(text[at], binary, binary && beginsWithOperand(behind(text, at)));
}

// Any character; what is no sign has no air.
void MathLineRenderer::sign(char c, bool airBefore, bool airBehind) {
    const double air = surface_->SignAir(c);
    if (!airBefore) surface_->CurrentX -= air;
    const bool minus = c == '-' && isProse(surface_->FontFace);
    surface_->print(minus ? proseMinus : std::string_view(&c, 1));
    if (!airBehind) surface_->CurrentX -= air;
}

}  // namespace ordwise
