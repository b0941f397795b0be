#include "LatexForm.hpp"

#include "MarkupCharacters.hpp"

#include <array>
#include <utility>

namespace ordwise {
namespace {

// Commands end in a blank, so that a letter behind them is no part of their name.
constexpr std::array<std::pair<char, std::string_view>, 12> commands{{
    {'*', "\\cdot "},
    {'{', "\\div "},
    {'`', "\\pi "},
    {'\\', "\\pm "},
    {'$', "\\ne "},
    {'%', "\\%"},
    {'#', "\\#"},
    {'^', "\\hat{\\ }"},
    {'~', "\\sim "},
    {'&', "\\&"},
    {'_', "\\_"},
    {'}', "\\}"},
}};

std::string sign(const std::string& text) {
    for (const auto& [character, command] : commands) {
        if (text[0] == character) return std::string(command);
    }
    if (text == "'" || text == "\"") return "\\text{" + text + "}";
    return text;
}

std::string number(const std::string& text) {
    const std::size_t exponent = text.find('E');
    if (exponent == std::string::npos) return text;
    return text.substr(0, exponent) + "\\mathrm{" + text.substr(exponent) + "}";
}

class Writer {
public:
    // `inColour`: the row stands in something that is coloured already.
    Writer(const Row& row, bool inColour) : row_(row), inColour_(inColour) {}

    // One run of a colour after the other.
    std::string write() const {
        std::string out;
        for (std::size_t i = 0; i < row_.size();) {
            const std::size_t end = colourEnd(i);
            const bool halfPair = end == i + 1 && isPaired(i);
            if (row_[i].highlighted && !inColour_ && !halfPair) {
                // A sign at the beginning of a group would stand as close as in front of a number.
                const bool joint = i > 0 && row_[i].kind == PieceKind::Sign && !isSign(row_[i], '(');
                out += "\\textcolor{red}{" + std::string(joint ? "{}" : "") + pieces(i, end) + "}";
            } else {
                out += pieces(i, end);
            }
            i = end;
        }
        return out;
    }

private:
    // Bars and tall parentheses come in pairs, which a group must not tear apart.
    std::size_t colourEnd(std::size_t begin) const {
        std::size_t end = begin + 1;
        if (isPaired(begin)) {
            const std::size_t close = partnerOf(begin);
            return close > begin && sameColour(begin, close) ? colourEnd(close) : end;
        }
        while (end < row_.size() && row_[end].highlighted == row_[begin].highlighted) {
            if (!isPaired(end)) {
                ++end;
                continue;
            }
            const std::size_t close = partnerOf(end);
            if (close < end || !sameColour(end, close)) break;
            end = close + 1;
        }
        return end;
    }

    bool sameColour(std::size_t begin, std::size_t end) const {
        for (std::size_t i = begin; i <= end; ++i) {
            if (row_[i].highlighted != row_[begin].highlighted) return false;
        }
        return true;
    }

    // Drawn with \left or \right: bars, and parentheses around something tall.
    bool isPaired(std::size_t i) const {
        return row_[i].kind == PieceKind::OpenBar || row_[i].kind == PieceKind::CloseBar || partnerOf(i) != i;
    }

    // The other end of a pair; `i` itself where there is none.
    std::size_t partnerOf(std::size_t i) const {
        if (row_[i].kind == PieceKind::OpenBar) return closingOf(row_, i);
        if (isSign(row_[i], '(')) {
            const std::size_t close = closingOf(row_, i);
            return close < row_.size() && isTall(row_, i, close) ? close : i;
        }
        if (row_[i].kind != PieceKind::CloseBar && !isSign(row_[i], ')')) return i;
        for (std::size_t open = i; open > 0; --open) {
            const Piece& piece = row_[open - 1];
            const bool opens =
                row_[i].kind == PieceKind::CloseBar ? piece.kind == PieceKind::OpenBar : isSign(piece, '(');
            if (opens && closingOf(row_, open - 1) == i) return partnerOf(open - 1) == i ? open - 1 : i;
        }
        return i;
    }

    std::string pieces(std::size_t begin, std::size_t end) const {
        std::string out;
        for (std::size_t i = begin; i < end; ++i) out += piece(i);
        return out;
    }

    std::string piece(std::size_t i) const {
        const Piece& piece = row_[i];
        switch (piece.kind) {
            case PieceKind::Number: return number(piece.text);
            case PieceKind::Letter: return piece.text;
            case PieceKind::Name: return "\\mathrm{" + piece.text + "}";
            case PieceKind::Words: return "\\text{" + latexText(wordsBesideSigns(row_, i)) + "}";
            case PieceKind::Sign:
                if (partnerOf(i) != i) return (piece.text == "(" ? "\\left" : "\\right") + piece.text;
                return sign(piece.text);
            case PieceKind::OpenBar: return "\\left|";
            case PieceKind::CloseBar: return "\\right|";
            case PieceKind::Blank: return blank(i);
            case PieceKind::Times: return "";
            case PieceKind::Degree: return "^{\\circ}";
            case PieceKind::Fraction: return "\\frac{" + part(i, piece.inside) + "}{" + part(i, piece.below) + "}";
            case PieceKind::Root: return "\\sqrt{" + part(i, piece.inside) + "}";
            case PieceKind::Power: break;
        }
        return base(i, piece.inside) + "^{" + part(i, piece.below) + "}";
    }

    std::string part(std::size_t i, const Row& row) const {
        return Writer(row, inColour_ || row_[i].highlighted).write();
    }

    // A power of a power and the power of a word need braces of their own.
    std::string base(std::size_t i, const Row& row) const {
        const bool group = row.size() == 1 && (row[0].kind == PieceKind::Power || row[0].kind == PieceKind::Words ||
                                               row[0].kind == PieceKind::Fraction);
        const bool bare = !row.empty() && !group;
        return bare ? part(i, row) : "{" + part(i, row) + "}";
    }

    // Signs bring their own distance; between two values it has to be asked for.
    std::string blank(std::size_t i) const {
        const auto isValue = [&](std::size_t at) {
            return at < row_.size() && (row_[at].kind != PieceKind::Sign || row_[at].text == "(" ||
                                        row_[at].text == "," || row_[at].text == "?" || row_[at].text == "%");
        };
        return i > 0 && isValue(i - 1) && isValue(i + 1) && !isSign(row_[i + 1], ',') ? "\\ " : "";
    }

    const Row& row_;
    bool inColour_;
};

}  // namespace

std::string latexOf(const Row& row) {
    return Writer(row, false).write();
}

std::string latexOf(const std::vector<NotePart>& note) {
    std::string out;
    for (const NotePart& part : note) out += part.formula ? "\\(" + latexOf(part.row) + "\\)" : latexText(part.text);
    return out;
}

std::string latexText(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (std::string_view("%&_#${}").find(c) != std::string_view::npos) out += '\\';
        if (c == '\\') {
            out += "\\textbackslash{}";
        } else if (c == '~' || c == '^') {
            out += "\\" + std::string(1, c) + "{}";
        } else {
            out += c;
        }
    }
    return out;
}

}  // namespace ordwise
