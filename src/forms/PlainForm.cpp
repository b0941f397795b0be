#include "PlainForm.hpp"

#include "MarkupCharacters.hpp"
#include "NumberText.hpp"

namespace ordwise {
namespace {

// A name: "x", "a2", "height", but not "xy", which is a product.
bool isName(std::string_view text) {
    if (text.empty() || !isAsciiLetter(text.front()) || isCapital(text.front())) return false;
    return text.size() != 2 || !isAsciiLetter(text[1]);
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

// Numerators may be products: 2x/3 is the same read either way. A sum or a power is wrapped.
std::string numerator(const std::string& text) {
    const bool product = !text.empty() && text.find_first_of("+-^ ", 1) == std::string::npos;
    return product || isEnclosed(text) ? text : "(" + text + ")";
}

std::string exponent(const std::string& text) {
    return "^" + (IsNumeric(text) || text.size() == 1 ? text : "(" + text + ")");
}

std::string sign(const std::string& text) {
    switch (text[0]) {
        case '`': return "π";
        case '\\': return "±";
        case '{': return "÷";
        case '$': return "≠";
        default: return text;
    }
}

std::string construct(const Piece& piece) {
    if (piece.kind == PieceKind::Degree) return "°";
    if (piece.kind == PieceKind::Root) return "√" + wrapped(plainOf(piece.inside));
    if (piece.kind == PieceKind::Power) return plainOf(piece.inside) + exponent(plainOf(piece.below));
    return numerator(plainOf(piece.inside)) + "/" + wrapped(plainOf(piece.below));
}

bool isLetterOrDigit(char c) {
    return isAsciiDigit(c) || (isAsciiLetter(c) && !isCapital(c));
}

// Where the next piece that is seen begins with a letter or a digit.
bool valueFollows(const Row& row, std::size_t i) {
    ++i;
    if (i < row.size() && row[i].kind == PieceKind::Times) ++i;
    if (i >= row.size()) return false;
    if (row[i].kind == PieceKind::Power && !row[i].inside.empty()) return valueFollows(row[i].inside, std::size_t(-1));
    return !row[i].text.empty() && isLetterOrDigit(row[i].text[0]);
}

}  // namespace

std::string plainOf(const Row& row) {
    std::string out;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const Piece& piece = row[i];
        if (piece.kind == PieceKind::Times) continue;
        if (piece.kind == PieceKind::Sign) {
            out += sign(piece.text);
        } else if (!piece.text.empty()) {
            out += piece.text;
        } else if (piece.kind == PieceKind::Fraction) {
            // A number before a fraction is a mixed number; a letter behind one would slip under its bar.
            if (!out.empty() && (isLetterOrDigit(out.back()) || out.back() == ')')) out += ' ';
            const std::string fraction = construct(piece);
            out += valueFollows(row, i) ? "(" + fraction + ")" : fraction;
        } else {
            out += construct(piece);
        }
    }
    return out;
}

std::string plainText(std::string_view markup) {
    return plainOf(readMarkup(markup, Letters::Words));
}

}  // namespace ordwise
